// The Windows test program.
#include <gtest/gtest.h>

#include <cstdio>

#include "harness/ProcessWindows.h"

namespace {

class WatchdogPerTest : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { recoveryui::test::RestartWatchdog(); }
};

}  // namespace

int main(int count, char** arguments) {
    // What a killed test had to say is not lost.
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    recoveryui::test::ReportCrashes();
    testing::InitGoogleTest(&count, arguments);
    testing::UnitTest::GetInstance()->listeners().Append(new WatchdogPerTest);
    recoveryui::test::StartWatchdog(50);
    return RUN_ALL_TESTS();
}

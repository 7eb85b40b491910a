// The Windows test program.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>

#include "harness/ProcessWindows.h"

namespace {

class WatchdogPerTest : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { recoveryui::test::RestartWatchdog(); }
};

}  // namespace

int main(int count, char** arguments) {
    // Wine closes a desktop that nobody uses and takes a second for it, in which the next test waits.
    if (count == 2 && std::strcmp(arguments[1], "--hold-desktop") == 0) {
        GetDesktopWindow();
        std::puts("held");
        std::fflush(stdout);
        Sleep(INFINITE);
    }
    // What a killed test had to say is not lost.
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    recoveryui::test::ReportCrashes();
    testing::InitGoogleTest(&count, arguments);
    testing::UnitTest::GetInstance()->listeners().Append(new WatchdogPerTest);
    recoveryui::test::StartWatchdog(50);
    return RUN_ALL_TESTS();
}

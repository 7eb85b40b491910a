// What makes a test red: a user who cannot go on, windows that stay, objects that leak.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <windows.h>

#include "harness/ComTest.h"
#include "harness/ProcessWindows.h"
#include "harness/UserScreen.h"

namespace recoveryui::test {
namespace {

// The modal call returns in each case: a test that has failed does not hang.
TEST(HarnessTest, AUserWhoCannotGoOnFailsTheTestWithTheWindowsAndClosesThem) {
    static const auto show = [](User::Script script) {
        User user(std::move(script), 1);
        MessageBoxW(nullptr, L"Unexpected text", L"Tovarin", MB_YESNOCANCEL);
    };
    EXPECT_NONFATAL_FAILURE_ON_ALL_THREADS(
        show([](UserScreen& screen) { screen.Press(screen.WaitForWindow(L"Tovarin"), IDRETRY); }),
        "no control 4");
    EXPECT_NONFATAL_FAILURE_ON_ALL_THREADS(show([](UserScreen& screen) { screen.WaitForWindow(L"Never"); }),
                                           "Unexpected text");
    EXPECT_NONFATAL_FAILURE_ON_ALL_THREADS(show([](UserScreen&) {}), "windows stay open");
}

TEST(HarnessTest, ALeakedObjectFailsTheTest) {
    static IObjectRack* leaked = nullptr;
    struct Leaky : ComTest {
        void TestBody() override { leaked = New<IObjectRack>(L"Tovarin.ObjectRack").Detach(); }
    };
    const HMODULE code = LoadLibraryW(L"TovarinObjects.dll");
    EXPECT_NONFATAL_FAILURE({ Leaky().TestBody(); }, "stand-ins are alive");
    leaked->Release();
    FreeLibrary(code);
}

}  // namespace
}  // namespace recoveryui::test

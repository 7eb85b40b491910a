// What makes a test red: a user who cannot go on, windows that stay, objects that leak.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <windows.h>

#include "harness/ComTest.h"
#include "harness/ProcessWindows.h"
#include "harness/UserScreen.h"

namespace recoveryui::test {
namespace {

TEST(HarnessTest, AMessageBoxIsReadAndAnswered) {
    User user([](UserScreen& screen) {
        EXPECT_EQ(screen.AnswerBox(IDNO), L"Save changes?");
        EXPECT_EQ(screen.AnswerBox(IDOK, L"Second"), L"Done.");
    });
    EXPECT_EQ(MessageBoxW(nullptr, L"Save changes?", L"Tovarin", MB_YESNOCANCEL), IDNO);
    EXPECT_EQ(MessageBoxW(nullptr, L"Done.", L"Second", MB_OK), IDOK);
}

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

using HarnessComTest = ComTest;

TEST_F(HarnessComTest, AnOrderedFaultMeetsTheNextCreationOnly) {
    FailCall(L"Tovarin.ObjectRack", L"Create", E_OUTOFMEMORY);
    EXPECT_NONFATAL_FAILURE(New<IObjectRack>(L"Tovarin.ObjectRack"), "Tovarin.ObjectRack");
    EXPECT_TRUE(New<IObjectRack>(L"Tovarin.ObjectRack"));
    EXPECT_NE(Calls().find(L"Create"), std::wstring::npos) << Utf8(Calls());
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

// The host's settings frame around the component's page and its own.
#include "app/SettingsFrame.h"

#include <windows.h>

#include <commctrl.h>

#include <set>

#include "app/FrameValues.h"
#include "harness/ComTest.h"
#include "harness/HelpViewer.h"
#include "harness/TestSettings.h"
#include "resources/ids.h"

namespace recoveryui::test {
namespace {

// As in the host's own header, which shares names with the component's.
constexpr int kTabs = 0x3020, kApply = 0x3021, kHelp = 9, kSorRequire = 2200, kSorRefusal = 2202;
constexpr CLSID kUnknown = {0xf0a1c7d3, 0x4c3b, 0x4f1f, {0x8a, 0x55, 0x10, 0x02, 0x03, 0x04, 0x05, 0x06}};

class SettingsFrameTest : public ComTest {
protected:
    SettingsFrameTest() {
        rack_.Put(L"TestOptions", settings_.Get());
        settings_.Store(L"RecoveryScenarios", com::Variant(L"f.trs;A;1;1*"));
    }
    // Shows the frame to a user.
    void Show(const std::function<void(UserScreen&, HWND frame)>& script, bool readOnly = false) {
        const User user([&](UserScreen& screen) {
            script(screen, screen.WaitForWindow(readOnly ? L"Test Settings (read-only)" : L"Test Settings"));
        });
        tovarin::SettingsFrame({rack_.Get(), options_, {CLSID_RecoveryPP, kUnknown}, readOnly})
            .ShowModal(nullptr);
    }
    bool IsSet(const wchar_t* value) const { return tovarin::FrameValues(options_.Get()).IsSet(value); }
    static HWND Page(UserScreen& screen, HWND frame, int control) {
        return GetParent(screen.Control(frame, control));
    }
    // Switches the scenario of the test on or off.
    static void Change(UserScreen& screen, HWND frame) {
        screen.Do([page = Page(screen, frame, IDC_RECOVERY_LIST)] {
            SendMessageW(page, WM_COMMAND, IDC_RECOVERY_TOGGLE, 0);
        });
    }
    static int CurrentTab(UserScreen& screen, HWND frame) {
        return static_cast<int>(screen.Ask(screen.Control(frame, kTabs), TCM_GETCURSEL));
    }

    Rack rack_;
    TestSettings settings_;
    com::Ptr<ITestOptions> options_{settings_.Get()};
};

TEST_F(SettingsFrameTest, ChangesAreAppliedOnceAndAPageThatCannotBeMadeIsLeftOut) {
    const auto help = HelpViewer::Make();
    rack_.Put(L"HelpViewer", help.Get());
    Show([&](UserScreen& screen, HWND frame) {
        EXPECT_EQ(GetPropW(frame, L"SettingsObjPtr"), options_.Get());
        EXPECT_TRUE(IsSet(tovarin::kAlreadyInit));
        EXPECT_EQ(screen.Ask(screen.Control(frame, kTabs), TCM_GETITEMCOUNT), 2);
        EXPECT_FALSE(screen.IsEnabled(frame, kApply));
        Change(screen, frame);
        EXPECT_TRUE(screen.IsEnabled(frame, kApply));
        screen.Press(frame, kApply);
        EXPECT_FALSE(screen.IsEnabled(frame, kApply));
        screen.Press(frame, kHelp);
        ForgetCalls();
        screen.Press(frame, IDOK);
    });
    EXPECT_EQ(settings_.Stored(L"RecoveryScenarios"), L"f.trs;A;0;1*");
    EXPECT_EQ(Calls().find(L"SetOptionValue(\"\""), std::wstring::npos) << Utf8(Calls());
    EXPECT_EQ(help->Take(), L"Test_Settings_-_Recovery_tab.htm");
    EXPECT_FALSE(IsSet(tovarin::kAlreadyInit));
}

TEST_F(SettingsFrameTest, TheKeyboardReachesEveryTabAndEveryControl) {
    Show([&](UserScreen& screen, HWND frame) {
        const int first = screen.FocusId();
        std::set<int> stops;
        do {
            stops.insert(screen.FocusId());
            screen.Keys({VK_TAB});
        } while (screen.FocusId() != first && stops.size() < 20);
        for (const int stop : {IDC_RECOVERY_LIST, IDC_RECOVERY_DESCRIPTION, static_cast<int>(IDOK),
                               static_cast<int>(IDCANCEL), kHelp, kTabs})
            EXPECT_TRUE(stops.contains(stop)) << stop;
        for (const int tab : {1, 0}) {
            screen.RealKeys({VK_CONTROL, VK_TAB});
            EXPECT_EQ(CurrentTab(screen, frame), tab);
            EXPECT_EQ(IsSet(tovarin::kIsSorTabActive), tab == 1);
            EXPECT_EQ(screen.FocusId(), tab == 1 ? kSorRequire : first);
        }
        screen.RealKeys({VK_CONTROL, VK_SHIFT, VK_TAB});
        EXPECT_EQ(CurrentTab(screen, frame), 1);
        screen.Picture(frame, L"host-settings");
        screen.Keys({VK_TAB});
        screen.Keys({VK_TAB});
        EXPECT_EQ(screen.FocusId(), kSorRefusal);
        screen.Keys({VK_ESCAPE});
    });
}

TEST_F(SettingsFrameTest, APageThatCannotApplyKeepsTheFrameOpenAndIsShown) {
    Show([&](UserScreen& screen, HWND frame) {
        Change(screen, frame);
        screen.RealKeys({VK_CONTROL, VK_TAB});
        FailCall(L"TestOptions.ReplayRecovery", L"SetOptionValue");
        screen.Press(frame, IDOK);
        EXPECT_EQ(screen.AnswerBox(IDOK), L"The settings on the tab Recovery could not be applied (E_FAIL).");
        EXPECT_EQ(CurrentTab(screen, frame), 0);
        EXPECT_TRUE(screen.IsEnabled(frame, kApply));
        screen.Close(frame);
    });
}

TEST_F(SettingsFrameTest, ReadOnlySettingsCanOnlyBeLookedAt) {
    const auto look = [&](UserScreen& screen, HWND frame) {
        EXPECT_TRUE(IsSet(tovarin::kReadOnlyMode));
        Change(screen, frame);
        EXPECT_FALSE(screen.IsEnabled(frame, IDOK));
        EXPECT_FALSE(screen.IsEnabled(frame, kApply));
        screen.Press(frame, IDCANCEL);
    };
    Show(look, true);
    EXPECT_EQ(settings_.Stored(L"RecoveryScenarios"), L"f.trs;A;1;1*");
}

// Windows scales the tab control by itself when the frame comes to another monitor; the test does it instead.
TEST_F(SettingsFrameTest, ThePagesFollowTheTabControlToAnotherMonitor) {
    Show([&](UserScreen& screen, HWND frame) {
        const HWND tabs = screen.Control(frame, kTabs);
        RECT inside{30, 40, 930, 740};
        screen.Do([&] {
            SendMessageW(frame, WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&inside));
            SetWindowPos(tabs, nullptr, inside.left, inside.top, inside.right - inside.left,
                         inside.bottom - inside.top, SWP_NOZORDER);
            TabCtrl_AdjustRect(tabs, FALSE, &inside);
        });
        screen.Do([] {});
        for (const int control : {static_cast<int>(IDC_RECOVERY_LIST), kSorRequire}) {
            const HWND page = Page(screen, frame, control);
            RECT place{};
            GetWindowRect(page, &place);
            MapWindowPoints(nullptr, frame, reinterpret_cast<POINT*>(&place), 2);
            EXPECT_TRUE(EqualRect(&place, &inside)) << "shown or not: " << control;
        }
        screen.Press(frame, IDCANCEL);
    });
}

TEST_F(SettingsFrameTest, WithoutTestOptionsTheFrameOpensAndWritesNothing) {
    options_.Reset();
    rack_.Get()->RemoveObject(com::Bstr(L"TestOptions").Get());
    Show([&](UserScreen& screen, HWND frame) {
        EXPECT_EQ(GetPropW(frame, L"SettingsObjPtr"), nullptr);
        ForgetCalls();
        screen.Press(frame, IDOK);
    });
    EXPECT_EQ(Calls().find(L"SetOptionValue"), std::wstring::npos);
}

}  // namespace
}  // namespace recoveryui::test

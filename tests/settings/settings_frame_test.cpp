// The settings frame of the host around the component's page and its own, and the protocol between them.
#include <windows.h>

#include <commctrl.h>

#include <set>

#include "settings/SettingsTest.h"

namespace recoveryui::test {
namespace {

using com::Variant;

constexpr int kHelp = 9, kSorRequire = 2200, kSorRefusal = 2202;
constexpr wchar_t kLeaveQuestion[] = L"Leave it incomplete?";
constexpr wchar_t kChanged[] = L"f.trs;A;0;1*", kUnchanged[] = L"f.trs;A;1;1*";

class SettingsFrameTest : public SettingsTest {
protected:
    SettingsFrameTest() { settings_.Store(L"RecoveryScenarios", Variant(kUnchanged)); }

    void SetConfiguration(bool forced, bool done = false, bool tabActive = false) {
        settings_.SetGlobal(L"g_sApplyErrOkMsgBoxText", Variant(L"Configure first."));
        settings_.SetGlobal(L"g_sCancelErrYesNoMsgBoxText", Variant(kLeaveQuestion));
        settings_.SetGlobal(L"g_bForceSORConfiguration", Variant(forced ? 1L : 0L));
        settings_.SetGlobal(L"g_bWasSORConfigured", Variant(done ? 1L : 0L));
        settings_.SetGlobal(L"g_bIsSORTabActive", Variant(tabActive ? 1L : 0L));
        settings_.SetGlobal(L"g_bAllowApply", Variant(7L));
    }
    long Value(const wchar_t* name) const { return settings_.Global(name).Get().lVal; }
    long AllowApply() const { return Value(L"g_bAllowApply"); }
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
        return static_cast<int>(screen.Ask(screen.Control(frame, kFrameTabs), TCM_GETCURSEL));
    }
    static void Enable(UserScreen& screen, HWND frame, int button, bool enabled) {
        screen.Do([=] { EnableWindow(GetDlgItem(frame, button), enabled); });
    }
};

TEST_F(SettingsFrameTest, ChangesAreAppliedOnceAndAPageThatCannotBeMadeIsLeftOut) {
    pages_.push_back(CLSID_RecoveryDlg);  // a class that is no page
    OpenSettings([&](UserScreen& screen, HWND frame) {
        EXPECT_EQ(GetPropW(frame, L"SettingsObjPtr"), settings_.Get());
        EXPECT_EQ(Value(L"g_bAlreadyInit"), 1);
        EXPECT_EQ(screen.Ask(screen.Control(frame, kFrameTabs), TCM_GETITEMCOUNT), 2);
        EXPECT_FALSE(screen.IsEnabled(frame, kFrameApply));
        settings_.SetGlobal(L"g_bAllowApply", Variant(7L));
        Change(screen, frame);
        EXPECT_TRUE(screen.IsEnabled(frame, kFrameApply));
        EXPECT_EQ(AllowApply(), 0);
        EXPECT_EQ(Value(L"g_bDirty"), 1);
        screen.Press(frame, kFrameApply);
        EXPECT_FALSE(screen.IsEnabled(frame, kFrameApply));
        screen.Press(frame, kHelp);
        ForgetCalls();
        screen.Press(frame, IDOK);
    });
    EXPECT_EQ(settings_.Stored(L"RecoveryScenarios"), kChanged);
    EXPECT_EQ(Calls().find(L"SetOptionValue(\"\""), std::wstring::npos) << Utf8(Calls());
    EXPECT_EQ(help_->Take(), L"Test_Settings_-_Recovery_tab.htm");
    EXPECT_EQ(Value(L"g_bAlreadyInit"), 0);
}

TEST_F(SettingsFrameTest, TheKeyboardReachesEveryTabAndEveryControl) {
    OpenSettings([&](UserScreen& screen, HWND frame) {
        const int first = screen.FocusId();
        std::set<int> stops;
        do {
            stops.insert(screen.FocusId());
            screen.Keys({VK_TAB});
        } while (screen.FocusId() != first && stops.size() < 20);
        for (const int stop : {IDC_RECOVERY_LIST, IDC_RECOVERY_DESCRIPTION, static_cast<int>(IDOK),
                               static_cast<int>(IDCANCEL), kHelp, kFrameTabs})
            EXPECT_TRUE(stops.contains(stop)) << stop;
        for (const int tab : {1, 0}) {
            screen.RealKeys({VK_CONTROL, VK_TAB});
            EXPECT_EQ(CurrentTab(screen, frame), tab);
            EXPECT_EQ(Value(L"g_bIsSORTabActive"), tab);
            EXPECT_EQ(screen.FocusId(), tab == 1 ? kSorRequire : first);
        }
        screen.RealKeys({VK_CONTROL, VK_SHIFT, VK_TAB});
        EXPECT_EQ(CurrentTab(screen, frame), 1);
        screen.Picture(frame, L"host-settings");
        for (int twice = 0; twice < 2; ++twice) screen.Keys({VK_TAB});
        EXPECT_EQ(screen.FocusId(), kSorRefusal);
        screen.Keys({VK_ESCAPE});
        EXPECT_FALSE(IsWindow(frame));
    });
    // Enter and Escape in the description are the frame's.
    for (const auto& [key, stored] : {std::pair{VK_ESCAPE, kUnchanged}, std::pair{VK_RETURN, kChanged}}) {
        OpenSettings([key = key](UserScreen& screen, HWND frame) {
            Change(screen, frame);
            screen.Focus(frame, IDC_RECOVERY_DESCRIPTION);
            screen.Keys({static_cast<WORD>(key)});
            screen.WaitUntilClosed(frame);
        });
        EXPECT_EQ(settings_.Stored(L"RecoveryScenarios"), stored);
    }
}

TEST_F(SettingsFrameTest, APageThatCannotApplyKeepsTheFrameOpenAndIsShown) {
    OpenSettings([&](UserScreen& screen, HWND frame) {
        Change(screen, frame);
        screen.RealKeys({VK_CONTROL, VK_TAB});
        FailCall(L"TestOptions.ReplayRecovery", L"SetOptionValue");
        screen.Press(frame, IDOK);
        EXPECT_EQ(screen.AnswerBox(IDOK), L"The settings on the tab Recovery could not be applied (E_FAIL).");
        EXPECT_EQ(CurrentTab(screen, frame), 0);
        EXPECT_TRUE(screen.IsEnabled(frame, kFrameApply));
        screen.Close(frame);
    });
    isReadOnly_ = true;
    OpenSettings([&](UserScreen& screen, HWND frame) {
        EXPECT_EQ(Value(L"g_bIsReadOnlyMode"), 1);
        Enable(screen, frame, IDOK, true);
        Change(screen, frame);
        EXPECT_FALSE(screen.IsEnabled(frame, IDOK));
        EXPECT_FALSE(screen.IsEnabled(frame, kFrameApply));
    });
    EXPECT_EQ(settings_.Stored(L"RecoveryScenarios"), kUnchanged);
}

// Windows scales the tab control by itself when the frame comes to another monitor; the test does it instead.
TEST_F(SettingsFrameTest, ThePagesFollowTheTabControlToAnotherMonitor) {
    OpenSettings([&](UserScreen& screen, HWND frame) {
        const HWND tabs = screen.Control(frame, kFrameTabs);
        RECT inside{30, 40, 930, 740};
        screen.Do([&] {
            SendMessageW(frame, WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&inside));
            SetWindowPos(tabs, nullptr, inside.left, inside.top, inside.right - inside.left,
                         inside.bottom - inside.top, SWP_NOZORDER);
            TabCtrl_AdjustRect(tabs, FALSE, &inside);
        });
        screen.Do([] {});
        for (const int control : {static_cast<int>(IDC_RECOVERY_LIST), kSorRequire}) {
            const RECT place = PlaceOf(Page(screen, frame, control), frame);
            EXPECT_TRUE(EqualRect(&place, &inside)) << "shown or not: " << control;
        }
    });
}

TEST_F(SettingsFrameTest, AMissingConfigurationHoldsTheFrameOpen) {
    OpenSettings([&](UserScreen& screen, HWND frame) {
        Change(screen, frame);
        for (const int button : {kFrameApply, static_cast<int>(IDOK)}) {
            SetConfiguration(true);
            screen.Press(frame, button);
            EXPECT_EQ(screen.BoxLook(), L"error: [OK]");
            EXPECT_EQ(screen.AnswerBox(IDOK), L"Configure first.");
            EXPECT_EQ(AllowApply(), 1);
        }
        EXPECT_EQ(settings_.Stored(L"RecoveryScenarios"), kUnchanged);
        SetConfiguration(true, false, true);
        screen.Press(frame, kFrameApply);
        EXPECT_EQ(settings_.Stored(L"RecoveryScenarios"), kChanged) << "its own tab may apply";
        for (const bool isCloseBox : {false, true}) {
            SetConfiguration(true, false, isCloseBox);
            isCloseBox ? screen.Close(frame) : screen.Press(frame, IDCANCEL);
            EXPECT_EQ(screen.BoxLook(), L"warning: [OK] Cancel");
            EXPECT_EQ(screen.AnswerBox(IDCANCEL), kLeaveQuestion);
            EXPECT_EQ(AllowApply(), isCloseBox ? 7 : 0);
        }
        // An answer to a close box that closes nothing is no answer to a later Cancel.
        const SUBCLASSPROC staysOpen = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                          DWORD_PTR) -> LRESULT {
            return message == WM_CLOSE ? 0 : DefSubclassProc(window, message, wParam, lParam);
        };
        screen.Do([=] { SetWindowSubclass(frame, staysOpen, 0, 0); });
        screen.Close(frame);
        screen.AnswerBox(IDOK);
        screen.Press(frame, IDCANCEL);
        EXPECT_EQ(screen.AnswerBox(IDOK), kLeaveQuestion);
        screen.WaitUntilClosed(frame);
    });
    for (const bool isDone : {false, true}) {
        OpenSettings([&](UserScreen& screen, HWND frame) {
            SetConfiguration(true, isDone);
            screen.Close(frame);
            if (!isDone) screen.AnswerBox(IDOK);
            screen.WaitUntilClosed(frame);
        });
    }
}

TEST_F(SettingsFrameTest, AChangeOfTheTabSetsTheButtonsAfterTheFrameFromNumbersOnly) {
    const struct {
        Variant dirty, readOnly;
        bool apply, ok;
    } cases[] = {{Variant(1L), Variant(0L), true, true},
                 {Variant(1L), Variant(1L), false, false},
                 {Variant(0L), Variant(1L), false, false},
                 {Variant(L"1"), Variant(true), false, true}};
    OpenSettings([&](UserScreen& screen, HWND frame) {
        for (const auto& c : cases) {
            settings_.SetGlobal(L"g_bForceSORConfiguration", Variant(L"1"));
            settings_.SetGlobal(L"g_bDirty", c.dirty);
            settings_.SetGlobal(L"g_bIsReadOnlyMode", c.readOnly);
            Enable(screen, frame, kFrameApply, !c.ok);
            Enable(screen, frame, IDOK, true);
            const HWND tabs = screen.Control(frame, kFrameTabs);
            RECT other{};
            TabCtrl_GetItemRect(tabs, 1 - CurrentTab(screen, frame), &other);
            screen.Do([=] {
                PostMessageW(tabs, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(other.left + 5, other.top + 5));
            });
            EXPECT_EQ(screen.IsEnabled(frame, kFrameApply), c.apply) << &c - cases;
            EXPECT_EQ(screen.IsEnabled(frame, IDOK), c.ok) << &c - cases;
        }
        SetConfiguration(true);
        settings_.SetGlobal(L"g_sApplyErrOkMsgBoxText", Variant(3L));
        screen.Press(frame, IDOK);
        EXPECT_EQ(screen.AnswerBox(IDOK), L"");
        SetConfiguration(false);
    });
}

TEST_F(SettingsFrameTest, WithoutTestOptionsTheFrameOpensAndWritesNothing) {
    options_.Reset();
    rack_.Get()->RemoveObject(com::Bstr(L"TestOptions").Get());
    SetConfiguration(true);
    ForgetCalls();
    OpenSettings([&](UserScreen& screen, HWND frame) {
        EXPECT_EQ(GetPropW(frame, L"SettingsObjPtr"), nullptr);
        screen.Press(frame, IDOK);
        EXPECT_FALSE(IsWindow(frame)) << "nothing is asked";
    });
    EXPECT_EQ(Calls().find(L"SetOptionValue"), std::wstring::npos);
    EXPECT_EQ(AllowApply(), 7);
}

}  // namespace
}  // namespace recoveryui::test

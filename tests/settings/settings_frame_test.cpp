// The protocol between the settings frame and the page, in a real frame.
#include <windows.h>

#include <commctrl.h>

#include "settings/SettingsTest.h"

namespace recoveryui::test {
namespace {

using Seen = std::vector<std::string>;

class FrameProtocolTest : public SettingsTest {
protected:
    FrameProtocolTest() {
        SetGlobal(L"g_sApplyErrOkMsgBoxText", com::Variant(L"Configure first."));
        SetGlobal(L"g_sCancelErrYesNoMsgBoxText", com::Variant(L"Leave it incomplete?"));
    }
    void SetConfiguration(bool forced, bool done, bool tabActive) {
        SetGlobal(L"g_bForceSORConfiguration", com::Variant(forced ? 1L : 0L));
        SetGlobal(L"g_bWasSORConfigured", com::Variant(done ? 1L : 0L));
        SetGlobal(L"g_bIsSORTabActive", com::Variant(tabActive ? 1L : 0L));
        SetGlobal(L"g_bAllowApply", com::Variant(7L));
    }
    static void ChangeTab(UserScreen& screen, HWND frame) {
        const HWND tabs = screen.Control(frame, kFrameTabs);
        RECT other{};
        TabCtrl_GetItemRect(tabs, 1 - TabCtrl_GetCurSel(tabs), &other);
        screen.Do([=] {
            PostMessageW(tabs, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(other.left + 5, other.top + 5));
        });
    }
};

TEST_F(FrameProtocolTest, OkAndApplyWaitForAForcedConfiguration) {
    for (int state = 0; state < 8; ++state) {
        const bool forced = state & 1, done = state & 2, active = state & 4;
        const bool isRefused = forced && !done && !active;
        SCOPED_TRACE(state);
        const Seen seen = OpenSettings([&](UserScreen& screen, HWND frame) {
            SetConfiguration(forced, done, active);
            screen.Do([=] { EnableWindow(GetDlgItem(frame, kFrameApply), TRUE); });
            for (const int button : {kFrameApply, IDOK}) {
                SetGlobal(L"g_bAllowApply", com::Variant(7L));
                screen.Press(frame, button);
                if (isRefused) {
                    EXPECT_EQ(screen.BoxLook(), L"error: [OK]");
                    EXPECT_EQ(screen.AnswerBox(IDOK), L"Configure first.");
                }
                EXPECT_EQ(Global(L"g_bAllowApply"), 1);
            }
            if (isRefused) SetConfiguration(false, false, false);
        });
        EXPECT_EQ(seen, isRefused ? Seen{"Cancel"} : (Seen{"Apply", "OK"}));
    }
}

TEST_F(FrameProtocolTest, CancelAndTheCloseBoxAskWhileAForcedConfigurationIsMissing) {
    for (int state = 0; state < 8; ++state) {
        const bool forced = state & 1, done = state & 2, active = state & 4;
        for (const bool isCloseBox : {false, true}) {
            SCOPED_TRACE(testing::Message() << state << (isCloseBox ? " close box" : " Cancel"));
            const Seen seen = OpenSettings([&](UserScreen& screen, HWND frame) {
                SetConfiguration(forced, done, active);
                const auto leave = [&] { isCloseBox ? screen.Close(frame) : screen.Press(frame, IDCANCEL); };
                leave();
                if (forced && !done) {
                    EXPECT_EQ(screen.BoxLook(), L"warning: [OK] Cancel");
                    EXPECT_EQ(screen.AnswerBox(IDCANCEL), L"Leave it incomplete?");
                    EXPECT_TRUE(IsWindow(frame));
                    leave();
                    EXPECT_EQ(screen.AnswerBox(IDOK), L"Leave it incomplete?");
                }
                screen.WaitUntilClosed(frame);
                EXPECT_EQ(Global(L"g_bAllowApply"), isCloseBox ? 7 : 0);
            });
            EXPECT_EQ(seen, Seen{"Cancel"});
        }
    }
}

TEST_F(FrameProtocolTest, AnAnswerToTheCloseBoxIsNoAnswerToALaterCancel) {
    keepsOpenOnClose_ = true;
    OpenSettings([&](UserScreen& screen, HWND frame) {
        SetConfiguration(true, false, false);
        screen.Close(frame);
        screen.AnswerBox(IDOK);
        screen.Press(frame, IDCANCEL);
        EXPECT_EQ(screen.AnswerBox(IDOK), L"Leave it incomplete?");
        screen.WaitUntilClosed(frame);
    });
}

TEST_F(FrameProtocolTest, AChangeOfTheTabSetsTheButtonsAfterTheFrame) {
    const struct {
        long dirty, readOnly;
        bool apply, ok;
    } cases[] = {{0, 0, false, true}, {1, 0, true, true}, {0, 1, false, false}, {1, 1, false, false}};
    for (const auto& c : cases) {
        const Seen seen = OpenSettings([&](UserScreen& screen, HWND frame) {
            SetGlobal(L"g_bDirty", com::Variant(c.dirty));
            SetGlobal(L"g_bIsReadOnlyMode", com::Variant(c.readOnly));
            ChangeTab(screen, frame);
            EXPECT_EQ(screen.IsEnabled(frame, kFrameApply), c.apply);
            EXPECT_EQ(screen.IsEnabled(frame, IDOK), c.ok);
        });
        EXPECT_EQ(seen, (Seen{"Tab", "Cancel"}));
    }
}

TEST_F(FrameProtocolTest, OnlyNumbersOfTheRightTypeCount) {
    const com::Variant foreign[] = {com::Variant(L"1"), com::Variant(true), com::Variant(0L)};
    for (const com::Variant& value : foreign) {
        for (const wchar_t* name : {L"g_bForceSORConfiguration", L"g_bDirty", L"g_bIsReadOnlyMode"})
            SetGlobal(name, value);
        const Seen seen = OpenSettings([&](UserScreen& screen, HWND frame) {
            ChangeTab(screen, frame);
            EXPECT_FALSE(screen.IsEnabled(frame, kFrameApply));
            screen.Press(frame, IDOK);
        });
        EXPECT_EQ(seen, (Seen{"Tab", "OK"}));
    }
    SetGlobal(L"g_sApplyErrOkMsgBoxText", com::Variant(3L));
    OpenSettings([&](UserScreen& screen, HWND frame) {
        SetConfiguration(true, false, false);
        screen.Press(frame, IDOK);
        EXPECT_EQ(screen.AnswerBox(IDOK), L"");
        SetConfiguration(false, false, false);
    });
}

TEST_F(FrameProtocolTest, TheFramesEndReleasesTheSettingsOnceAndLetsTheModuleGo) {
    const auto references = [&] {
        options_.Get()->AddRef();
        return options_.Get()->Release();
    };
    const ULONG before = references();
    OpenSettings([&](UserScreen&, HWND) { SetGlobal(L"g_bAlreadyInit", com::Variant(1L)); });
    EXPECT_EQ(Global(L"g_bAlreadyInit"), 0);
    EXPECT_EQ(references(), before);
}

TEST_F(FrameProtocolTest, AFrameWithoutSettingsIsLeftAlone) {
    SetConfiguration(true, false, false);
    hasSettingsProperty_ = false;
    EXPECT_EQ(OpenSettings([](UserScreen& screen, HWND frame) { screen.Press(frame, IDOK); }), Seen{"OK"});
    EXPECT_EQ(Global(L"g_bAllowApply"), 7);
}

}  // namespace
}  // namespace recoveryui::test

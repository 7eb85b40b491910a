// The protocol between the settings frame and the page, in a real frame. What is decided in which state is
// the matter of the rules' own test.
#include <windows.h>

#include <commctrl.h>

#include "settings/SettingsTest.h"

namespace recoveryui::test {
namespace {

using com::Variant;
using Seen = std::vector<std::string>;

class FrameProtocolTest : public SettingsTest {
protected:
    FrameProtocolTest() {
        settings_.SetGlobal(L"g_sApplyErrOkMsgBoxText", Variant(L"Configure first."));
        settings_.SetGlobal(L"g_sCancelErrYesNoMsgBoxText", Variant(L"Leave it incomplete?"));
    }
    void SetConfiguration(bool forced, bool done = false, bool tabActive = false) {
        settings_.SetGlobal(L"g_bForceSORConfiguration", Variant(forced ? 1L : 0L));
        settings_.SetGlobal(L"g_bWasSORConfigured", Variant(done ? 1L : 0L));
        settings_.SetGlobal(L"g_bIsSORTabActive", Variant(tabActive ? 1L : 0L));
        settings_.SetGlobal(L"g_bAllowApply", Variant(7L));
    }
    long AllowApply() const { return settings_.Global(L"g_bAllowApply").Get().lVal; }
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
    const struct {
        bool done, tabActive, refused;
    } cases[] = {{false, false, true}, {true, false, false}, {false, true, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        const Seen seen = OpenSettings([&](UserScreen& screen, HWND frame) {
            screen.Do([=] { EnableWindow(GetDlgItem(frame, kFrameApply), TRUE); });
            for (const int button : {kFrameApply, IDOK}) {
                SetConfiguration(true, c.done, c.tabActive);
                screen.Press(frame, button);
                if (c.refused) {
                    EXPECT_EQ(screen.BoxLook(), L"error: [OK]");
                    EXPECT_EQ(screen.AnswerBox(IDOK), L"Configure first.");
                }
                EXPECT_EQ(AllowApply(), 1);
            }
            if (c.refused) SetConfiguration(false);
        });
        EXPECT_EQ(seen, c.refused ? Seen{"Cancel"} : (Seen{"Apply", "OK"}));
    }
}

TEST_F(FrameProtocolTest, CancelAndTheCloseBoxAskWhileAForcedConfigurationIsMissing) {
    for (const bool isCloseBox : {false, true}) {
        for (const bool isDone : {false, true}) {
            const Seen seen = OpenSettings([&](UserScreen& screen, HWND frame) {
                SetConfiguration(true, isDone);
                const auto leave = [&] { isCloseBox ? screen.Close(frame) : screen.Press(frame, IDCANCEL); };
                leave();
                if (!isDone) {
                    EXPECT_EQ(screen.BoxLook(), L"warning: [OK] Cancel");
                    EXPECT_EQ(screen.AnswerBox(IDCANCEL), L"Leave it incomplete?");
                    EXPECT_TRUE(IsWindow(frame));
                    leave();
                    EXPECT_EQ(screen.AnswerBox(IDOK), L"Leave it incomplete?");
                }
                screen.WaitUntilClosed(frame);
                EXPECT_EQ(AllowApply(), isCloseBox ? 7 : 0);
            });
            EXPECT_EQ(seen, Seen{"Cancel"});
        }
    }
}

TEST_F(FrameProtocolTest, AnAnswerToTheCloseBoxIsNoAnswerToALaterCancel) {
    keepsOpenOnClose_ = true;
    OpenSettings([&](UserScreen& screen, HWND frame) {
        SetConfiguration(true);
        screen.Close(frame);
        screen.AnswerBox(IDOK);
        screen.Press(frame, IDCANCEL);
        EXPECT_EQ(screen.AnswerBox(IDOK), L"Leave it incomplete?");
        screen.WaitUntilClosed(frame);
    });
}

TEST_F(FrameProtocolTest, AChangeOfTheTabSetsTheButtonsAfterTheFrameFromNumbersOnly) {
    const struct {
        Variant dirty, readOnly;
        bool apply, ok;
    } cases[] = {{Variant(0L), Variant(0L), false, true},     {Variant(1L), Variant(0L), true, true},
                 {Variant(1L), Variant(1L), false, false},    {Variant(0L), Variant(1L), false, false},
                 {Variant(L"1"), Variant(L"1"), false, true}, {Variant(true), Variant(true), false, true}};
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        const Seen seen = OpenSettings([&](UserScreen& screen, HWND frame) {
            settings_.SetGlobal(L"g_bForceSORConfiguration", Variant(L"1"));
            settings_.SetGlobal(L"g_bDirty", c.dirty);
            settings_.SetGlobal(L"g_bIsReadOnlyMode", c.readOnly);
            ChangeTab(screen, frame);
            EXPECT_EQ(screen.IsEnabled(frame, kFrameApply), c.apply);
            EXPECT_EQ(screen.IsEnabled(frame, IDOK), c.ok);
        });
        EXPECT_EQ(seen, (Seen{"Tab", "Cancel"}));
    }
    settings_.SetGlobal(L"g_sApplyErrOkMsgBoxText", Variant(3L));
    settings_.SetGlobal(L"g_bIsReadOnlyMode", Variant(0L));
    OpenSettings([&](UserScreen& screen, HWND frame) {
        SetConfiguration(true);
        screen.Press(frame, IDOK);
        EXPECT_EQ(screen.AnswerBox(IDOK), L"");
        SetConfiguration(false);
    });
}

TEST_F(FrameProtocolTest, TheFramesEndReleasesTheSettingsOnceAndAFrameWithoutThemIsLeftAlone) {
    const auto references = [&] {
        settings_.Get()->AddRef();
        return settings_.Get()->Release();
    };
    const ULONG before = references();
    OpenSettings([&](UserScreen&, HWND) { settings_.SetGlobal(L"g_bAlreadyInit", Variant(1L)); });
    EXPECT_EQ(settings_.Global(L"g_bAlreadyInit").Get().lVal, 0);
    EXPECT_EQ(references(), before);

    SetConfiguration(true);
    property_ = nullptr;
    EXPECT_EQ(OpenSettings([](UserScreen& screen, HWND frame) { screen.Press(frame, IDOK); }), Seen{"OK"});
    EXPECT_EQ(AllowApply(), 7);
}

}  // namespace
}  // namespace recoveryui::test

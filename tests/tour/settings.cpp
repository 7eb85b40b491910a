// A tester associates scenarios with a test, and finds them again in the next one.
#include <windows.h>

#include <commctrl.h>

#include "tour/Tour.h"

namespace recoveryui::tour {
namespace {

using test::kEditOfCombo;
// The host's settings frame and its demonstration tab; their header shares names with the component's.
constexpr int kTabs = 0x3020, kApply = 0x3021, kSorRequire = 2200, kSorConfigured = 2201;

class Settings : public Tour {
protected:
    static HWND OpenSettings(UserScreen& screen, HWND host) {
        ChooseFromMenuBar(screen, host, L't', L"S&ettings...\tCtrl+E");
        return screen.WaitForWindow(L"Test Settings");
    }
    static void ShowTab(UserScreen& screen, HWND frame, int tab) {
        screen.Do([=] { SendDlgItemMessageW(frame, kTabs, TCM_SETCURFOCUS, static_cast<WPARAM>(tab), 0); });
    }
    // Chooses every scenario of a file in the Add dialog.
    static void AddAll(UserScreen& screen, HWND frame, const std::wstring& file,
                       const wchar_t* picture = nullptr) {
        screen.Press(frame, IDC_RECOVERY_ADD);
        const HWND dialog = screen.WaitForWindow(L"Add Recovery Scenario");
        screen.Enter(dialog, kEditOfCombo, file);
        screen.Keys({VK_RETURN});
        const HWND list = screen.Control(dialog, IDC_ADD_SCENARIO_LIST);
        screen.Do([=] { ListView_SetItemState(list, -1, LVIS_SELECTED, LVIS_SELECTED); });
        if (picture) screen.Picture(dialog, picture);
        screen.Press(dialog, IDOK);
    }
};

TEST_F(Settings, ScenariosAreAssociatedMadeTheDefaultAndFoundInTheNextTest) {
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Tovarin\\Tour");
    const std::wstring common = MakePopUps(L"common.trs", {L"Crash", L"Popup"});
    const std::wstring other = MakePopUps(L"other.trs", {L"Popup"});
    const Rows ordered = {L"Popup | " + common, L"Crash | " + common, L"Popup | " + other};

    Play(L"settings-journal.txt", [&](UserScreen& screen, HWND host) {
        HWND frame = OpenSettings(screen, host);
        screen.Picture(frame, L"30-settings-empty");
        AddAll(screen, frame, common, L"31-add-scenario");
        AddAll(screen, frame, other);
        EXPECT_EQ(screen.AnswerBox(IDOK).substr(0, 40), L"You have selected a different file path ");

        screen.Choose(frame, IDC_RECOVERY_LIST, L"Popup | " + common);
        screen.Press(frame, IDC_RECOVERY_UP);
        EXPECT_EQ(screen.RowsOf(frame, IDC_RECOVERY_LIST), ordered);
        screen.Keys({VK_SPACE});
        screen.Choose(frame, IDC_RECOVERY_ACTIVATION, L"Never");
        screen.Press(frame, IDC_RECOVERY_SET_DEFAULT);
        screen.Press(frame, kApply);
        screen.Picture(frame, L"32-settings-filled");

        // A required configuration holds the settings open until it is done.
        ShowTab(screen, frame, 1);
        screen.Check(frame, kSorRequire);
        screen.Picture(frame, L"33-settings-sor");
        ShowTab(screen, frame, 0);
        screen.Press(frame, IDCANCEL);
        screen.AnswerBox(IDCANCEL);
        screen.Press(frame, IDOK);
        EXPECT_EQ(screen.AnswerBox(IDOK),
                  L"Complete the SOR configuration on the SOR tab before you apply the settings.");
        ShowTab(screen, frame, 1);
        screen.Check(frame, kSorConfigured);
        screen.Press(frame, IDOK);
        screen.WaitUntilClosed(frame);

        ChooseFromMenuBar(screen, host, L't', L"&New\tCtrl+N");
        screen.AnswerBox(IDNO);
        frame = OpenSettings(screen, host);
        EXPECT_EQ(screen.RowsOf(frame, IDC_RECOVERY_LIST), ordered) << "a new test starts from the defaults";
        EXPECT_EQ(screen.Chosen(frame, IDC_RECOVERY_ACTIVATION), Rows{L"Never"});
        EXPECT_FALSE(screen.IsRowChecked(frame, IDC_RECOVERY_LIST, ordered[0]));
        EXPECT_TRUE(screen.IsRowChecked(frame, IDC_RECOVERY_LIST, ordered[1]));
        screen.Press(frame, IDCANCEL);
        screen.WaitUntilClosed(frame);

        ChooseFromMenuBar(screen, host, L'h', L"&About Tovarin...");
        const HWND about = screen.WaitForWindow(L"About Tovarin");
        screen.Picture(about, L"35-about");
        screen.Press(about, IDOK);
        screen.WaitUntilClosed(about);
    });
}

}  // namespace
}  // namespace recoveryui::tour

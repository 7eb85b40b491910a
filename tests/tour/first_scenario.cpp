// A tester makes the first scenario, stores it, finds it again and renames it.
#include <windows.h>

#include <commctrl.h>

#include "host/store_samples.h"
#include "host/temp_folder.h"
#include "tour/Tour.h"

namespace recoveryui::tour {
namespace {

constexpr wchar_t kFile[] = L"scenarios.trs";

void MakeScenario(UserScreen& screen, HWND manager) {
    screen.Press(manager, IDC_MANAGER_NEW_SCENARIO);
    const HWND wizard = screen.WaitForWindow(L"Recovery Scenario Wizard");
    screen.Picture(wizard, L"03-welcome");
    screen.Next(wizard);
    screen.Picture(wizard, L"04-select-trigger");
    screen.Next(wizard);
    EXPECT_EQ(screen.WizardButtons(wizard), L"B n* f");
    screen.Enter(wizard, IDC_POPUP_TITLE, L" ");
    EXPECT_EQ(screen.WizardButtons(wizard), L"B N* f") << "blanks count as given";
    screen.Enter(wizard, IDC_POPUP_TITLE, L"(Error|Warning).*");
    screen.Check(wizard, IDC_POPUP_TITLE_REGEX);
    EXPECT_FALSE(screen.IsEnabled(wizard, IDC_POPUP_TEXT));
    screen.Check(wizard, IDC_POPUP_TEXT_CHECK);
    EXPECT_EQ(screen.WizardButtons(wizard), L"B n* f") << "a checked condition without a value";
    screen.Enter(wizard, IDC_POPUP_TEXT, L"It failed.\r\nTry again.");
    screen.Picture(wizard, L"05-popup");
    screen.Next(wizard);
    EXPECT_TRUE(screen.IsVisible(wizard, IDC_OPERATION_LIST_NOTE));
    EXPECT_FALSE(screen.IsVisible(wizard, IDC_OPERATION_LIST_ANOTHER));
    screen.Picture(wizard, L"06-no-operation");

    screen.Next(wizard);
    screen.Picture(wizard, L"07-operation-type");
    screen.Next(wizard);
    screen.Picture(wizard, L"08-press-enter");
    screen.Next(wizard);

    screen.Next(wizard);
    screen.Next(wizard);
    screen.Check(wizard, IDC_CLICK_KEYS);
    screen.Next(wizard);
    EXPECT_EQ(screen.AnswerBox(IDOK), L"You must specify a keyboard combination");
    screen.Do([page = screen.Page(wizard)] {
        SendDlgItemMessageW(page, IDC_CLICK_HOTKEY, HKM_SETHOTKEY,
                            MAKEWORD('D', HOTKEYF_CONTROL | HOTKEYF_ALT), 0);
    });
    screen.Picture(wizard, L"09-press-keys");
    screen.Next(wizard);

    screen.Next(wizard);
    screen.Check(wizard, IDC_SELECT_OPERATION_RESTART);
    screen.Next(wizard);
    EXPECT_EQ(screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS),
              (Rows{L"Keyboard click | Enter", L"Keyboard click | Control + Alt + D",
                    L"Restart Microsoft Windows | "}));
    screen.Picture(wizard, L"10-with-restart");
    screen.Choose(wizard, IDC_OPERATION_LIST_ROWS, L"Restart Microsoft Windows");
    screen.Press(wizard, IDC_OPERATION_LIST_DELETE);
    const Rows made = screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS), moved{made[1], made[0]};
    const auto expectRows = [&](const Rows& rows) {
        screen.WaitUntil("the rows", [&] { return screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS) == rows; });
        EXPECT_EQ(screen.FocusId(), IDC_OPERATION_LIST_ROWS);
    };
    screen.Choose(wizard, IDC_OPERATION_LIST_ROWS, L"Keyboard click | Enter");
    screen.Press(wizard, IDC_OPERATION_LIST_DOWN);
    expectRows(moved);
    screen.RealKeys({VK_MENU, VK_UP});
    expectRows(made);
    screen.RealKeys({VK_MENU, VK_DOWN});
    expectRows(moved);
    screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER, false);
    screen.Picture(wizard, L"11-operations");
    screen.Next(wizard);

    screen.Check(wizard, IDC_TEST_FLOW_FIRST + 1);
    screen.Picture(wizard, L"12-post-recovery");
    screen.Next(wizard);
    screen.Enter(wizard, IDC_SCEN_NAME, L"Error message");
    screen.Enter(wizard, IDC_SCEN_DESCRIPTION, L"Closes error messages and goes on with the next step.");
    screen.Picture(wizard, L"13-name");
    screen.Next(wizard);
    EXPECT_EQ(
        screen.Text(wizard, IDC_SUMMARY_TEXT),
        L"Trigger Event:\r\n\tPop-up window\r\nRecovery Operations:\r\n\tKeyboard or mouse operation\r\n"
        L"\tKeyboard or mouse operation\r\nPost-Recovery Test Run Options:\r\n\tProceed to next step");
    screen.Picture(wizard, L"14-summary");
    EXPECT_EQ(screen.WizardButtons(wizard), L"B n F*");
    screen.Finish(wizard);
}

void RenameScenario(UserScreen& screen, HWND manager) {
    screen.Press(manager, IDC_MANAGER_EDIT);
    const HWND wizard = screen.WaitForWindow(L"Recovery Scenario Wizard");
    screen.Next(wizard);
    screen.Next(wizard);
    EXPECT_EQ(screen.Text(wizard, IDC_POPUP_TITLE), L"(Error|Warning).*");
    EXPECT_TRUE(screen.IsChecked(wizard, IDC_POPUP_TITLE_REGEX));
    screen.Next(wizard);
    EXPECT_EQ(screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS),
              (Rows{L"Keyboard click | Control + Alt + D", L"Keyboard click | Enter"}));
    screen.Next(wizard);
    EXPECT_TRUE(screen.IsChecked(wizard, IDC_TEST_FLOW_FIRST + 1));
    screen.Next(wizard);
    EXPECT_EQ(screen.Text(wizard, IDC_SCEN_NAME), L"Error message");
    screen.Enter(wizard, IDC_SCEN_NAME, L"Error or warning");
    screen.Next(wizard);
    screen.Finish(wizard);
}

TEST_F(Tour, AFirstScenarioIsMadeStoredFoundAgainAndRenamed) {
    DeleteFileW(FileIn(kFile).c_str());
    Play(L"first-scenario-journal.txt", [](UserScreen& screen, HWND host) {
        HWND manager = OpenManager(screen, host, L"01-host-menu");
        screen.Picture(manager, L"02-manager-empty");
        MakeScenario(screen, manager);
        screen.Picture(manager, L"15-manager-unsaved");

        screen.Press(manager, IDC_MANAGER_SAVE);
        screen.Picture(screen.WaitForWindow(L"Save Recovery File"), L"16-save");
        screen.GiveFile(L"Save Recovery File", FileIn(kFile));
        manager = screen.WaitForWindow(L"Recovery Scenario Manager - scenarios.trs");
        screen.Picture(manager, L"17-manager-saved");
        const tovarin::store::Scenario made{
            2,
            tovarin::store::PopUpTrigger{{L"(Error|Warning).*", 1}, {L"It failed.\nTry again.", 0}, 0},
            {tovarin::store::PressKeys{{0x10011, 0x10012, 0x10044, 0x30012, 0x30011}},
             tovarin::store::PressKeys{{0x1000D, 0x3000D}}},
            L"Closes error messages and goes on with the next step."};
        EXPECT_EQ(tovarin::TempFolder::Read(FileIn(kFile)),
                  tovarin::store::TextOfStore({{L"Error message", made}}));
        EXPECT_EQ(OpenForEditing(FileIn(kFile)), STG_E_SHAREVIOLATION) << "the file is taken";
        screen.Press(manager, IDCANCEL);
        screen.WaitUntilClosed(manager);
        EXPECT_EQ(OpenForEditing(FileIn(kFile)), S_OK) << "the file is free again";

        manager = OpenManager(screen, host);
        screen.Press(manager, IDC_MANAGER_OPEN);
        screen.Picture(screen.WaitForWindow(L"Open Recovery File"), L"18-open");
        screen.GiveFile(L"Open Recovery File", FileIn(kFile));
        manager = screen.WaitForWindow(L"Recovery Scenario Manager - scenarios.trs");
        screen.Choose(manager, IDC_MANAGER_LIST, L"Error message");
        RenameScenario(screen, manager);
        screen.Press(manager, IDCANCEL);
        EXPECT_EQ(screen.AnswerBox(IDYES), L"Do you want to save changes before closing?");
        screen.WaitUntilClosed(manager);
        EXPECT_EQ(NamesInFile(FileIn(kFile)), Rows{L"Error or warning"});
        screen.Picture(host, L"19-host-journal");
    });
}

}  // namespace
}  // namespace recoveryui::tour

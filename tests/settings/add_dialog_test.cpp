// The Add Recovery Scenario dialog as its user meets it.
#include <windows.h>

#include <commctrl.h>

#include "com/SafeArray.h"
#include "settings/SettingsTest.h"
#include "support/HelpTopics.h"

namespace recoveryui::test {
namespace {

class AddDialogTest : public SettingsTest {
protected:
    static constexpr int kList = IDC_ADD_SCENARIO_LIST, kFile = IDC_ADD_SCENARIO_FILE;
    AddDialogTest() { rack_.GiveTo(dialog_.Get()); }

    HRESULT Run(const Story& story) {
        return Use(
            L"Add Recovery Scenario", [&] { return dialog_->DoModal(); }, story);
    }
    // "file: name, name", as the caller of the dialog finds it.
    std::wstring Result() {
        com::Bstr file;
        com::Variant names;
        EXPECT_EQ(dialog_->get_FilePath(file.Put()), S_OK);
        EXPECT_EQ(dialog_->get_ScenariosNames(names.Put()), S_OK);
        EXPECT_EQ(names.Type(), VT_ARRAY | VT_BSTR);
        const com::CVtlSafeArray<BSTR> array(names.Detach().parray);
        EXPECT_EQ(array.LowerBound(), 0);
        std::wstring text = file.Text() + L":";
        EXPECT_EQ(array.ForEach([&](const com::Bstr& each) {
            text += (text.back() == L':' ? L" " : L", ") + each.Text();
        }),
                  S_OK);
        return text;
    }

    com::Ptr<IRecoveryAddDlg> dialog_ = New<IRecoveryAddDlg>(L"Vantrel.RecoveryAddDlg");
};

TEST_F(AddDialogTest, ThreeRowsAreGivenInTheOrderOfTheSortedList) {
    constexpr auto kTopic = support::topics::kAddScenario;
    const std::wstring file = MakePopUps(L"f.trs", {L"delta", L"Charlie", L"alpha", L"Bravo", L"echo"});
    EXPECT_EQ(Run([&](UserScreen& screen, HWND dialog) {
                  EXPECT_FALSE(screen.IsEnabled(dialog, IDOK));
                  EXPECT_EQ(screen.Tip(dialog, IDC_ADD_SCENARIO_BROWSE), L"Browse");
                  screen.Press(dialog, IDHELP);
                  screen.RealKeys({VK_F1});
                  EXPECT_EQ(help_->Take(), kTopic + std::wstring(L" ") + kTopic);
                  EnterFile(screen, dialog, L"f.trs");  // found in the test's folder
                  EXPECT_EQ(screen.RowsOf(dialog, kList),
                            (Rows{L"alpha", L"Bravo", L"Charlie", L"delta", L"echo"}));
                  EXPECT_EQ(screen.Chosen(dialog, kList), Rows{L"alpha"});
                  EXPECT_EQ(screen.FocusId(), kList);
                  screen.RealKeys({VK_CONTROL, 'A'});
                  EXPECT_EQ(screen.Chosen(dialog, kList), screen.RowsOf(dialog, kList));
                  screen.Do([=] { ListView_SetItemState(GetDlgItem(dialog, kList), -1, 0, LVIS_SELECTED); });
                  screen.Press(dialog, IDOK);  // nothing is selected: nothing happens
                  SelectNames(screen, dialog, {L"echo", L"Bravo", L"delta"});
                  screen.Press(dialog, IDOK);
              }),
              S_OK);
    EXPECT_EQ(Result(), L"f.trs: Bravo, delta, echo");
    EXPECT_EQ(Run([&](UserScreen& screen, HWND dialog) {
                  EnterFile(screen, dialog, file);
                  screen.DoubleClick(dialog, kList, L"Charlie");
              }),
              S_OK);
    EXPECT_EQ(Run([](UserScreen&, HWND) {}), S_FALSE);
    EXPECT_EQ(Result(), file + L": Charlie");
}

TEST_F(AddDialogTest, AFileThatCannotBeOpenedLeavesTheListAndTakesTheButton) {
    MakePopUps(L"f.trs", {L"A"});
    MakePopUps(L"empty.trs", {});
    const HRESULT result = Run([&](UserScreen& screen, HWND dialog) {
        const auto focus = [&](int control) {
            screen.Focus(dialog, control);
            return screen.RowsOf(dialog, kList);
        };
        EnterFile(screen, dialog, L"");
        EnterFile(screen, dialog, L"f.trs");
        EXPECT_TRUE(screen.IsEnabled(dialog, IDOK));
        EnterFile(screen, dialog, L"C:\\no\\such.trs");
        EXPECT_EQ(screen.BoxLook(), L"warning: [OK]");
        EXPECT_EQ(screen.AnswerBox(IDOK), L"C:\\no\\such.trs\nFilename or path not found.");
        EXPECT_EQ(screen.RowsOf(dialog, kList), Rows{L"A"});
        EXPECT_FALSE(screen.IsEnabled(dialog, IDOK));
        EnterFile(screen, dialog, L"f.trs");
        EnterFile(screen, dialog, L"empty.trs");
        EXPECT_EQ(screen.RowsOf(dialog, kList), Rows{});
        EXPECT_FALSE(screen.IsEnabled(dialog, IDOK));
        // Going on to the list means the file that was typed.
        screen.Enter(dialog, kEditOfCombo, L"f.trs");
        EXPECT_EQ(focus(kList), Rows{L"A"});
        // So does the Tab key, and the list after a look at the button between.
        screen.Enter(dialog, kEditOfCombo, L"empty.trs");
        screen.RealKeys({VK_TAB});
        EXPECT_EQ(screen.RowsOf(dialog, kList), Rows{});
        screen.Enter(dialog, kEditOfCombo, L"f.trs");
        EXPECT_EQ(focus(IDC_ADD_SCENARIO_BROWSE), Rows{});
        EXPECT_EQ(focus(kList), Rows{L"A"});
        // Cancelling does not.
        screen.Enter(dialog, kEditOfCombo, L"nowhere.trs");
        focus(IDCANCEL);
    });
    EXPECT_EQ(result, S_FALSE);
    EXPECT_EQ(Result(), L":");
}

TEST_F(AddDialogTest, ACancelledDialogRemembersFourFilesOfWhichOneWasBrowsedFor) {
    const auto host = New<IHostApplicationControl>(L"Tovarin.HostApplication");
    host->SetHostMode(VARIANT_TRUE);
    rack_.Put(L"HostApplication", host.Get());
    Rows files;
    for (const wchar_t* name : {L"1.trs", L"2.trs", L"3.trs", L"4.trs", L"5.trs"})
        files.push_back(MakePopUps(name, {name}));
    Run([&](UserScreen& screen, HWND dialog) {
        EXPECT_EQ(screen.RowsOf(dialog, kFile), Rows{});
        for (int typed = 0; typed < 4; ++typed) EnterFile(screen, dialog, files[typed]);
        screen.Press(dialog, IDC_ADD_SCENARIO_BROWSE);
        screen.LeaveFileDialog(L"Open Recovery File", IDCANCEL);
        screen.Press(dialog, IDC_ADD_SCENARIO_BROWSE);
        screen.GiveFile(L"Open Recovery File", files[4]);
        screen.WaitUntil("the file is open", [&] { return screen.Text(dialog, kFile) == files[4]; });
        EXPECT_EQ(screen.RowsOf(dialog, kList), Rows{L"5.trs"});
    });
    for (const wchar_t* given : {L"FileFilter(\"Scenario Files (*.trs)|*.trs|All Files (*.*)|*.*||\")",
                                 L"ShowFileSystemButton(true)"})
        EXPECT_NE(Calls().find(given), std::wstring::npos) << Utf8(Calls());
    Run([&](UserScreen& screen, HWND dialog) {
        EXPECT_EQ(screen.RowsOf(dialog, kFile), (Rows{files[4], files[3], files[2], files[1]}));
        screen.Choose(dialog, kFile, files[2]);
        EXPECT_EQ(screen.RowsOf(dialog, kList), Rows{L"3.trs"});
        EXPECT_EQ(screen.Text(dialog, kFile), files[2]);
        EXPECT_EQ(screen.RowsOf(dialog, kFile), (Rows{files[2], files[4], files[3], files[1]}));
    });
}

TEST_F(AddDialogTest, NeedsARackAndWorksWithAnEmptyOne) {
    EXPECT_EQ(New<IRecoveryDlg>(L"Vantrel.RecoveryAddDlg")->DoModal(), E_FAIL);
    EXPECT_EQ(dialog_->get_FilePath(nullptr), E_POINTER);
    EXPECT_EQ(dialog_->get_ScenariosNames(nullptr), E_POINTER);
    const std::wstring file = MakePopUps(L"f.trs", {L"A"});
    Rack().GiveTo(dialog_.Get());
    EXPECT_EQ(Run([&](UserScreen& screen, HWND dialog) {
                  for (int twice = 0; twice < 2; ++twice) EnterFile(screen, dialog, file);
                  EXPECT_EQ(screen.RowsOf(dialog, kFile), Rows{file});
                  screen.Press(dialog, IDOK);
              }),
              S_OK);
    EXPECT_EQ(Result(), file + L": A");
}

}  // namespace
}  // namespace recoveryui::test

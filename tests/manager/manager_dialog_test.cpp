// A tester's afternoon in the Recovery Scenario Manager.
#include <windows.h>

#include <shlobj.h>

#include "manager/ManagerTest.h"
#include "support/HelpTopics.h"

namespace recoveryui::test {
namespace {

namespace topics = support::topics;

constexpr wchar_t kReplaceQuestion[] =
    L"A scenario by this name already exists in this test.\nDo you want to replace it?";

TEST_F(ManagerTest, AFileIsOpenedAScenarioTakenToAnotherFileAndBothAreFoundAgain) {
    EXPECT_EQ(New<IRecoveryDlg>(L"Vantrel.RecoveryDlg")->DoModal(), E_FAIL) << "no rack";
    const std::wstring first = MakePopUps(L"first.trs", {L"Popup", L"Crash", L"Error"});
    const std::wstring second = Path(L"second.trs");
    settings_.Store(L"RecoveryManagerMRU",
                    com::Variant(L"C:\\a.trs;C:\\b.trs;C:\\a.trs;;C:\\R&D.trs;C:\\d.trs;C:\\e.trs"), true);
    Manage([&](UserScreen& screen, HWND manager) {
        EXPECT_EQ(screen.Text(manager, IDC_MANAGER_FILE), L"<Untitled>");
        EXPECT_EQ(Toolbar(screen, manager), L"Nepcvd");
        EXPECT_EQ(screen.FocusId(), IDC_MANAGER_LIST);
        screen.Picture(manager, L"manager-untitled");

        OpenFile(screen, manager, first);
        EXPECT_EQ(TextOf(manager), L"Recovery Scenario Manager - first.trs");
        EXPECT_EQ(Names(screen, manager), (Rows{L"Popup", L"Crash", L"Error"}));
        EXPECT_EQ(Toolbar(screen, manager), L"Nepcvd") << "no row is selected";
        screen.Choose(manager, IDC_MANAGER_LIST, L"Crash");
        EXPECT_EQ(screen.Text(manager, IDC_MANAGER_DESCRIPTION), L"About Crash.");
        EXPECT_EQ(Toolbar(screen, manager), L"NEPCvD");
        screen.Press(manager, IDC_MANAGER_COPY);
        EXPECT_EQ(Toolbar(screen, manager), L"NEPCVD");

        screen.Press(manager, IDC_MANAGER_NEW);
        EXPECT_EQ(Names(screen, manager), Rows{});
        EXPECT_EQ(screen.Text(manager, IDC_MANAGER_DESCRIPTION), L"");
        EXPECT_EQ(Toolbar(screen, manager), L"NepcVd");
        screen.Press(manager, IDC_MANAGER_PASTE);
        EXPECT_EQ(Chosen(screen, manager), L"Crash");
        SaveAs(screen, manager, Path(L"second"));
        WaitForFile(screen, manager, second);
        EXPECT_EQ(TextOf(manager), L"Recovery Scenario Manager - second.trs");
        // The name would be completed to that of another file.
        SaveAs(screen, manager, Path(L"first"));
        EXPECT_EQ(screen.AnswerBox(IDNO, L"Save Recovery File"),
                  first + L"\nThis file already exists.\nDo you want to replace it?");
        screen.LeaveFileDialog(L"Save Recovery File", IDCANCEL);

        DropMenu(screen, manager, IDC_MANAGER_OPEN);
        EXPECT_EQ(screen.MenuItems(), (Rows{L"Open", L"-", second, first, L"C:\\a.trs", L"C:\\b.trs"}));
        screen.ChooseMenu(first);
        EXPECT_EQ(screen.Text(manager, IDC_MANAGER_FILE), first);
    });
    EXPECT_EQ(NamesInFile(second), Rows{L"Crash"});
    EXPECT_EQ(settings_.Stored(L"RecoveryManagerMRU"), first + L";" + second + L";C:\\a.trs;C:\\b.trs");
    EXPECT_EQ(settings_.Stored(L"RecoveryScenarios"), L"-") << "no scenario was to be added to a test";
}

TEST_F(ManagerTest, DeletingSelectsTheRowThatTookThePlaceAndTheWindowGrows) {
    const std::wstring file = MakePopUps(L"three.trs", {L"one", L"two", L"three"});
    Manage([&](UserScreen& screen, HWND manager) {
        OpenFile(screen, manager, file);
        screen.Choose(manager, IDC_MANAGER_LIST, L"two");
        for (const wchar_t* selected : {L"three", L"one", L""}) {
            screen.Press(manager, IDC_MANAGER_DELETE);
            EXPECT_EQ(Chosen(screen, manager), selected);
        }
        EXPECT_EQ(Toolbar(screen, manager), L"Nepcvd");
        screen.Press(manager, IDC_MANAGER_SAVE);
        ForgetCalls();
        screen.Press(manager, IDC_MANAGER_SAVE);
        EXPECT_EQ(Calls(), L"") << "an unchanged file is not written";

        const RECT start = PlaceOf(manager);
        for (const int change : {300, -300}) {
            SetWindowPos(manager, nullptr, 0, 0, start.right - start.left + change,
                         start.bottom - start.top + change, SWP_NOMOVE | SWP_NOZORDER);
            const RECT now = PlaceOf(manager), help = PlaceOf(GetDlgItem(manager, IDHELP));
            EXPECT_EQ(now.right - start.right, std::max(0, change)) << "it grows, but does not shrink";
            EXPECT_EQ(help.right, PlaceOf(GetDlgItem(manager, IDC_MANAGER_LIST)).right);
            EXPECT_LT(now.bottom - help.bottom, 30);
        }
    });
    EXPECT_EQ(NamesInFile(file), Rows{});
}

TEST_F(ManagerTest, ALockedFileCanOnlyBeLookedAt) {
    const std::wstring file = MakePopUps(L"locked.trs", {L"one", L"two"});
    const auto other = New<IRecoveryRepository>(L"Vantrel.RecoveryRepository");
    EXPECT_EQ(other->Load(com::Bstr(file).Get(), VARIANT_FALSE), S_OK);
    Manage([&](UserScreen& screen, HWND manager) {
        OpenFile(screen, manager, MakePopUps(L"free.trs", {L"free"}));
        screen.Choose(manager, IDC_MANAGER_LIST, L"free");
        screen.Press(manager, IDC_MANAGER_COPY);
        for (const HRESULT otherwise : {STG_E_ACCESSDENIED, STG_E_LOCKVIOLATION, S_OK}) {
            if (otherwise) FailCall(L"RecoveryRepository", L"Load", otherwise, 2);
            screen.Press(manager, IDC_MANAGER_OPEN);
            screen.GiveFile(L"Open Recovery File", file);
            EXPECT_EQ(screen.AnswerBox(IDOK),
                      L"The recovery file you selected is read-only. You cannot make any "
                      L"modifications to the file and can only view its properties.");
        }
        EXPECT_EQ(Toolbar(screen, manager), L"nepcvd");
        screen.Choose(manager, IDC_MANAGER_LIST, L"two");
        EXPECT_EQ(Toolbar(screen, manager), L"nePcvd");
        EXPECT_EQ(screen.Text(manager, IDC_MANAGER_DESCRIPTION), L"About two.");
        for (const WORD key : {WORD{VK_DELETE}, WORD{VK_F2}}) screen.Keys({key});

        SaveAs(screen, manager, Path(L"copy"));
        WaitForFile(screen, manager, Path(L"copy.trs"));
        EXPECT_EQ(Toolbar(screen, manager), L"nePcvd") << "a copy stays what it was";
        screen.Focus(manager, IDC_MANAGER_NEW);
        screen.Keys({VK_RETURN});
        EXPECT_EQ(Toolbar(screen, manager), L"NepcVd");
    });
    EXPECT_EQ(NamesInFile(Path(L"copy.trs")), (Rows{L"one", L"two"}));
}

TEST_F(ManagerTest, PastingOverAnExistingNameAsksFirst) {
    const std::wstring file = MakePopUps(L"work.trs", {L"one", L"two"});
    Manage([&](UserScreen& screen, HWND manager) {
        OpenFile(screen, manager, file);
        screen.Choose(manager, IDC_MANAGER_LIST, L"one");
        screen.Keys({VK_END});
        screen.RealKeys({VK_CONTROL, 'C'});
        screen.RealKeys({VK_CONTROL, 'V'});
        EXPECT_EQ(screen.BoxLook(), L"question: Yes [No]");
        EXPECT_EQ(screen.AnswerBox(IDNO), kReplaceQuestion);
        screen.Choose(manager, IDC_MANAGER_LIST, L"one");
        screen.RealKeys({VK_CONTROL, 'V'});
        screen.Keys({VK_RETURN});  // the default is No
        EXPECT_EQ(Chosen(screen, manager), L"one");
        screen.Press(manager, IDC_MANAGER_PASTE);
        EXPECT_EQ(screen.AnswerBox(IDYES), kReplaceQuestion);
        EXPECT_EQ(Chosen(screen, manager), L"two");
        EXPECT_EQ(screen.FocusId(), IDC_MANAGER_LIST);
        EXPECT_EQ(Names(screen, manager), (Rows{L"one", L"two"}));
        screen.Press(manager, IDCANCEL);
        EXPECT_EQ(screen.BoxLook(), L"question: [Yes] No Cancel");
        EXPECT_EQ(screen.AnswerBox(IDYES), kSaveQuestion);
        screen.WaitUntilClosed(manager);
    });
}

TEST_F(ManagerTest, AScenarioIsMadeRenamedTwiceAndAddedToTheTestUnderItsLastName) {
    const std::wstring file = MakePopUps(L"work.trs", {L"one", L"two"});
    settings_.Store(L"RecoveryScenarios", com::Variant(L"C:\\x.trs;Other;1;1*"));
    Manage([&](UserScreen& screen, HWND manager) {
        const auto openWizard = [&] {
            const HWND wizard = screen.WaitForWindow(L"Recovery Scenario Wizard");
            EXPECT_EQ(Suspensions(), 1);
            return wizard;
        };
        const auto leaveWizard = [&](HWND wizard, int button) {
            screen.Press(wizard, button);
            screen.WaitUntilClosed(wizard);
            EXPECT_EQ(Suspensions(), 0);
        };
        OpenFile(screen, manager, file);
        screen.Choose(manager, IDC_MANAGER_LIST, L"one");
        screen.Press(manager, IDC_MANAGER_EDIT);
        leaveWizard(openWizard(), IDCANCEL);
        EXPECT_EQ(Chosen(screen, manager), L"one");
        EXPECT_EQ(screen.FocusId(), IDC_MANAGER_LIST);

        screen.Press(manager, IDC_MANAGER_NEW_SCENARIO);
        HWND wizard = openWizard();
        for (int page = 0; page < 2; ++page) screen.Next(wizard);
        screen.Enter(wizard, IDC_POPUP_TITLE, L"Error");
        for (int page = 0; page < 4; ++page) screen.Next(wizard);
        WalkThroughWizard(screen, wizard, L"new one");
        for (const int box : {IDC_SUMMARY_ADD_CURRENT, IDC_SUMMARY_ADD_DEFAULT}) screen.Check(wizard, box);
        leaveWizard(wizard, kFinish);
        EXPECT_EQ(Chosen(screen, manager), L"new one");

        for (const wchar_t* name : {L"New One", L"newest"}) {
            screen.Focus(manager, IDC_MANAGER_LIST);
            screen.Keys({VK_RETURN});
            wizard = openWizard();
            WalkThroughWizard(screen, wizard, name);
            leaveWizard(wizard, kFinish);
            EXPECT_EQ(Names(screen, manager), (Rows{L"one", L"two", name}));
            EXPECT_EQ(Chosen(screen, manager), name);
        }
        Leave(screen, manager, IDYES);
    });
    EXPECT_EQ(NamesInFile(file), (Rows{L"one", L"two", L"newest"}));
    EXPECT_EQ(settings_.Stored(L"RecoveryScenarios"), L"C:\\x.trs;Other;1;1*" + file + L";newest;1;1*");
    EXPECT_EQ(settings_.Stored(L"RecoveryDefScenarios"), file + L";newest;1;ffffffff*");
}

TEST_F(ManagerTest, KeysMenusAndDroppedFilesDoWhatTheButtonsDo) {
    const std::wstring file = MakePopUps(L"work.trs", {L"one", L"two"});
    Manage([&](UserScreen& screen, HWND manager) {
        screen.Do([&] {
            const size_t bytes = (file.size() + 2) * sizeof(wchar_t);
            auto* drop = static_cast<DROPFILES*>(GlobalAlloc(GPTR, sizeof(DROPFILES) + bytes));
            *drop = {sizeof(DROPFILES), {}, FALSE, TRUE};
            std::copy(file.begin(), file.end(), reinterpret_cast<wchar_t*>(drop + 1));
            PostMessageW(manager, WM_DROPFILES, reinterpret_cast<WPARAM>(drop), 0);
        });
        WaitForFile(screen, manager, file);
        screen.Press(manager, IDHELP);
        screen.Focus(manager, IDC_MANAGER_LIST);
        screen.RealKeys({VK_F1});
        EXPECT_EQ(help_->Take(), topics::kManager + std::wstring(L" ") + topics::kManager);
        for (const wchar_t* typed : {L"tw", L"#"}) {
            screen.Type(typed);
            EXPECT_EQ(Chosen(screen, manager), L"two") << "no name begins with #";
        }
        screen.RealKeys({VK_MENU, VK_RETURN});
        screen.Press(screen.WaitForWindow(L"Recovery Scenario Properties"), IDCANCEL);

        screen.Do([&] {
            PostMessageW(manager, WM_CONTEXTMENU,
                         reinterpret_cast<WPARAM>(GetDlgItem(manager, IDC_MANAGER_LIST)), -1);
        });
        EXPECT_EQ(screen.MenuItems(),
                  (Rows{L"New Scenario", L"Edit", L"Properties", L"-", L"Copy", L"[Paste]", L"Delete"}));
        screen.ChooseMenu(L"Copy");
        EXPECT_EQ(Toolbar(screen, manager), L"NEPCVD");
        screen.Keys({VK_DELETE});
        EXPECT_EQ(Names(screen, manager), Rows{L"one"});
        screen.Keys({VK_F2});
        screen.Cancel(screen.WaitForWindow(L"Recovery Scenario Wizard"));
        screen.RealKeys({VK_CONTROL, 'S'});
        screen.RealKeys({VK_CONTROL, 'N'});  // saved: nothing is asked
        EXPECT_EQ(screen.Text(manager, IDC_MANAGER_FILE), L"<Untitled>");
        screen.RealKeys({VK_CONTROL, 'O'});
        screen.LeaveFileDialog(L"Open Recovery File", IDCANCEL);
        int control = IDC_MANAGER_NEW;
        for (const wchar_t* tip : {L"New Scenario File", L"Open Scenario File", L"Save Scenario File",
                                   L"New Scenario", L"Edit", L"Properties", L"Copy", L"Paste", L"Delete"})
            EXPECT_EQ(screen.Tip(manager, control++), tip);
        screen.Keys({VK_ESCAPE});
        screen.WaitUntilClosed(manager);
    });
    EXPECT_EQ(NamesInFile(file), Rows{L"one"});
}

}  // namespace
}  // namespace recoveryui::test

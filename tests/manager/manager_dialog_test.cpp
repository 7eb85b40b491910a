// A tester's afternoon in the Recovery Scenario Manager.
#include <windows.h>

#include <commctrl.h>
#include <shlobj.h>

#include <fstream>

#include "manager/ManagerTest.h"

namespace recoveryui::test {
namespace {

constexpr wchar_t kReplaceQuestion[] =
    L"A scenario by this name already exists in this test.\nDo you want to replace it?";

TEST_F(ManagerTest, NeedsAnObjectRack) {
    EXPECT_EQ(New<IRecoveryDlg>(L"Vantrel.RecoveryDlg")->DoModal(), E_FAIL);
}

TEST_F(ManagerTest, AFileIsOpenedAScenarioTakenToAnotherFileAndBothAreFoundAgain) {
    const std::wstring first = MakeFile(L"first.trs", {L"Popup", L"Crash", L"Error"});
    const std::wstring second = Path(L"second");
    (*options_)[L"RecoveryManagerMRU"] = L"C:\\a.trs;C:\\b.trs;C:\\a.trs;;C:\\R&D.trs;C:\\d.trs;C:\\e.trs";
    Manage([&](UserScreen& screen, HWND manager) {
        EXPECT_EQ(screen.Text(manager, IDC_MANAGER_FILE), L"<Untitled>");
        EXPECT_EQ(Toolbar(screen, manager), L"Nepcvd");
        EXPECT_EQ(screen.FocusId(), IDC_MANAGER_LIST);
        screen.Picture(manager, L"manager-untitled");

        OpenFile(screen, manager, first);
        EXPECT_EQ(TextOf(manager), L"Recovery Scenario Manager - first.trs");
        EXPECT_EQ(Names(screen, manager), (Rows{L"Popup", L"Crash", L"Error"}));
        EXPECT_EQ(Chosen(screen, manager), L"");
        EXPECT_EQ(Toolbar(screen, manager), L"Nepcvd");
        screen.Choose(manager, IDC_MANAGER_LIST, L"Crash");
        EXPECT_EQ(screen.Text(manager, IDC_MANAGER_DESCRIPTION), L"About Crash");
        EXPECT_EQ(Toolbar(screen, manager), L"NEPCvD");
        screen.Press(manager, IDC_MANAGER_COPY);
        EXPECT_EQ(Toolbar(screen, manager), L"NEPCVD");
        screen.Picture(manager, L"manager-file");

        screen.Press(manager, IDC_MANAGER_NEW);
        EXPECT_EQ(Names(screen, manager), Rows{});
        EXPECT_EQ(screen.Text(manager, IDC_MANAGER_DESCRIPTION), L"");
        EXPECT_EQ(Toolbar(screen, manager), L"NepcVd");
        screen.Press(manager, IDC_MANAGER_PASTE);
        EXPECT_EQ(Chosen(screen, manager), L"Crash");
        SaveAs(screen, manager, second);
        screen.WaitUntil("the file is saved",
                         [&] { return screen.Text(manager, IDC_MANAGER_FILE) == second + L".trs"; });
        EXPECT_EQ(TextOf(manager), L"Recovery Scenario Manager - second.trs");

        DropMenu(screen, manager, IDC_MANAGER_OPEN);
        EXPECT_EQ(screen.MenuItems(),
                  (Rows{L"Open", L"-", second + L".trs", first, L"C:\\a.trs", L"C:\\b.trs"}));
        screen.ChooseMenu(first);
        EXPECT_EQ(screen.Text(manager, IDC_MANAGER_FILE), first);
        screen.Press(manager, IDCANCEL);
    });
    EXPECT_EQ(NamesIn(second + L".trs"), Rows{L"Crash"});
    EXPECT_EQ((*options_)[L"RecoveryManagerMRU 1 0"], first + L";" + second + L".trs;C:\\a.trs;C:\\b.trs");
    EXPECT_EQ(options_->size(), 2u) << "no scenario was to be added to a test";
}

TEST_F(ManagerTest, DeletingSelectsTheRowThatTookThePlace) {
    const std::wstring file = MakeFile(L"three.trs", {L"one", L"two", L"three"});
    Manage([&](UserScreen& screen, HWND manager) {
        OpenFile(screen, manager, file);
        const struct {
            const wchar_t *deleted, *selected;
        } steps[] = {{L"two", L"three"}, {L"three", L"one"}, {L"one", L""}};
        screen.Choose(manager, IDC_MANAGER_LIST, L"two");
        for (const auto& step : steps) {
            EXPECT_EQ(Chosen(screen, manager), step.deleted);
            screen.Press(manager, IDC_MANAGER_DELETE);
            EXPECT_EQ(Chosen(screen, manager), step.selected);
        }
        EXPECT_EQ(Toolbar(screen, manager), L"Nepcvd");
        screen.Press(manager, IDC_MANAGER_SAVE);
        EXPECT_EQ(TextOf(manager), L"Recovery Scenario Manager - three.trs");
        ForgetCalls();
        screen.Press(manager, IDC_MANAGER_SAVE);
        EXPECT_EQ(Calls(), L"") << "an unchanged file is not written";
        screen.Press(manager, IDCANCEL);
    });
    EXPECT_EQ(NamesIn(file), Rows{});
}

TEST_F(ManagerTest, ALockedFileCanOnlyBeLookedAt) {
    const std::wstring file = MakeFile(L"locked.trs", {L"one", L"two"});
    const auto other = Load(file, false);
    Manage([&](UserScreen& screen, HWND manager) {
        screen.Press(manager, IDC_MANAGER_OPEN);
        ChooseFile(screen, L"Open Recovery File", file);
        EXPECT_EQ(screen.AnswerBox(IDOK),
                  L"The recovery file you selected is read-only. You cannot make any "
                  L"modifications to the file and can only view its properties.");
        EXPECT_EQ(Names(screen, manager), (Rows{L"one", L"two"}));
        EXPECT_EQ(Toolbar(screen, manager), L"nepcvd");
        screen.Choose(manager, IDC_MANAGER_LIST, L"two");
        EXPECT_EQ(Toolbar(screen, manager), L"nePcvd");
        EXPECT_EQ(screen.Text(manager, IDC_MANAGER_DESCRIPTION), L"About two");
        for (const WORD key : {WORD{VK_DELETE}, WORD{VK_F2}}) screen.Keys({key});
        screen.Picture(manager, L"manager-read-only");

        SaveAs(screen, manager, Path(L"copy"));
        screen.WaitUntil("the copy is open",
                         [&] { return screen.Text(manager, IDC_MANAGER_FILE) == Path(L"copy.trs"); });
        EXPECT_EQ(Toolbar(screen, manager), L"nePcvd") << "a copy stays what it was";
        screen.Press(manager, IDC_MANAGER_NEW);
        EXPECT_EQ(Toolbar(screen, manager), L"Nepcvd");
        screen.Press(manager, IDCANCEL);
    });
    EXPECT_EQ(NamesIn(Path(L"copy.trs")), (Rows{L"one", L"two"}));
}

TEST_F(ManagerTest, PastingOverAnExistingNameAsksFirst) {
    const std::wstring file = MakeFile(L"work.trs", {L"one", L"two"});
    Manage([&](UserScreen& screen, HWND manager) {
        OpenFile(screen, manager, file);
        screen.Choose(manager, IDC_MANAGER_LIST, L"one");
        screen.Keys({VK_END});
        screen.RealKeys({VK_CONTROL, 'C'});
        screen.RealKeys({VK_CONTROL, 'V'});
        screen.Picture(screen.WaitForWindow(L"Tovarin"), L"manager-paste-question");
        EXPECT_EQ(screen.BoxLook(), L"question: Yes [No]");
        EXPECT_EQ(screen.AnswerBox(IDNO), kReplaceQuestion);
        screen.Choose(manager, IDC_MANAGER_LIST, L"one");
        screen.Press(manager, IDC_MANAGER_SAVE);
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
    });
}

TEST_F(ManagerTest, AScenarioIsMadeRenamedTwiceAndAddedToTheTestUnderItsLastName) {
    const std::wstring file = MakeFile(L"work.trs", {L"one", L"two"});
    (*options_)[L"RecoveryScenarios"] = L"C:\\x.trs;Other;1;1*";
    const auto recorder = New<IRecordMgrControl>(L"Tovarin.RecordMgr");
    rack_.Put(L"RecordMgr", recorder.Get());
    recorder->SetActive(VARIANT_TRUE);
    const auto suspensions = [&] {
        long count = -1;
        recorder->GetSuspensions(&count);
        return count;
    };
    Manage([&](UserScreen& screen, HWND manager) {
        OpenFile(screen, manager, file);
        screen.Choose(manager, IDC_MANAGER_LIST, L"one");
        screen.Press(manager, IDC_MANAGER_EDIT);
        HWND wizard = screen.WaitForWindow(L"Recovery Scenario Wizard");
        EXPECT_EQ(suspensions(), 1);
        screen.Cancel(wizard);
        screen.WaitUntilClosed(wizard);
        EXPECT_EQ(suspensions(), 0);
        EXPECT_EQ(Chosen(screen, manager), L"one");
        EXPECT_EQ(screen.FocusId(), IDC_MANAGER_LIST);

        screen.Press(manager, IDC_MANAGER_NEW_SCENARIO);
        wizard = screen.WaitForWindow(L"Recovery Scenario Wizard");
        EXPECT_EQ(suspensions(), 1);
        for (int page = 0; page < 2; ++page) screen.Next(wizard);
        screen.Enter(wizard, IDC_POPUP_TITLE, L"Error");
        for (int page = 0; page < 4; ++page) screen.Next(wizard);
        WalkThroughWizard(screen, wizard, L"new one");
        screen.Check(wizard, IDC_SUMMARY_ADD_CURRENT);
        screen.Finish(wizard);
        screen.WaitUntilClosed(wizard);
        EXPECT_EQ(suspensions(), 0);
        EXPECT_EQ(Chosen(screen, manager), L"new one");

        for (const wchar_t* name : {L"New One", L"newest"}) {
            screen.Do([&] { SetFocus(GetDlgItem(manager, IDC_MANAGER_LIST)); });
            screen.Keys({VK_RETURN});
            wizard = screen.WaitForWindow(L"Recovery Scenario Wizard");
            WalkThroughWizard(screen, wizard, name);
            screen.Finish(wizard);
            screen.WaitUntilClosed(wizard);
            EXPECT_EQ(Names(screen, manager), (Rows{L"one", L"two", name}));
            EXPECT_EQ(Chosen(screen, manager), name);
        }
        screen.Press(manager, IDCANCEL);
        EXPECT_EQ(screen.AnswerBox(IDYES), kSaveQuestion);
    });
    EXPECT_EQ(NamesIn(file), (Rows{L"one", L"two", L"newest"}));
    EXPECT_EQ((*options_)[L"RecoveryScenarios 0 1"], L"C:\\x.trs;Other;1;1*" + file + L";newest;1;1*");
    EXPECT_EQ(options_->count(L"RecoveryDefScenarios 1 0"), 0u);
}

TEST_F(ManagerTest, KeysMenusAndDroppedFilesDoWhatTheButtonsDo) {
    const std::wstring file = MakeFile(L"work.trs", {L"one", L"two"});
    Manage([&](UserScreen& screen, HWND manager) {
        screen.Do([&] {
            const size_t bytes = (file.size() + 2) * sizeof(wchar_t);
            auto* drop = static_cast<DROPFILES*>(GlobalAlloc(GPTR, sizeof(DROPFILES) + bytes));
            *drop = {sizeof(DROPFILES), {}, FALSE, TRUE};
            std::copy(file.begin(), file.end(), reinterpret_cast<wchar_t*>(drop + 1));
            PostMessageW(manager, WM_DROPFILES, reinterpret_cast<WPARAM>(drop), 0);
        });
        screen.WaitUntil("the dropped file is open",
                         [&] { return screen.Text(manager, IDC_MANAGER_FILE) == file; });
        screen.Do([&] { SetFocus(GetDlgItem(manager, IDC_MANAGER_LIST)); });
        screen.Type(L"tw");
        EXPECT_EQ(Chosen(screen, manager), L"two");
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
        LeaveFileDialog(screen, screen.WaitForWindow(L"Open Recovery File"), IDCANCEL);
        int control = IDC_MANAGER_NEW;
        for (const wchar_t* tip : {L"New Scenario File", L"Open Scenario File", L"Save Scenario File",
                                   L"New Scenario", L"Edit", L"Properties", L"Copy", L"Paste", L"Delete"})
            EXPECT_EQ(screen.Tip(manager, control++), tip);
        screen.Keys({VK_ESCAPE});
    });
    EXPECT_EQ(NamesIn(file), Rows{L"one"});
}

TEST_F(ManagerTest, AHundredThousandScenariosAreThereAtOnce) {
    constexpr int kCount = 100'000, kSecondsForAll = 40;
    const std::wstring file = Path(L"large.trs");
    {
        std::ofstream text(folder_ / L"large.trs", std::ios::binary);
        text << R"({"formatVersion": 1, "scenarios": [)";
        for (int i = 0; i < kCount; ++i)
            text
                << (i ? "," : "") << R"({"name": "n)" << i
                << R"(", "description": "one of many", "postRecoveryOption": 2, "trigger": null, "operations": []})";
        text << "]}";
    }
    Manage(
        [&](UserScreen& screen, HWND manager) {
            const HWND list = GetDlgItem(manager, IDC_MANAGER_LIST);
            OpenFile(screen, manager, file);
            EXPECT_EQ(ListView_GetItemCount(list), kCount);
            screen.Do([=] { SetFocus(list); });
            screen.Keys({VK_END});
            EXPECT_EQ(ListView_GetNextItem(list, -1, LVNI_SELECTED), kCount - 1);
            // The list forgets the first letters when a busy machine takes a second for the next one.
            for (int tries = 0; tries < 8 && ListView_GetNextItem(list, -1, LVNI_SELECTED) != 77'777; ++tries) {
                if (tries) Sleep(2 * GetDoubleClickTime() + 500);
                screen.Type(L"N77777");
            }
            EXPECT_EQ(ListView_GetNextItem(list, -1, LVNI_SELECTED), 77'777);
            screen.Keys({VK_DELETE});
            EXPECT_EQ(ListView_GetNextItem(list, -1, LVNI_SELECTED), 77'777);
            EXPECT_EQ(screen.Text(manager, IDC_MANAGER_DESCRIPTION), L"one of many");
            screen.Picture(manager, L"manager-large");
            screen.Press(manager, IDC_MANAGER_SAVE);
            screen.Press(manager, IDCANCEL);
        },
        kSecondsForAll);
    const auto saved = Load(file, true);
    for (const auto& [name, kept] : {std::pair(L"n77777", false), {L"n77778", true}, {L"n99999", true}}) {
        VARIANT_BOOL exists = VARIANT_FALSE;
        saved->ScenarioExists(Text(name).Get(), &exists);
        EXPECT_EQ(exists != VARIANT_FALSE, kept) << name;
    }
}

TEST_F(ManagerTest, TheWindowGrowsButDoesNotShrink) {
    Manage([&](UserScreen& screen, HWND manager) {
        RECT start{}, now{}, help{}, list{};
        GetWindowRect(manager, &start);
        for (const int change : {300, -300}) {
            SetWindowPos(manager, nullptr, 0, 0, start.right - start.left + change,
                         start.bottom - start.top + change, SWP_NOMOVE | SWP_NOZORDER);
            GetWindowRect(manager, &now);
            GetWindowRect(GetDlgItem(manager, IDHELP), &help);
            GetWindowRect(GetDlgItem(manager, IDC_MANAGER_LIST), &list);
            EXPECT_EQ(now.right - start.right, std::max(0, change));
            EXPECT_EQ(help.right, list.right);
            EXPECT_LT(now.bottom - help.bottom, 30);
        }
        screen.Press(manager, IDCANCEL);
    });
}

}  // namespace
}  // namespace recoveryui::test

// A tester's afternoon in the Recovery Scenario Manager: two files, a locked one, a damaged one, a full disk.
#include <windows.h>

#include "HostObjects.h"
#include "com/Bstr.h"
#include "com/Create.h"
#include "tour/Tour.h"

namespace recoveryui::tour {
namespace {

constexpr int kManyScenarios = 100'000;

Rows ManyNames() {
    Rows names;
    for (int i = 0; i < kManyScenarios; ++i) names.push_back(L"scenario " + std::to_wstring(i));
    return names;
}

class Afternoon : public Tour {
protected:
    static void Open(UserScreen& screen, HWND manager, const wchar_t* file) {
        screen.Press(manager, IDC_MANAGER_OPEN);
        screen.GiveFile(L"Open Recovery File", FileIn(file));
    }

    Afternoon() {
        WriteText(L"first.trs", RecoveryFileOf({L"Error message", L"Crash"}));
        WriteText(L"second.trs", RecoveryFileOf({L"Error message"}));
        WriteText(L"locked.trs", RecoveryFileOf({L"Somebody else's"}));
        WriteText(L"damaged.trs", RecoveryFileOf({L"Cut off"}).substr(0, 150));
        WriteText(L"many.trs", RecoveryFileOf(ManyNames()));
    }
};

TEST_F(Afternoon, NothingIsLostBetweenFilesRivalsDamageAndAFullDisk) {
    Play(L"afternoon-journal.txt", [](UserScreen& screen, HWND host) {
        const HWND manager = OpenManager(screen, host);

        // Copies from one file to another, over a scenario of the same name.
        Open(screen, manager, L"first.trs");
        screen.Choose(manager, IDC_MANAGER_LIST, L"Error message");
        const HWND list = screen.Control(manager, IDC_MANAGER_LIST);
        screen.Do([list] { PostMessageW(list, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(list), -1); });
        EXPECT_EQ(screen.MenuItems().at(5), L"[Paste]") << "nothing was copied yet";
        screen.Picture(manager, L"26-context-menu");
        screen.ChooseMenu({});
        screen.Press(manager, IDC_MANAGER_COPY);
        Open(screen, manager, L"second.trs");
        screen.Press(manager, IDC_MANAGER_PASTE);
        const HWND question = screen.WaitForWindow(L"Tovarin");
        screen.Picture(question, L"20-replace-question");
        screen.Press(question, IDNO);
        EXPECT_EQ(screen.Text(manager, IDC_MANAGER_DESCRIPTION), L"")
            << "nothing was pasted, nothing is selected";
        screen.Press(manager, IDC_MANAGER_PASTE);
        EXPECT_EQ(screen.AnswerBox(IDYES),
                  L"A scenario by this name already exists in this test.\nDo you want to replace it?");
        EXPECT_EQ(screen.RowsOf(manager, IDC_MANAGER_LIST), Rows{L"Error message"});

        // The disk is full; the change stays, and is saved when there is room again.
        com::Ptr<ICallJournal> journal;
        ASSERT_EQ(com::Create(L"Tovarin.CallJournal", journal), S_OK);
        journal->FailCall(com::Bstr(L"RecoveryRepository").Get(), com::Bstr(L"Save").Get(), 1,
                          STG_E_MEDIUMFULL, 1);
        screen.Press(manager, IDC_MANAGER_SAVE);
        EXPECT_EQ(screen.AnswerBox(IDOK).substr(0, 32), L"There is no disk space remaining");
        journal->ClearFaults();
        screen.Press(manager, IDC_MANAGER_SAVE);
        EXPECT_EQ(NamesInFile(FileIn(L"second.trs")), Rows{L"Error message"});

        // Somebody else edits the file: it can be viewed, nothing more.
        {
            com::Ptr<IRecoveryRepository> rival;
            ASSERT_EQ(com::Create(L"Vantrel.RecoveryRepository", rival), S_OK);
            ASSERT_EQ(rival->Load(com::Bstr(FileIn(L"locked.trs")).Get(), VARIANT_FALSE), S_OK);
            Open(screen, manager, L"locked.trs");
            screen.AnswerBox(IDOK);
            screen.Choose(manager, IDC_MANAGER_LIST, L"Somebody else's");
            EXPECT_FALSE(screen.IsEnabled(manager, IDC_MANAGER_EDIT));
            EXPECT_TRUE(screen.IsEnabled(manager, IDC_MANAGER_PROPERTIES));
            screen.Picture(manager, L"23-read-only-file");
            screen.Press(manager, IDC_MANAGER_PROPERTIES);
            const HWND sheet = screen.WaitForWindow(L"Recovery Scenario Properties");
            screen.Picture(sheet, L"24-properties");
            screen.Press(sheet, IDCANCEL);
        }

        // A damaged file changes nothing.
        Open(screen, manager, L"damaged.trs");
        EXPECT_EQ(screen.Text(manager, IDC_MANAGER_FILE), FileIn(L"locked.trs"));
        EXPECT_EQ(screen.RowsOf(manager, IDC_MANAGER_LIST), Rows{L"Somebody else's"});

        // A hundred thousand scenarios.
        Open(screen, manager, L"many.trs");
        screen.WaitForWindow(L"Recovery Scenario Manager - many.trs");
        screen.Focus(manager, IDC_MANAGER_LIST);
        screen.Keys({VK_END});
        EXPECT_EQ(screen.Text(manager, IDC_MANAGER_DESCRIPTION), L"About scenario 99999.");
        screen.Keys({VK_DELETE});
        EXPECT_EQ(screen.Text(manager, IDC_MANAGER_DESCRIPTION), L"About scenario 99998.");
        screen.Picture(manager, L"25-many-scenarios");
        screen.Press(manager, IDC_MANAGER_SAVE);
        EXPECT_EQ(NamesInFile(FileIn(L"many.trs")).size(), kManyScenarios - 1u);
        screen.Press(manager, IDCANCEL);
        screen.WaitUntilClosed(manager);
        DeleteFileW(FileIn(L"many.trs").c_str());
    });
}

}  // namespace
}  // namespace recoveryui::tour

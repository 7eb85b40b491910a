// A tester's afternoon in the Recovery Scenario Manager: two files, a locked one, a damaged one, a large one.
#include <windows.h>

#include "com/Bstr.h"
#include "com/Create.h"
#include "host/temp_folder.h"
#include "tour/Tour.h"

namespace recoveryui::tour {
namespace {

class Afternoon : public Tour {
protected:
    static void Open(UserScreen& screen, HWND manager, const wchar_t* file) {
        screen.Press(manager, IDC_MANAGER_OPEN);
        screen.GiveFile(L"Open Recovery File", FileIn(file));
    }

    Afternoon() {
        const std::wstring first = MakePopUps(L"first.trs", {L"Error message", L"Crash"});
        MakePopUps(L"second.trs", {L"Error message"});
        MakePopUps(L"locked.trs", {L"Somebody else's"});
        MakeFile(L"damaged.trs", tovarin::TempFolder::Read(first).substr(0, 150));
        Rows many;
        for (int i = 0; i < 100'000; ++i) many.push_back(L"scenario " + std::to_wstring(i));
        MakePopUps(L"many.trs", many);
    }
};

TEST_F(Afternoon, NothingIsLostBetweenFilesRivalsAndDamage) {
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

        // Somebody else edits the file: it can be viewed, nothing more.
        {
            com::Ptr<IRecoveryRepository> rival;
            ASSERT_EQ(com::Create(L"Vantrel.RecoveryRepository", rival), S_OK);
            ASSERT_EQ(rival->Load(com::Bstr(FileIn(L"locked.trs")).Get(), VARIANT_FALSE), S_OK);
            Open(screen, manager, L"locked.trs");
            screen.AnswerBox(IDOK);
            screen.Choose(manager, IDC_MANAGER_LIST, L"Somebody else's");
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
        EXPECT_EQ(NamesInFile(FileIn(L"many.trs")).size(), 99'999u);
        screen.Press(manager, IDCANCEL);
        screen.WaitUntilClosed(manager);
        DeleteFileW(FileIn(L"many.trs").c_str());
    });
}

}  // namespace
}  // namespace recoveryui::tour

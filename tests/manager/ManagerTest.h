// The Manager as a host opens it, with recovery files in a folder of the test's own.
#pragma once

#include "harness/ProductTest.h"

namespace recoveryui::test {

inline constexpr wchar_t kSaveQuestion[] = L"Do you want to save changes before closing?";

class ManagerTest : public ProductTest {
protected:
    ManagerTest() {
        rack_.Put(L"RecordMgr", com::Query<IUnknown>(recorder_.Get()).Get());
        recorder_->SetActive(VARIANT_TRUE);
    }

    // Shows the Manager to a user, who closes it in the end.
    void Manage(const Story& story) {
        const auto manager = New<IRecoveryDlg>(L"Vantrel.RecoveryDlg");
        rack_.GiveTo(manager.Get());
        EXPECT_EQ(Use(
                      L"Recovery Scenario Manager", [&] { return manager->DoModal(); }, story),
                  S_OK);
    }

    // Suspensions of the recording that were not resumed yet.
    long Suspensions() const {
        long count = -1;
        recorder_->GetSuspensions(&count);
        return count;
    }

    // The user's steps.
    static void WaitForFile(UserScreen& screen, HWND manager, const std::wstring& path) {
        screen.WaitUntil("the file is open", [&] { return screen.Text(manager, IDC_MANAGER_FILE) == path; });
    }
    static void OpenFile(UserScreen& screen, HWND manager, const std::wstring& path) {
        screen.Press(manager, IDC_MANAGER_OPEN);
        screen.GiveFile(L"Open Recovery File", path);
        WaitForFile(screen, manager, path);
    }
    static void DropMenu(UserScreen& screen, HWND manager, int button) {
        screen.Focus(manager, button);
        screen.Keys({VK_F4});
    }
    static void SaveAs(UserScreen& screen, HWND manager, const std::wstring& path) {
        DropMenu(screen, manager, IDC_MANAGER_SAVE);
        screen.ChooseMenu(L"Save As");
        screen.GiveFile(L"Save Recovery File", path);
    }
    static Rows Names(UserScreen& screen, HWND manager) { return screen.RowsOf(manager, IDC_MANAGER_LIST); }
    static std::wstring Chosen(UserScreen& screen, HWND manager) {
        const Rows chosen = screen.Chosen(manager, IDC_MANAGER_LIST);
        return chosen.empty() ? L"" : chosen.front();
    }
    // From the welcome page to the end, with another name on the way.
    static void WalkThroughWizard(UserScreen& screen, HWND wizard, const wchar_t* name) {
        while (screen.PageTitle(wizard) != L"Name and Description") {
            if (screen.PageTitle(wizard) == L"Recovery Operations")
                screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER, false);
            screen.Next(wizard);
        }
        screen.Enter(wizard, IDC_SCEN_NAME, name);
        screen.Next(wizard);
    }
    // Closes the Manager, which asks whether to save.
    static void Leave(UserScreen& screen, HWND manager, WORD answer) {
        screen.Press(manager, IDCANCEL);
        EXPECT_EQ(screen.AnswerBox(answer), kSaveQuestion);
        if (answer != IDCANCEL) screen.WaitUntilClosed(manager);
    }
    // New Scenario, Edit, Properties, Copy, Paste, Delete: a capital for each that can be pressed.
    static std::wstring Toolbar(UserScreen& screen, HWND manager) {
        std::wstring states;
        int control = IDC_MANAGER_NEW_SCENARIO;
        for (const wchar_t letter : {L'n', L'e', L'p', L'c', L'v', L'd'})
            states += screen.IsEnabled(manager, control++) ? static_cast<wchar_t>(letter - 0x20) : letter;
        return states;
    }

    com::Ptr<IRecordMgrControl> recorder_ = New<IRecordMgrControl>(L"Tovarin.RecordMgr");
};

}  // namespace recoveryui::test

// What the Manager does when files and host objects fail.
#include "manager/ManagerTest.h"

namespace recoveryui::test {
namespace {

TEST_F(ManagerTest, WhatCannotBeOpenedOrSavedChangesNothing) {
    const std::wstring file = MakePopUps(L"work.trs", {L"one", L"two"}), missing = Path(L"missing.trs");
    settings_.Store(L"RecoveryManagerMRU", com::Variant(missing), true);
    Manage([&](UserScreen& screen, HWND manager) {
        const auto expectUnchanged = [&] {
            EXPECT_EQ(screen.Text(manager, IDC_MANAGER_FILE), file);
            EXPECT_EQ(Names(screen, manager), Rows{L"two"});
            Leave(screen, manager, IDCANCEL);
        };
        OpenFile(screen, manager, file);
        screen.Choose(manager, IDC_MANAGER_LIST, L"one");
        screen.Press(manager, IDC_MANAGER_DELETE);

        DropMenu(screen, manager, IDC_MANAGER_OPEN);
        screen.ChooseMenu(missing);
        EXPECT_EQ(screen.AnswerBox(IDNO), kSaveQuestion);
        EXPECT_EQ(screen.AnswerBox(IDOK), missing + L"\nFilename or path not found.");
        expectUnchanged();

        const struct {
            const wchar_t *object, *operation;
            HRESULT code = E_FAIL;
            long nth = 1;
            bool asksForFile = true, isMissing = false;
        } openFailures[] = {{L"Vantrel.RecoveryRepository", L"Create"},
                            {L"RecoveryRepository", L"SetRack"},
                            {L"RecoveryRepository", L"Load", STG_E_DOCFILECORRUPT},
                            {L"RecoveryRepository", L"Load", STG_E_PATHNOTFOUND, 1, true, true},
                            {L"RecoveryRepository", L"Load", E_FAIL, 2},
                            {L"Vantrel.TovCommonFileDialog", L"Create", E_FAIL, 1, false}};
        for (const auto& failure : openFailures) {
            FailCall(failure.object, failure.operation, failure.code, failure.nth);
            screen.Press(manager, IDC_MANAGER_OPEN);
            screen.AnswerBox(IDNO);
            if (failure.asksForFile) screen.GiveFile(L"Open Recovery File", file);
            if (failure.isMissing) screen.AnswerBox(IDOK);
            expectUnchanged();
            ClearFaults();
        }

        const std::wstring full = L"There is no disk space remaining on drive " + file.substr(0, 2) +
                                  L"\nPlease free some space and try again.";
        const std::pair<HRESULT, std::wstring> saveFailures[] = {
            {STG_E_ACCESSDENIED, L"Failed to save recovery file."},
            {STG_E_MEDIUMFULL, full},
            {HRESULT_FROM_WIN32(ERROR_DISK_FULL), full},
            {HRESULT_FROM_WIN32(ERROR_HANDLE_DISK_FULL), full}};
        for (const auto& [code, text] : saveFailures) {
            FailCall(L"RecoveryRepository", L"Save", code);
            screen.Press(manager, IDCANCEL);
            EXPECT_EQ(screen.AnswerBox(IDYES), kSaveQuestion);
            EXPECT_EQ(screen.AnswerBox(IDOK), text);
            expectUnchanged();
        }
        FailCall(L"RecoveryRepository", L"Save", E_FAIL);
        SaveAs(screen, manager, Path(L"other.trs"));
        EXPECT_EQ(screen.BoxLook(), L"warning: [OK]");
        screen.AnswerBox(IDOK);
        expectUnchanged();

        Leave(screen, manager, IDNO);
    });
    EXPECT_EQ(NamesInFile(file), (Rows{L"one", L"two"}));
}

TEST_F(ManagerTest, FailingHostObjectsLeaveListSelectionAndFileAlone) {
    const std::wstring file = MakePopUps(L"work.trs", {L"one", L"two"});
    const struct {
        const wchar_t *object, *operation;
        int command;
    } cases[] = {
        {L"RecoveryRepository", L"RemoveScenario", IDC_MANAGER_DELETE},
        {L"RecoveryRepository", L"GetScenario", IDC_MANAGER_COPY},
        {L"RecoveryRepository", L"GetScenario", IDC_MANAGER_EDIT},
        {L"RecoveryRepository", L"GetScenario", IDC_MANAGER_PROPERTIES},
        {L"RecoveryRepository", L"ScenarioExists", IDC_MANAGER_PASTE},
        {L"RecoveryRepository", L"Load", IDC_MANAGER_NEW},
        {L"RecordMgr", L"IsActive", IDC_MANAGER_NEW_SCENARIO},
        {L"RecordMgr", L"Suspend", IDC_MANAGER_NEW_SCENARIO},
        {L"RecordMgr", L"Suspend", IDC_MANAGER_EDIT},
        {L"ObjectRack", L"GetObject", IDC_MANAGER_NEW_SCENARIO},
    };
    Manage([&](UserScreen& screen, HWND manager) {
        OpenFile(screen, manager, file);
        screen.Choose(manager, IDC_MANAGER_LIST, L"two");
        screen.Press(manager, IDC_MANAGER_COPY);
        for (const auto& c : cases) {
            FailCall(c.object, c.operation);
            screen.Press(manager, c.command);
            ClearFaults();
            EXPECT_EQ(screen.WaitForWindow(nullptr), manager) << c.command;
            EXPECT_EQ(Chosen(screen, manager), L"two") << c.command;
            EXPECT_EQ(Toolbar(screen, manager), L"NEPCVD") << c.command;
        }
        screen.Press(manager, IDCANCEL);  // nothing was changed
        screen.WaitUntilClosed(manager);
    });
    EXPECT_EQ(Suspensions(), 0);
    FailCall(L"Vantrel.RecoveryRepository", L"Create");
    Manage([&](UserScreen& screen, HWND manager) {
        EXPECT_FALSE(screen.IsEnabled(manager, IDC_MANAGER_SAVE)) << "no repository";
    });
}

TEST_F(ManagerTest, AnEditThatCannotBeStoredLeavesTheOldScenario) {
    const std::wstring file = MakePopUps(L"work.trs", {L"one"});
    rack_.Get()->RemoveObject(com::Bstr(L"RecordMgr").Get());  // an edit does without
    Manage([&](UserScreen& screen, HWND manager) {
        OpenFile(screen, manager, file);
        for (const wchar_t* name : {L"ONE", L"two"}) {
            screen.Choose(manager, IDC_MANAGER_LIST, L"one");
            screen.Press(manager, IDC_MANAGER_EDIT);
            const HWND wizard = screen.WaitForWindow(L"Recovery Scenario Wizard");
            WalkThroughWizard(screen, wizard, name);
            FailCall(L"RecoveryRepository", L"AddScenario");
            screen.Finish(wizard);
            screen.WaitUntilClosed(wizard);
            EXPECT_EQ(Names(screen, manager), Rows{L"one"});
            EXPECT_EQ(screen.Text(manager, IDC_MANAGER_DESCRIPTION), L"About one.");
        }
        screen.Press(manager, IDC_MANAGER_NEW_SCENARIO);  // a new one needs the record manager
        screen.Press(manager, IDCANCEL);                  // nothing was changed
        screen.WaitUntilClosed(manager);
    });
}

}  // namespace
}  // namespace recoveryui::test

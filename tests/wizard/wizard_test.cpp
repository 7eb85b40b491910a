// The wizard from its first page to its last, as a tester walks through it.
#include <windows.h>

#include <commctrl.h>

#include "com/SafeArray.h"
#include "wizard/WizardTest.h"

namespace recoveryui::test {
namespace {

class WizardWalkTest : public WizardTest {
protected:
    // From the welcome page to the list of operations with a pop-up trigger.
    static void GoToOperations(UserScreen& screen, HWND wizard) {
        screen.Next(wizard);
        screen.Next(wizard);
        screen.Enter(wizard, IDC_POPUP_TITLE, L"Error");
        screen.Next(wizard);
    }
    // From a filled list of operations to the last page.
    static void GoToSummary(UserScreen& screen, HWND wizard, const wchar_t* name) {
        screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER, false);
        screen.Next(wizard);
        screen.Next(wizard);
        screen.Enter(wizard, IDC_SCEN_NAME, name);
        screen.Next(wizard);
    }
    static void AddEnter(UserScreen& screen, HWND wizard) {
        AddOperation(screen, wizard, IDC_SELECT_OPERATION_CLICK);
        screen.Next(wizard);
    }

    com::Ptr<IRecoveryScenario> Scenario() const {
        com::Ptr<IUnknown> scenario;
        wizard_->get_Scenario(scenario.GetAddressOf());
        return com::Query<IRecoveryScenario>(scenario.Get());
    }
    std::wstring ScenarioName() const {
        com::Bstr name;
        wizard_->get_ScenarioName(name.Put());
        return name.Text();
    }
};

TEST_F(WizardWalkTest, MakesAScenarioFromAPopUpAndTwoOperations) {
    const HRESULT result = Run([](UserScreen& screen, HWND wizard) {
        EXPECT_EQ(screen.WizardButtons(wizard), L"b N* f");
        screen.Next(wizard);
        EXPECT_EQ(screen.WizardButtons(wizard), L"B N* f");
        EXPECT_TRUE(screen.IsChecked(wizard, IDC_SELECT_TRIGGER_POPUP));
        screen.Next(wizard);

        EXPECT_EQ(screen.WizardButtons(wizard), L"B* n f");
        EXPECT_TRUE(screen.IsChecked(wizard, IDC_POPUP_TITLE_CHECK));
        EXPECT_FALSE(screen.IsEnabled(wizard, IDC_POPUP_TEXT));
        screen.Enter(wizard, IDC_POPUP_TITLE, L" ");
        EXPECT_TRUE(screen.IsEnabled(wizard, 0x3024)) << "blanks count as given";
        screen.Enter(wizard, IDC_POPUP_TITLE, L"Error .*");
        screen.Check(wizard, IDC_POPUP_TITLE_REGEX);
        screen.Check(wizard, IDC_POPUP_TEXT_CHECK);
        EXPECT_FALSE(screen.IsEnabled(wizard, 0x3024)) << "a checked condition without a value";
        screen.Enter(wizard, IDC_POPUP_TEXT, L"two\r\nlines");
        screen.Next(wizard);

        EXPECT_TRUE(screen.IsVisible(wizard, IDC_OPERATION_LIST_NOTE));
        EXPECT_FALSE(screen.IsVisible(wizard, IDC_OPERATION_LIST_ANOTHER));
        AddEnter(screen, wizard);
        AddOperation(screen, wizard, IDC_SELECT_OPERATION_RESTART);
        screen.Next(wizard);
        EXPECT_FALSE(screen.IsVisible(wizard, IDC_SELECT_OPERATION_RESTART)) << "one restart is enough";
        screen.Next(wizard);
        screen.Check(wizard, IDC_CLICK_KEYS);
        screen.Next(wizard);
        EXPECT_EQ(screen.AnswerBox(IDOK), L"You must specify a keyboard combination");
        screen.Do([page = screen.Page(wizard)] {
            SendDlgItemMessageW(page, IDC_CLICK_HOTKEY, HKM_SETHOTKEY,
                                MAKEWORD('D', HOTKEYF_CONTROL | HOTKEYF_ALT), 0);
        });
        screen.Next(wizard);

        screen.Choose(wizard, IDC_OPERATION_LIST_ROWS, L"Keyboard click | Control + Alt + D");
        screen.Press(wizard, IDC_OPERATION_LIST_DOWN);
        screen.Press(wizard, IDC_OPERATION_LIST_UP);
        EXPECT_EQ(screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS),
                  (Rows{L"Keyboard click | Control + Alt + D", L"Keyboard click | Enter",
                        L"Restart Microsoft Windows | "}));
        EXPECT_EQ(screen.FocusId(), IDC_OPERATION_LIST_ROWS);
        screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER, false);
        screen.Next(wizard);

        EXPECT_FALSE(screen.IsVisible(wizard, IDC_TEST_FLOW_FIRST));
        EXPECT_TRUE(screen.IsChecked(wizard, IDC_TEST_FLOW_FIRST + 4));
        screen.Picture(wizard, L"wizard-options-restart");
        screen.Back(wizard);
        screen.Choose(wizard, IDC_OPERATION_LIST_ROWS, L"Restart Microsoft Windows");
        screen.Press(wizard, IDC_OPERATION_LIST_DELETE);
        screen.Next(wizard);
        EXPECT_TRUE(screen.IsVisible(wizard, IDC_TEST_FLOW_FIRST));
        screen.Check(wizard, IDC_TEST_FLOW_FIRST + 1);
        screen.Next(wizard);

        EXPECT_EQ(screen.WizardButtons(wizard), L"B* n f");
        screen.Enter(wizard, IDC_SCEN_NAME, L"Popup");
        screen.Enter(wizard, IDC_SCEN_DESCRIPTION, L"closes the message");
        screen.Next(wizard);
        EXPECT_EQ(screen.WizardButtons(wizard), L"B n F*");
        screen.Check(wizard, IDC_SUMMARY_ADD_CURRENT);
        screen.Finish(wizard);
    });
    EXPECT_EQ(result, S_OK);
    EXPECT_EQ(ScenarioName(), L"Popup");
    VARIANT_BOOL toCurrent = VARIANT_FALSE, toDefault = VARIANT_TRUE;
    wizard_->get_AddToCurrent(&toCurrent);
    wizard_->get_AddToDefault(&toDefault);
    EXPECT_TRUE(toCurrent && !toDefault);

    long option = 0, isRegex = 0;
    com::Ptr<IUnknown> trigger;
    com::Bstr title, text, description;
    const auto scenario = Scenario();
    ASSERT_TRUE(scenario);
    scenario->GetPostRecoveryOption(&option);
    scenario->GetDescription(description.Put());
    scenario->GetTrigger(trigger.GetAddressOf());
    const auto popup = com::Query<IPopUpRecoveryTrigger>(trigger.Get());
    ASSERT_TRUE(popup);
    popup->GetWindowTitle(title.Put(), &isRegex);
    EXPECT_EQ(isRegex, 1);
    popup->GetWindowText(text.Put(), &isRegex);
    EXPECT_EQ(isRegex, 0);
    EXPECT_EQ(option, 2);
    EXPECT_EQ(description.View(), L"closes the message");
    EXPECT_EQ(title.View(), L"Error .*");
    EXPECT_EQ(text.View(), L"two\nlines");

    com::CVtlSafeArray<IUnknown*> operations;
    com::Ptr<IUnknown> first;
    com::CVtlSafeArray<unsigned long> keys;
    scenario->GetOperations(operations.Put());
    ASSERT_EQ(operations.Count(), 2u);
    ASSERT_EQ(operations.GetElement(0, &first), S_OK);
    com::Query<IKeyBoardSimulatorRecoveryAction>(first.Get())->GetKeySequence(keys.Put());
    std::vector<unsigned long> entries(keys.Count());
    for (size_t i = 0; i < entries.size(); ++i) ASSERT_EQ(keys.GetElement(static_cast<LONG>(i), &entries[i]), S_OK);
    EXPECT_EQ(entries, (std::vector<unsigned long>{0x00010011, 0x00010012, 0x00010044, 0x00030012, 0x00030011}));
}

TEST_F(WizardWalkTest, BackWalksTheSameWayAndKeepsWhatWasEntered) {
    const HRESULT result = Run([](UserScreen& screen, HWND wizard) {
        GoToOperations(screen, wizard);
        AddEnter(screen, wizard);
        GoToSummary(screen, wizard, L"Popup");
        for (const wchar_t* title : {L"Name and Description", L"Post-Recovery Test Run Options", L"Recovery Operations",
                                     L"Specify Pop-up Window Conditions", L"Select Trigger Event",
                                     L"Welcome to the Recovery Scenario Wizard"}) {
            screen.Back(wizard);
            EXPECT_EQ(screen.PageTitle(wizard), title);
            if (title == std::wstring_view(L"Name and Description")) {
                EXPECT_EQ(screen.Text(wizard, IDC_SCEN_NAME), L"Popup");
            }
        }
        screen.Keys({VK_ESCAPE});
    });
    EXPECT_EQ(result, S_FALSE);
    EXPECT_FALSE(Scenario());
}

// Each failing call leaves the wizard on its page without a word; the next press succeeds.
TEST_F(WizardWalkTest, StaysOnThePageWhenAHostCallFails) {
    struct Failure {
        const wchar_t* object;
        const wchar_t* operation;
    };
    const auto stayOnce = [this](UserScreen& screen, HWND wizard, WORD button, std::initializer_list<Failure> failures) {
        const std::wstring title = screen.PageTitle(wizard);
        for (const Failure& failure : failures) {
            FailCall(failure.object, failure.operation);
            screen.Press(wizard, button);
            EXPECT_EQ(screen.PageTitle(wizard), title) << failure.operation;
            ClearFaults();
        }
    };
    const HRESULT result = Run([&](UserScreen& screen, HWND wizard) {
        screen.Next(wizard);
        screen.Next(wizard);
        screen.Enter(wizard, IDC_POPUP_TITLE, L"Error");
        stayOnce(screen, wizard, 0x3024, {{L"Vantrel.PopUpRecoveryTrigger", L"Create"},
                                          {L"PopUpRecoveryTrigger", L"SetWindowTitle"},
                                          {L"PopUpRecoveryTrigger", L"SetPopUpOption"}});
        screen.Next(wizard);
        screen.Next(wizard);
        screen.Next(wizard);
        stayOnce(screen, wizard, 0x3024, {{L"Vantrel.KeyBoardSimulatorRecoveryAction", L"Create"},
                                          {L"KeyBoardSimulatorRecoveryAction", L"SetKeySequence"}});
        screen.Next(wizard);
        EXPECT_EQ(screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS).size(), 1u) << "failed attempts add nothing";
        GoToSummary(screen, wizard, L"Popup");
        stayOnce(screen, wizard, 0x3025, {{L"Vantrel.ReplayRecoveryScenario", L"Create"},
                                          {L"RecoveryScenario", L"SetPostRecoveryOption"},
                                          {L"RecoveryScenario", L"SetTrigger"},
                                          {L"RecoveryScenario", L"SetOperations"},
                                          {L"RecoveryScenario", L"SetDescription"}});
        screen.Finish(wizard);
    });
    EXPECT_EQ(result, S_OK);
}

TEST_F(WizardWalkTest, RefusesANameThatTheFileHasAlready) {
    const auto other = New<IRecoveryScenario>(L"Vantrel.ReplayRecoveryScenario");
    ASSERT_EQ(repository_->AddScenario(other.Get(), com::Bstr(L"Popup").Get(), 0), S_OK);
    const HRESULT result = Run([](UserScreen& screen, HWND wizard) {
        GoToOperations(screen, wizard);
        AddEnter(screen, wizard);
        GoToSummary(screen, wizard, L"popup");
        EXPECT_EQ(screen.AnswerBox(IDOK),
                  L"The recovery file already contains a scenario by this name.\nPlease choose a different name.");
        EXPECT_EQ(screen.PageTitle(wizard), L"Name and Description");
        screen.Enter(wizard, IDC_SCEN_NAME, L"Popup 2");
        screen.Next(wizard);
        screen.Finish(wizard);
    });
    EXPECT_EQ(result, S_OK);
}

TEST_F(WizardWalkTest, EditsAScenarioAndShowsItsValues) {
    ASSERT_EQ(Run([](UserScreen& screen, HWND wizard) {
                  GoToOperations(screen, wizard);
                  AddEnter(screen, wizard);
                  GoToSummary(screen, wizard, L"Popup");
                  screen.Finish(wizard);
              }),
              S_OK);
    const auto first = Scenario();
    ASSERT_EQ(repository_->AddScenario(first.Get(), com::Bstr(L"Popup").Get(), 0), S_OK);
    ASSERT_EQ(first->SetPostRecoveryOption(7), S_OK);
    EXPECT_EQ(Run([](UserScreen& screen, HWND wizard) {
                  screen.Next(wizard);
                  EXPECT_TRUE(screen.IsChecked(wizard, IDC_SELECT_TRIGGER_POPUP));
                  screen.Next(wizard);
                  EXPECT_EQ(screen.Text(wizard, IDC_POPUP_TITLE), L"Error");
                  screen.Next(wizard);
                  EXPECT_FALSE(screen.IsChecked(wizard, IDC_OPERATION_LIST_ANOTHER)) << "there is one already";
                  screen.Next(wizard);
                  EXPECT_TRUE(screen.IsChecked(wizard, IDC_TEST_FLOW_FIRST + 4));
                  screen.Next(wizard);
                  EXPECT_EQ(screen.Text(wizard, IDC_SCEN_NAME), L"Popup");
                  screen.Enter(wizard, IDC_SCEN_NAME, L"POPUP");
                  screen.Next(wizard);
                  EXPECT_FALSE(screen.IsVisible(wizard, IDC_SUMMARY_ADD_CURRENT));
                  screen.Finish(wizard);
              }),
              S_OK);
    long option = 0;
    Scenario()->GetPostRecoveryOption(&option);
    EXPECT_EQ(option, 5) << "the restart is not derived from the option";
    EXPECT_NE(Scenario().Get(), first.Get()) << "an edit makes a new object";
    EXPECT_EQ(ScenarioName(), L"POPUP");
}

TEST_F(WizardWalkTest, FailsBeforeShowingAnythingWithoutWhatItNeeds) {
    const auto bare = New<IRecoveryWizard>(L"Vantrel.RecoveryWizard");
    EXPECT_EQ(bare->DoModal(), E_FAIL) << "no rack";
    rack_.GiveTo(bare.Get());
    EXPECT_EQ(bare->DoModal(), E_FAIL) << "no repository";

    const auto scenario = New<IRecoveryScenario>(L"Vantrel.ReplayRecoveryScenario");
    wizard_->put_Scenario(scenario.Get());
    EXPECT_EQ(wizard_->DoModal(), E_FAIL) << "no trigger";
    scenario->SetTrigger(New<IRecoveryTrigger>(L"Vantrel.PopUpRecoveryTrigger").Get());
    FailCall(L"RecoveryScenario", L"GetPostRecoveryOption");
    EXPECT_EQ(wizard_->DoModal(), E_FAIL) << "no option";
    EXPECT_EQ(wizard_->get_Scenario(nullptr), E_POINTER);
}

}  // namespace
}  // namespace recoveryui::test

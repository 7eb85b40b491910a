// The wizard from its first page to its last, as a tester walks through it.
#include <windows.h>

#include <commctrl.h>

#include "wizard/WizardTest.h"

namespace recoveryui::test {
namespace {

class WizardWalkTest : public WizardTest {
protected:
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
    const HRESULT result = Run([&](UserScreen& screen, HWND wizard) {
        EXPECT_EQ(screen.WizardButtons(wizard), L"b N* f");
        screen.Next(wizard);
        EXPECT_EQ(screen.WizardButtons(wizard), L"B N* f");
        screen.Next(wizard);

        EXPECT_EQ(screen.WizardButtons(wizard), L"B n* f");
        EXPECT_TRUE(screen.IsChecked(wizard, IDC_POPUP_TITLE_CHECK));
        EXPECT_FALSE(screen.IsEnabled(wizard, IDC_POPUP_TEXT));
        screen.Enter(wizard, IDC_POPUP_TITLE, L" ");
        EXPECT_TRUE(CanGoOn(screen, wizard)) << "blanks count as given";
        screen.Enter(wizard, IDC_POPUP_TITLE, L"Error .*");
        screen.Check(wizard, IDC_POPUP_TITLE_REGEX);
        screen.Check(wizard, IDC_POPUP_TEXT_CHECK);
        EXPECT_FALSE(CanGoOn(screen, wizard)) << "a checked condition without a value";
        screen.Enter(wizard, IDC_POPUP_TEXT, L"two\r\nlines");
        screen.Next(wizard);

        EXPECT_TRUE(screen.IsVisible(wizard, IDC_OPERATION_LIST_NOTE));
        EXPECT_FALSE(screen.IsVisible(wizard, IDC_OPERATION_LIST_ANOTHER));
        AddOperation(screen, wizard, IDC_SELECT_OPERATION_CLICK);
        screen.Next(wizard);
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
        screen.RealKeys({VK_MENU, VK_UP});
        const Rows moved{L"Keyboard click | Control + Alt + D", L"Keyboard click | Enter",
                         L"Restart Microsoft Windows | "};
        screen.WaitUntil("the row moves up",
                         [&] { return screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS) == moved; });
        EXPECT_EQ(screen.FocusId(), IDC_OPERATION_LIST_ROWS);
        screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER, false);
        screen.Next(wizard);

        EXPECT_FALSE(screen.IsVisible(wizard, IDC_TEST_FLOW_FIRST));
        screen.Picture(wizard, L"wizard-options-restart");
        screen.Back(wizard);
        screen.Choose(wizard, IDC_OPERATION_LIST_ROWS, L"Restart Microsoft Windows");
        screen.RealKeys({VK_DELETE});
        screen.WaitUntil("the row is deleted",
                         [&] { return screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS).size() == 2; });
        screen.Next(wizard);
        screen.Check(wizard, IDC_TEST_FLOW_FIRST + 1);
        screen.Next(wizard);

        EXPECT_EQ(screen.WizardButtons(wizard), L"B n* f");
        screen.Enter(wizard, IDC_SCEN_NAME, L"Popup");
        screen.Enter(wizard, IDC_SCEN_DESCRIPTION, L"closes the message");
        screen.Next(wizard);
        EXPECT_EQ(screen.WizardButtons(wizard), L"B n F*");
        screen.Check(wizard, IDC_SUMMARY_ADD_CURRENT);
        screen.Finish(wizard);
    });
    EXPECT_EQ(result, S_OK);
    EXPECT_TRUE(
        CalledInOrder({L".SetWindowTitle(\"Error .*\", 1)", L".SetWindowText(\"two\\nlines\", 0)",
                       L".SetKeySequence([0x00010011, 0x00010012, 0x00010044, 0x00030012, 0x00030011])",
                       L"SetPostRecoveryOption(2)", L"SetTrigger(PopUpRecoveryTrigger)",
                       L"SetOperations([KeyBoardSimulatorRecoveryAction, KeyBoard",
                       L"SetDescription(\"closes the message\")"}));
    EXPECT_EQ(ScenarioName(), L"Popup");
    VARIANT_BOOL toCurrent = VARIANT_FALSE, toDefault = VARIANT_TRUE;
    wizard_->get_AddToCurrent(&toCurrent);
    wizard_->get_AddToDefault(&toDefault);
    EXPECT_TRUE(toCurrent && !toDefault);
}

// Each failing call leaves the wizard on its page without a word; the next press succeeds.
TEST_F(WizardWalkTest, StaysOnThePageWhenAHostCallFails) {
    using Calls = std::initializer_list<std::pair<const wchar_t*, const wchar_t*>>;
    const auto stayOnce = [this](UserScreen& screen, HWND wizard, WORD button, Calls failures) {
        const std::wstring title = screen.PageTitle(wizard);
        for (const auto& [object, operation] : failures) {
            FailCall(object, operation);
            screen.Press(wizard, button);
            EXPECT_EQ(screen.PageTitle(wizard), title) << operation;
            ClearFaults();
        }
        screen.Press(wizard, button);
    };
    const HRESULT result = Run([&](UserScreen& screen, HWND wizard) {
        NextUntil(screen, wizard, L"Specify Pop-up Window Conditions");
        screen.Enter(wizard, IDC_POPUP_TITLE, L"Error");
        stayOnce(screen, wizard, kNext,
                 {{L"Vantrel.PopUpRecoveryTrigger", L"Create"},
                  {L"PopUpRecoveryTrigger", L"SetWindowTitle"},
                  {L"PopUpRecoveryTrigger", L"SetPopUpOption"}});
        AddOperation(screen, wizard, IDC_SELECT_OPERATION_CLICK);
        stayOnce(screen, wizard, kNext,
                 {{L"Vantrel.KeyBoardSimulatorRecoveryAction", L"Create"},
                  {L"KeyBoardSimulatorRecoveryAction", L"SetKeySequence"}});
        EXPECT_EQ(screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS).size(), 1u) << "failed attempts add nothing";
        screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER, false);
        GoToSummary(screen, wizard, L"Popup");
        stayOnce(screen, wizard, kFinish,
                 {{L"Vantrel.ReplayRecoveryScenario", L"Create"},
                  {L"RecoveryScenario", L"SetPostRecoveryOption"},
                  {L"RecoveryScenario", L"SetTrigger"},
                  {L"RecoveryScenario", L"SetOperations"},
                  {L"RecoveryScenario", L"SetDescription"}});
    });
    EXPECT_EQ(result, S_OK);
}

TEST_F(WizardWalkTest, EditsAScenarioAndShowsItsValues) {
    Edit(PopUp(L"Error").Get());
    wizard_->put_ScenarioName(com::Bstr(L"Popup").Get());
    com::Ptr<IRecoveryScenario> first = Scenario();
    ASSERT_EQ(first->SetPostRecoveryOption(7), S_OK);
    const auto enter = New<IUnknown>(L"Vantrel.KeyBoardSimulatorRecoveryAction");
    ASSERT_EQ(first->SetOperations(ArrayOf<IUnknown*>(std::vector{enter.Get()}).Get()), S_OK);
    const HRESULT result = Run([](UserScreen& screen, HWND wizard) {
        NextUntil(screen, wizard, L"Specify Pop-up Window Conditions");
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
    });
    EXPECT_EQ(result, S_OK);
    EXPECT_TRUE(Called(L"SetPostRecoveryOption(5)")) << "the restart is not derived from the option";
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
    for (const wchar_t* unreadable : {L"GetPostRecoveryOption", L"GetDescription"}) {
        FailCall(L"RecoveryScenario", unreadable);
        EXPECT_EQ(wizard_->DoModal(), E_FAIL) << Utf8(unreadable);
    }
    EXPECT_EQ(wizard_->get_Scenario(nullptr), E_POINTER);
}

}  // namespace
}  // namespace recoveryui::test

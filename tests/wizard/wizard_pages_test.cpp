// The wizard's pages one by one: what they start with, what they refuse, and what hosts can do to them.
#include "hostile/HostileScenario.h"
#include "wizard/WizardTest.h"

namespace recoveryui::test {
namespace {

class WizardPagesTest : public WizardTest {
protected:
    // Of the six options: "-" hidden, "o" offered, "X" chosen.
    static std::wstring Options(UserScreen& screen, HWND wizard) {
        std::wstring options;
        for (int id = IDC_TEST_FLOW_FIRST; id <= IDC_TEST_FLOW_LAST; ++id)
            options += !screen.IsVisible(wizard, id) ? L'-' : screen.IsChecked(wizard, id) ? L'X' : L'o';
        return options;
    }
    // Of title and text: checked, value, "r" for a regular expression; in brackets when disabled.
    static std::wstring Conditions(UserScreen& screen, HWND wizard) {
        std::wstring shown;
        for (const int check : {IDC_POPUP_TITLE_CHECK, IDC_POPUP_TEXT_CHECK}) {
            const std::wstring value =
                screen.Text(wizard, check + 1) + (screen.IsChecked(wizard, check + 2) ? L"~r" : L"~");
            EXPECT_EQ(screen.IsEnabled(wizard, check + 1), screen.IsEnabled(wizard, check + 2));
            shown += screen.IsChecked(wizard, check) ? L"x" : L"-";
            shown += screen.IsEnabled(wizard, check + 1) ? value : L"[" + value + L"]";
        }
        return shown;
    }
};

TEST_F(WizardPagesTest, APopUpTriggerIsShownAsFarAsItCanBeRead) {
    const struct {
        com::Ptr<IPopUpRecoveryTrigger> trigger;
        const wchar_t *failing, *shown;
        bool canGoOn;
    } cases[] = {
        {PopUp(L"", 1, L"", 1), nullptr, L"-[~]-[~]", false},
        {PopUp(L"", 1, L"a\nb\r\nc", 2), nullptr, L"-[~]xa\r\nb\r\r\nc~r", true},
        {PopUp(L"Error", 2), nullptr, L"xError~r-[~]", true},
        {PopUp(L"Error", 0, L"text"), L"GetWindowText", L"xError~-[~]", true},
        {PopUp(L"Error", 0, L"text"), L"GetWindowTitle", L"-~-[~]", false},
        {PopUp(L"Error", 0, L"text"), L"GetTriggerKind", L"-~-[~]", false},
    };
    for (const auto& c : cases) {
        Edit(c.trigger.Get());
        Browse([&](UserScreen& screen, HWND wizard) {
            screen.Next(wizard);
            if (c.failing) FailCall(L"PopUpRecoveryTrigger", c.failing);
            screen.Next(wizard);
            EXPECT_EQ(Conditions(screen, wizard), c.shown);
            EXPECT_EQ(CanGoOn(screen, wizard), c.canGoOn) << Utf8(c.shown);
            if (screen.IsEnabled(wizard, IDC_POPUP_TITLE)) {
                screen.Enter(wizard, IDC_POPUP_TITLE, L"typed");
                EXPECT_TRUE(screen.IsEnabled(wizard, IDC_POPUP_TITLE)) << "nobody loses the box he types in";
            }
        });
    }
}

TEST_F(WizardPagesTest, ATriggerThatDoesNotSayWhatItIsChoosesNothing) {
    Edit(PopUp(L"Error").Get());
    Browse([&](UserScreen& screen, HWND wizard) {
        FailCall(L"PopUpRecoveryTrigger", L"GetTriggerKind");
        screen.Next(wizard);
        for (int radio = IDC_SELECT_TRIGGER_POPUP; radio <= IDC_SELECT_TRIGGER_CRASH; ++radio)
            EXPECT_FALSE(screen.IsChecked(wizard, radio));
        screen.Next(wizard);
        EXPECT_EQ(screen.PageTitle(wizard), L"Select Trigger Event");
        screen.Check(wizard, IDC_SELECT_TRIGGER_POPUP);
        NextUntil(screen, wizard, L"Recovery Operations");
        FailCall(L"PopUpRecoveryTrigger", L"GetTriggerKind");
        screen.Back(wizard);
        EXPECT_EQ(screen.PageTitle(wizard), L"Select Trigger Event");
    });
}

TEST_F(WizardPagesTest, EveryErrorIsOfferedExplainedAndKept) {
    const struct {
        const wchar_t *label, *code, *description;  // its end
    } errors[] = {{L"Any error", L"0", L"by a step."},
                  {L"Item in list or menu is not unique", L"-2147220982", L"in the method argument."},
                  {L"Item in list or menu not found", L"-2147220983", L"its name has changed."},
                  {L"More than one object responds to the physical description", L"-2147220989",
                   L"the object specified in the step."},
                  {L"Object is disabled", L"-2147220984", L"is currently disabled."},
                  {L"Object not found", L"-2147220990", L"description for the object."},
                  {L"Object not visible", L"-2147220987", L"visible on the screen."}};
    Browse([&](UserScreen& screen, HWND wizard) {
        const auto expectChosen = [&](const Rows& rows) {
            EXPECT_EQ(screen.Chosen(wizard, IDC_SELECT_ERROR_LIST), rows);
        };
        NextUntil(screen, wizard, L"Select Trigger Event");
        screen.Check(wizard, IDC_SELECT_TRIGGER_ERROR);
        screen.Next(wizard);
        EXPECT_EQ(screen.WizardButtons(wizard), L"B n* f");
        for (const auto& [label, code, description] : errors) {
            screen.Choose(wizard, IDC_SELECT_ERROR_LIST, label);
            EXPECT_TRUE(screen.Text(wizard, IDC_SELECT_ERROR_DESCRIPTION).ends_with(description)) << code;
            screen.Next(wizard);
            EXPECT_TRUE(Called(std::wstring(L"ErrorRecoveryTrigger.SetErrorCode(") + code + L")"));
            screen.Back(wizard);
            expectChosen({label});
        }
        EXPECT_EQ(screen.RowsOf(wizard, IDC_SELECT_ERROR_LIST).size(), std::size(errors));
        FailCall(L"ErrorRecoveryTrigger", L"SetErrorCode");
        screen.Next(wizard);
        EXPECT_EQ(screen.PageTitle(wizard), L"Select Test Run Error");
    });
    const auto trigger = New<IErrorRecoveryTrigger>(L"Vantrel.ErrorRecoveryTrigger");
    for (const auto& [code, chosen] :
         {std::pair{0x80040208u, Rows{L"Object is disabled"}}, std::pair{0x80040299u, Rows{}}}) {
        EXPECT_EQ(trigger->SetErrorCode(static_cast<long>(code)), S_OK);
        Edit(trigger.Get());
        Browse([&, chosen = chosen](UserScreen& screen, HWND wizard) {
            NextUntil(screen, wizard, L"Select Test Run Error");
            EXPECT_EQ(screen.Chosen(wizard, IDC_SELECT_ERROR_LIST), chosen);
            EXPECT_EQ(CanGoOn(screen, wizard), !chosen.empty());
        });
    }
}

TEST_F(WizardPagesTest, ARestartAloneIsAScenarioAndItsSummaryIsWrittenOnce) {
    const wchar_t* const summary =
        L"Trigger Event:\r\n\tPop-up window\r\nRecovery Operations:\r\n"
        L"\tRestart Microsoft Windows\r\nPost-Recovery Test Run Options:\r\n"
        L"\tRestart current test run";
    const auto application = New<IHostApplicationControl>(L"Tovarin.HostApplication");
    application->SetHostMode(VARIANT_TRUE);
    rack_.Put(L"HostApplication", application.Get());
    Run([&](UserScreen& screen, HWND wizard) {
        GoToOperations(screen, wizard);
        screen.Next(wizard);
        screen.Do(
            [&] { SendMessageW(screen.Control(wizard, IDC_SELECT_OPERATION_CLICK), BM_SETCHECK, 0, 0); });
        screen.Next(wizard);
        EXPECT_EQ(screen.PageTitle(wizard), L"Recovery Operation") << "no type is chosen";
        GoToOptions(screen, wizard, IDC_SELECT_OPERATION_RESTART);
        EXPECT_EQ(Options(screen, wizard), L"----Xo");
        FailCall(L"RecoveryRepository", L"ScenarioExists");
        GoToSummary(screen, wizard, L"  ");
        EXPECT_EQ(screen.PageTitle(wizard), L"Name and Description");
        screen.Next(wizard);
        EXPECT_EQ(screen.Text(wizard, IDC_SUMMARY_TEXT), summary);
        EXPECT_TRUE(screen.IsVisible(wizard, IDC_SUMMARY_ADD_CURRENT));
        EXPECT_FALSE(screen.IsVisible(wizard, IDC_SUMMARY_ADD_DEFAULT)) << "the host decides";

        for (int page = 0; page < 3; ++page) screen.Back(wizard);
        screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER);
        screen.Next(wizard);
        EXPECT_FALSE(screen.IsVisible(wizard, IDC_SELECT_OPERATION_RESTART)) << "one is enough";
        screen.Back(wizard);
        screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER, false);
        screen.Choose(wizard, IDC_OPERATION_LIST_ROWS, L"Restart Microsoft Windows");
        screen.RealKeys({VK_DELETE});
        screen.WaitUntil("the row is deleted",
                         [&] { return screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS).empty(); });
        EXPECT_TRUE(screen.IsVisible(wizard, IDC_OPERATION_LIST_NOTE));
        EXPECT_TRUE(screen.IsChecked(wizard, IDC_OPERATION_LIST_ANOTHER));
        screen.Next(wizard);
        EXPECT_TRUE(screen.IsVisible(wizard, IDC_SELECT_OPERATION_RESTART)) << "offered again";
        GoToOptions(screen, wizard, IDC_SELECT_OPERATION_CLICK);
        EXPECT_EQ(Options(screen, wizard), L"ooooXo") << "the choice stays";
        screen.Next(wizard);
        screen.Next(wizard);
        EXPECT_EQ(screen.Text(wizard, IDC_SUMMARY_TEXT), summary) << "the first one stands";
        ForgetCalls();
        screen.Finish(wizard);
    });
    EXPECT_EQ(Calls(),
              L"Vantrel.ReplayRecoveryScenario.Create() -> S_OK\n"
              L"RecoveryScenario.SetPostRecoveryOption(5) -> S_OK\n"
              L"RecoveryScenario.SetTrigger(PopUpRecoveryTrigger) -> S_OK\n"
              L"RecoveryScenario.SetOperations([KeyBoardSimulatorRecoveryAction]) -> S_OK\n"
              L"RecoveryScenario.SetDescription(\"\") -> S_OK\n"
              L"ObjectRack.GetObject(\"RACK_FILE_LOCATOR\", IFileLocator) -> E_FAIL\n");
}

TEST_F(WizardPagesTest, AScenarioThatGetsARestartGivesUpTheOptionThatIsHiddenAndATakenNameIsRefused) {
    const auto other = New<IRecoveryScenario>(L"Vantrel.ReplayRecoveryScenario");
    ASSERT_EQ(repository_->AddScenario(other.Get(), com::Bstr(L"taken").Get(), 0), S_OK);
    Edit(PopUp(L"Error").Get());
    wizard_->put_ScenarioName(com::Bstr(L"Own").Get());
    com::Ptr<IUnknown> edited;
    wizard_->get_Scenario(edited.GetAddressOf());
    ASSERT_EQ(com::Query<IRecoveryScenario>(edited.Get())->SetPostRecoveryOption(7), S_OK);
    Run([&](UserScreen& screen, HWND wizard) {
        NextUntil(screen, wizard, L"Recovery Operations");
        AddOperation(screen, wizard, IDC_SELECT_OPERATION_CLICK);
        screen.Check(wizard, IDC_CLICK_ESCAPE);
        screen.Next(wizard);
        EXPECT_TRUE(Called(L"SetKeySequence([0x0001001B, 0x0003001B])"));
        EXPECT_EQ(screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS), Rows{L"Keyboard click | Esc"});
        screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER, false);
        screen.Next(wizard);
        EXPECT_EQ(Options(screen, wizard), L"ooooXo") << "the restart is not derived from the option";
        screen.Back(wizard);
        screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER);
        GoToOptions(screen, wizard, IDC_SELECT_OPERATION_RESTART);
        EXPECT_EQ(Options(screen, wizard), L"----Xo");
        screen.Check(wizard, IDC_TEST_FLOW_LAST);
        ForgetCalls();
        GoToSummary(screen, wizard, L"OWN");
        EXPECT_FALSE(Called(L"ScenarioExists")) << "its own name needs no check";
        screen.Back(wizard);
        screen.Enter(wizard, IDC_SCEN_NAME, L"TAKEN");
        screen.Next(wizard);
        EXPECT_EQ(screen.AnswerBox(IDOK),
                  L"The recovery file already contains a scenario by this name.\n"
                  L"Please choose a different name.");
        EXPECT_EQ(screen.FocusId(), IDC_SCEN_NAME);
        EXPECT_EQ(screen.Ask(screen.Control(wizard, IDC_SCEN_NAME), EM_GETSEL), MAKELRESULT(0, 5));
        screen.Type(L"Other");
        screen.Next(wizard);
        EXPECT_FALSE(screen.IsVisible(wizard, IDC_SUMMARY_ADD_CURRENT));
        screen.Finish(wizard);
    });
    EXPECT_TRUE(Called(L"SetPostRecoveryOption(8)"));
}

TEST_F(WizardPagesTest, AForeignScenarioIsReadAsFarAsItGoesAndItsUnknownOperationStaysInItsPlace) {
    const auto keys = New<IUnknown>(L"Vantrel.KeyBoardSimulatorRecoveryAction");
    const auto processes = New<IUnknown>(L"Vantrel.ProcessControlRecoveryAction");
    const auto newer = HostileScenario::Make(), scenario = HostileScenario::Make();
    newer->kind = 4;  // an operation that a later host invented
    scenario->option = 9;
    scenario->trigger = PopUp(L"Error").Get();
    scenario->operations = [&](VARTYPE) {
        return ArrayOf<VARIANT>(std::vector{com::Variant(keys.Get()), com::Variant(newer->KeepAlive().Get()),
                                            com::Variant(processes.Get()), com::Variant(),
                                            com::Variant(keys.Get())})
            .Detach();
    };
    wizard_->put_Scenario(scenario->KeepAlive().Get());
    Run([&](UserScreen& screen, HWND wizard) {
        NextUntil(screen, wizard, L"Recovery Operations");
        screen.Choose(wizard, IDC_OPERATION_LIST_ROWS, L"Keyboard click");
        screen.Press(wizard, IDC_OPERATION_LIST_DOWN);
        EXPECT_EQ(screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS), Rows{L"Keyboard click | "});
        screen.Next(wizard);
        EXPECT_EQ(Options(screen, wizard), L"oooooo") << "an option that is none";
        Rows captions;
        for (int id = IDC_TEST_FLOW_FIRST; id <= IDC_TEST_FLOW_LAST; ++id)
            captions.push_back(screen.Text(wizard, id));
        EXPECT_EQ(captions,
                  (Rows{L"Repeat current step and continue", L"Proceed to next step",
                        L"Proceed to next action or component iteration", L"Proceed to next test iteration",
                        L"Restart current test run", L"Stop the test run"}));
        screen.Next(wizard);
        EXPECT_EQ(screen.PageTitle(wizard), L"Post-Recovery Test Run Options");
        screen.Check(wizard, IDC_TEST_FLOW_LAST);
        GoToSummary(screen, wizard, L"Own");
        EXPECT_EQ(screen.Text(wizard, IDC_SUMMARY_TEXT), L"") << "nothing is said rather than half";
        EXPECT_EQ(screen.WizardButtons(wizard), L"B n F*");
        screen.Finish(wizard);
    });
    EXPECT_TRUE(
        Called(L"SetOperations([KeyBoardSimulatorRecoveryAction, object, ProcessControlRecoveryAction])"));
}

// Each failing call leaves the wizard on its page without a word; the next press succeeds.
TEST_F(WizardPagesTest, StaysOnThePageWhenAHostCallFails) {
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

TEST_F(WizardPagesTest, FailsBeforeShowingAnythingWithoutWhatItNeeds) {
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

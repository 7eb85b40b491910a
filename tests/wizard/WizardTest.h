// The wizard in front of its user, with real stand-ins of the host behind it.
#pragma once

#include "harness/ProductTest.h"

namespace recoveryui::test {

class WizardTest : public ProductTest {
protected:
    WizardTest() {
        rack_.GiveTo(wizard_.Get());
        EXPECT_EQ(wizard_->put_Repository(repository_.Get()), S_OK);
    }

    // The wizard is to edit a scenario with this trigger.
    void Edit(IUnknown* trigger) const {
        const auto scenario = New<IRecoveryScenario>(L"Vantrel.ReplayRecoveryScenario");
        EXPECT_EQ(scenario->SetPostRecoveryOption(1), S_OK);
        EXPECT_EQ(scenario->SetTrigger(trigger), S_OK);
        EXPECT_EQ(scenario->SetOperations(ArrayOf<IUnknown*, IUnknown*>({}).Get()), S_OK);
        EXPECT_EQ(wizard_->put_Scenario(scenario.Get()), S_OK);
    }
    static com::Ptr<IPopUpRecoveryTrigger> PopUp(const wchar_t* title, long titleIsRegex = 0,
                                                 const wchar_t* text = L"", long textIsRegex = 0) {
        const auto trigger = New<IPopUpRecoveryTrigger>(L"Vantrel.PopUpRecoveryTrigger");
        EXPECT_EQ(trigger->SetWindowTitle(com::Bstr(title).Get(), titleIsRegex), S_OK);
        EXPECT_EQ(trigger->SetWindowText(com::Bstr(text).Get(), textIsRegex), S_OK);
        return trigger;
    }
    // Runs the wizard, which is cancelled when it is still open in the end; gives what DoModal answers. The
    // story gets the wizard on its first page.
    HRESULT Run(const Story& story) const {
        const auto dialog = com::Query<IRecoveryDlg>(wizard_.Get());
        return Use(
            L"Recovery Scenario Wizard", [&] { return dialog->DoModal(); }, story);
    }
    // The same for a user who does not finish.
    void Browse(const Story& story) const { EXPECT_EQ(Run(story), S_FALSE); }

    // Presses Next on the first page until the page of that title is shown.
    static void NextUntil(UserScreen& screen, HWND wizard, const wchar_t* title) {
        for (int pages = 0; pages < 15 && screen.PageTitle(wizard) != title; ++pages) screen.Next(wizard);
        EXPECT_EQ(screen.PageTitle(wizard), title);
    }
    static bool CanGoOn(UserScreen& screen, HWND wizard) { return screen.IsEnabled(wizard, kNext); }
    // From the list of operations to the page of an operation type.
    static void AddOperation(UserScreen& screen, HWND wizard, int radio) {
        NextUntil(screen, wizard, L"Recovery Operation");
        screen.Check(wizard, radio);
        screen.Next(wizard);
    }
    // From the welcome page to the list of operations with a pop-up trigger.
    static void GoToOperations(UserScreen& screen, HWND wizard) {
        NextUntil(screen, wizard, L"Specify Pop-up Window Conditions");
        screen.Enter(wizard, IDC_POPUP_TITLE, L"Error");
        screen.Next(wizard);
    }
    // From the list of operations, with another one on the way, to the options.
    static void GoToOptions(UserScreen& screen, HWND wizard, int radio) {
        AddOperation(screen, wizard, radio);
        if (radio == IDC_SELECT_OPERATION_CLICK) screen.Next(wizard);
        screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER, false);
        screen.Next(wizard);
    }
    // From the options to the last page.
    static void GoToSummary(UserScreen& screen, HWND wizard, const wchar_t* name) {
        NextUntil(screen, wizard, L"Name and Description");
        screen.Enter(wizard, IDC_SCEN_NAME, name);
        screen.Next(wizard);
    }

    // Whether the stand-ins were called so since the test began.
    testing::AssertionResult Called(const std::wstring& call) { return CalledInOrder({call.c_str()}); }
    // The same, one after the other.
    testing::AssertionResult CalledInOrder(std::initializer_list<const wchar_t*> order) {
        const std::wstring calls = Calls();
        size_t place = 0;
        for (const wchar_t* call : order) {
            place = calls.find(call, place);
            if (place == std::wstring::npos)
                return testing::AssertionFailure() << Utf8(call) << " is not in its place among\n"
                                                   << Utf8(calls);
        }
        return testing::AssertionSuccess();
    }

    const com::Ptr<IRecoveryRepository> repository_ = New<IRecoveryRepository>(L"Vantrel.RecoveryRepository");
    const com::Ptr<IRecoveryWizard> wizard_ = New<IRecoveryWizard>(L"Vantrel.RecoveryWizard");
};

}  // namespace recoveryui::test

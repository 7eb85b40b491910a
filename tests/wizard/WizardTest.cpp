#include "wizard/WizardTest.h"

namespace recoveryui::test {

WizardTest::WizardTest()
    : repository_(New<IRecoveryRepository>(L"Vantrel.RecoveryRepository")),
      wizard_(New<IRecoveryWizard>(L"Vantrel.RecoveryWizard")) {
    rack_.GiveTo(wizard_.Get());
    EXPECT_EQ(wizard_->put_Repository(repository_.Get()), S_OK);
}

void WizardTest::Edit(IUnknown* trigger) {
    const auto scenario = New<IRecoveryScenario>(L"Vantrel.ReplayRecoveryScenario");
    EXPECT_EQ(scenario->SetPostRecoveryOption(1), S_OK);
    EXPECT_EQ(scenario->SetTrigger(trigger), S_OK);
    EXPECT_EQ(scenario->SetOperations(ArrayOf<IUnknown*, IUnknown*>({}).Get()), S_OK);
    EXPECT_EQ(wizard_->put_Scenario(scenario.Get()), S_OK);
}

com::Ptr<IPopUpRecoveryTrigger> WizardTest::PopUp(const wchar_t* title, long titleIsRegex,
                                                  const wchar_t* text, long textIsRegex) {
    const auto trigger = New<IPopUpRecoveryTrigger>(L"Vantrel.PopUpRecoveryTrigger");
    EXPECT_EQ(trigger->SetWindowTitle(com::Bstr(title).Get(), titleIsRegex), S_OK);
    EXPECT_EQ(trigger->SetWindowText(com::Bstr(text).Get(), textIsRegex), S_OK);
    return trigger;
}

HRESULT WizardTest::Run(const Story& story) {
    const auto dialog = com::Query<IRecoveryDlg>(wizard_.Get());
    return Use(
        L"Recovery Scenario Wizard", [&] { return dialog->DoModal(); }, story);
}

void WizardTest::NextUntil(UserScreen& screen, HWND wizard, const wchar_t* title) {
    for (int pages = 0; pages < 15 && screen.PageTitle(wizard) != title; ++pages) screen.Next(wizard);
    EXPECT_EQ(screen.PageTitle(wizard), title);
}

void WizardTest::AddOperation(UserScreen& screen, HWND wizard, int radio) {
    NextUntil(screen, wizard, L"Recovery Operation");
    screen.Check(wizard, radio);
    screen.Next(wizard);
}

void WizardTest::GoToOperations(UserScreen& screen, HWND wizard) {
    NextUntil(screen, wizard, L"Specify Pop-up Window Conditions");
    screen.Enter(wizard, IDC_POPUP_TITLE, L"Error");
    screen.Next(wizard);
}

void WizardTest::GoToOptions(UserScreen& screen, HWND wizard, int radio) {
    AddOperation(screen, wizard, radio);
    if (radio == IDC_SELECT_OPERATION_CLICK) screen.Next(wizard);
    screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER, false);
    screen.Next(wizard);
}

void WizardTest::GoToSummary(UserScreen& screen, HWND wizard, const wchar_t* name) {
    NextUntil(screen, wizard, L"Name and Description");
    screen.Enter(wizard, IDC_SCEN_NAME, name);
    screen.Next(wizard);
}

testing::AssertionResult WizardTest::Called(const std::wstring& call) {
    return CalledInOrder({call.c_str()});
}

testing::AssertionResult WizardTest::CalledInOrder(std::initializer_list<const wchar_t*> order) {
    const std::wstring calls = Calls();
    size_t place = 0;
    for (const wchar_t* call : order) {
        place = calls.find(call, place);
        if (place == std::wstring::npos)
            return testing::AssertionFailure() << Utf8(call) << " is not in its place among\n" << Utf8(calls);
    }
    return testing::AssertionSuccess();
}

}  // namespace recoveryui::test

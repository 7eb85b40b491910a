#include "wizard/WizardTest.h"

#include "com/SafeArray.h"

namespace recoveryui::test {

WizardTest::WizardTest()
    : repository_(New<IRecoveryRepository>(L"Vantrel.RecoveryRepository")),
      wizard_(New<IRecoveryWizard>(L"Vantrel.RecoveryWizard")) {
    rack_.GiveTo(wizard_.Get());
    EXPECT_EQ(wizard_->put_Repository(repository_.Get()), S_OK);
}

void WizardTest::Edit(IUnknown* trigger) {
    const auto scenario = New<IRecoveryScenario>(L"Vantrel.ReplayRecoveryScenario");
    com::CVtlSafeArray<IUnknown*> operations;
    EXPECT_EQ(operations.Create(0), S_OK);
    EXPECT_EQ(scenario->SetPostRecoveryOption(1), S_OK);
    EXPECT_EQ(scenario->SetTrigger(trigger), S_OK);
    EXPECT_EQ(scenario->SetOperations(operations.Get()), S_OK);
    EXPECT_EQ(wizard_->put_Scenario(scenario.Get()), S_OK);
}

HRESULT WizardTest::Run(std::function<void(UserScreen&, HWND)> script) {
    User user([&](UserScreen& screen) { script(screen, screen.WaitForWindow(L"Recovery Scenario Wizard")); });
    return com::Query<IRecoveryDlg>(wizard_.Get())->DoModal();
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

testing::AssertionResult WizardTest::Called(const std::wstring& call) {
    const std::wstring calls = Calls();
    if (calls.find(call) != std::wstring::npos) return testing::AssertionSuccess();
    return testing::AssertionFailure() << Utf8(call) << " is not among\n" << Utf8(calls);
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

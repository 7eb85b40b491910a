// The wizard in front of its user, with real stand-ins of the host behind it.
#pragma once

#include "harness/Arrays.h"
#include "harness/ProductTest.h"

namespace recoveryui::test {

class WizardTest : public ProductTest {
protected:
    WizardTest();

    // The wizard is to edit a scenario with this trigger.
    void Edit(IUnknown* trigger);
    static com::Ptr<IPopUpRecoveryTrigger> PopUp(const wchar_t* title, long titleIsRegex = 0,
                                                 const wchar_t* text = L"", long textIsRegex = 0);
    // Runs the wizard, which is cancelled when it is still open in the end; gives what DoModal answers. The
    // story gets the wizard on its first page.
    HRESULT Run(const Story& story);
    // The same for a user who does not finish.
    void Browse(const Story& story) { EXPECT_EQ(Run(story), S_FALSE); }

    // Presses Next on the first page until the page of that title is shown.
    static void NextUntil(UserScreen& screen, HWND wizard, const wchar_t* title);
    static bool CanGoOn(UserScreen& screen, HWND wizard) { return screen.IsEnabled(wizard, kNext); }
    // From the list of operations to the page of an operation type.
    static void AddOperation(UserScreen& screen, HWND wizard, int radio);
    // From the welcome page to the list of operations with a pop-up trigger.
    static void GoToOperations(UserScreen& screen, HWND wizard);
    // From the list of operations, with another one on the way, to the options.
    static void GoToOptions(UserScreen& screen, HWND wizard, int radio);
    // From the options to the last page.
    static void GoToSummary(UserScreen& screen, HWND wizard, const wchar_t* name);

    // Whether the stand-ins were called so since the test began.
    testing::AssertionResult Called(const std::wstring& call);
    // The same, one after the other.
    testing::AssertionResult CalledInOrder(std::initializer_list<const wchar_t*> order);

    com::Ptr<IRecoveryRepository> repository_;
    com::Ptr<IRecoveryWizard> wizard_;
};

}  // namespace recoveryui::test

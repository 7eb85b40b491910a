// The wizard in front of its user, with real stand-ins of the host behind it.
#pragma once

#include "HostInterfaces.h"
#include "harness/ComTest.h"
#include "harness/ProcessWindows.h"
#include "resources/ids.h"

namespace recoveryui::test {

class WizardTest : public ComTest {
protected:
    WizardTest();

    // The wizard is to edit a scenario with this trigger.
    void Edit(IUnknown* trigger);
    // Runs the wizard; gives what DoModal answers. The script gets the wizard on its first page.
    HRESULT Run(std::function<void(UserScreen&, HWND wizard)> script);
    // The same up to a page: presses Next on the first page until the page of that title is shown.
    static void NextUntil(UserScreen& screen, HWND wizard, const wchar_t* title);
    // From the list of operations to the page of an operation type.
    static void AddOperation(UserScreen& screen, HWND wizard, int radio);
    // Whether the stand-ins were called so since the test began.
    testing::AssertionResult Called(const std::wstring& call);
    // The same, one after the other.
    testing::AssertionResult CalledInOrder(std::initializer_list<const wchar_t*> order);

    Rack rack_;
    com::Ptr<IRecoveryRepository> repository_;
    com::Ptr<IRecoveryWizard> wizard_;
};

}  // namespace recoveryui::test

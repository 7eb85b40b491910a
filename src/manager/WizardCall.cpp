#include "manager/WizardCall.h"

#include "RecoveryUI.h"
#include "com/Bstr.h"
#include "com/Create.h"
#include "shell/Rack.h"

namespace recoveryui::manager {
namespace {

HRESULT Prepare(IRecoveryWizard* wizard, IObjectRack* rack, IUnknown* repository,
                const NamedScenario& edited) {
    HRESULT hr = shell::HandRack(wizard, rack);
    if (SUCCEEDED(hr)) hr = wizard->put_Repository(repository);
    if (FAILED(hr) || !edited.scenario) return hr;
    hr = wizard->put_Scenario(edited.scenario.Get());
    if (SUCCEEDED(hr)) hr = wizard->put_ScenarioName(com::Bstr(edited.name).Get());
    return hr;
}

HRESULT ReadMade(IRecoveryWizard* wizard, NamedScenario& made) {
    com::Bstr name;
    HRESULT hr = wizard->get_Scenario(made.scenario.GetAddressOf());
    if (SUCCEEDED(hr)) hr = wizard->get_ScenarioName(name.Put());
    if (FAILED(hr)) return hr;
    made.name = name.Text();
    return made.scenario ? S_OK : E_FAIL;
}

}  // namespace

HRESULT RunWizard(IObjectRack* rack, IUnknown* repository, const NamedScenario& edited,
                  WizardResult& result) {
    com::Ptr<IRecoveryWizard> wizard;
    HRESULT hr = com::Create(L"Vantrel.RecoveryWizard", wizard);
    if (SUCCEEDED(hr)) hr = Prepare(wizard.Get(), rack, repository, edited);
    if (SUCCEEDED(hr)) hr = wizard->DoModal();
    if (hr != S_OK) return hr;
    hr = ReadMade(wizard.Get(), result.made);
    if (FAILED(hr)) return hr;
    VARIANT_BOOL current = VARIANT_FALSE, defaults = VARIANT_FALSE;
    result.addToCurrent = SUCCEEDED(wizard->get_AddToCurrent(&current)) && current != VARIANT_FALSE;
    result.addToDefault = SUCCEEDED(wizard->get_AddToDefault(&defaults)) && defaults != VARIANT_FALSE;
    return S_OK;
}

HRESULT ShowProperties(IObjectRack* rack, const NamedScenario& shown, const std::wstring& file) {
    com::Ptr<IScenarioProperties> sheet;
    HRESULT hr = com::Create(L"Vantrel.ScenarioProperties", sheet);
    if (SUCCEEDED(hr)) hr = shell::HandRack(sheet.Get(), rack);
    if (FAILED(hr)) return hr;
    return sheet->DoModal(shown.scenario.Get(), com::Bstr(file).Get(), com::Bstr(shown.name).Get());
}

}  // namespace recoveryui::manager

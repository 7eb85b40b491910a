#include "settings/ScenarioProperties.h"

#include "com/Bstr.h"
#include "com/Dual.h"
#include "com/Object.h"
#include "settings/ScenarioPropertiesPS.h"
#include "shell/Rack.h"
#include "ui/ModuleState.h"

namespace recoveryui::settings {
namespace {

class ScenarioProperties final
    : public com::Object<ScenarioProperties, com::Dual<IScenarioProperties>, shell::RackClient> {
public:
    HRESULT STDMETHODCALLTYPE DoModal(IUnknown* object, BSTR file, BSTR name) noexcept override {
        const auto alive = KeepAlive();
        return ui::Enter([&] { return Show(object, com::ViewOf(file), com::ViewOf(name)); });
    }

private:
    HRESULT Show(IUnknown* object, std::wstring_view file, std::wstring_view name) {
        if (!Rack() || !object) return E_FAIL;
        const auto scenario = com::Query<IRecoveryScenario>(object);
        if (!scenario) return E_NOINTERFACE;
        com::Ptr<IUnknown> trigger;
        if (FAILED(scenario->GetTrigger(trigger.GetAddressOf())) || !trigger) return E_FAIL;
        ScenarioPropertiesPS(*scenario.Get(), trigger.Get(), std::wstring(file), std::wstring(name), Rack())
            .Run(ui::ActiveOwner());
        return S_OK;
    }
};

}  // namespace

HRESULT CreateScenarioProperties(REFIID iid, void** object) noexcept {
    return ScenarioProperties::Create(iid, object);
}

}  // namespace recoveryui::settings

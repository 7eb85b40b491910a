#include "wizard/RecoveryWizard.h"

#include "com/Dual.h"
#include "com/Object.h"
#include "shell/Rack.h"
#include "ui/ModuleState.h"
#include "wizard/WizardPS.h"

namespace recoveryui::wizard {
namespace {

class RecoveryWizard final : public com::Object<RecoveryWizard, com::Dual<IRecoveryWizard>,
                                                com::Dual<IRecoveryDlg>, shell::RackClient> {
public:
    HRESULT STDMETHODCALLTYPE get_Scenario(IUnknown** scenario) noexcept override {
        if (!scenario) return E_POINTER;
        return scenario_.CopyTo(scenario);
    }
    HRESULT STDMETHODCALLTYPE put_Scenario(IUnknown* scenario) noexcept override {
        scenario_ = scenario;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_ScenarioName(BSTR* name) noexcept override {
        if (!name) return E_POINTER;
        return com::CopyTo(name, name_);
    }
    HRESULT STDMETHODCALLTYPE put_ScenarioName(BSTR name) noexcept override {
        return com::Guarded([&] { name_ = com::ViewOf(name); });
    }
    HRESULT STDMETHODCALLTYPE get_Repository(IUnknown** repository) noexcept override {
        if (!repository) return E_POINTER;
        return repository_.CopyTo(repository);
    }
    HRESULT STDMETHODCALLTYPE put_Repository(IUnknown* repository) noexcept override {
        repository_ = repository;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_AddToCurrent(VARIANT_BOOL* add) noexcept override {
        if (!add) return E_POINTER;
        *add = addToCurrent_ ? VARIANT_TRUE : VARIANT_FALSE;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_AddToDefault(VARIANT_BOOL* add) noexcept override {
        if (!add) return E_POINTER;
        *add = addToDefault_ ? VARIANT_TRUE : VARIANT_FALSE;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DoModal() noexcept override {
        const auto alive = KeepAlive();
        return ui::Enter([&] { return Run(); });
    }

private:
    HRESULT Run() {
        addToCurrent_ = addToDefault_ = false;
        const auto repository = com::Query<IRecoveryRepository>(repository_.Get());
        if (!Rack() || !repository) return E_FAIL;

        WizardPS sheet;
        WizardState& state = sheet.State();
        state.rack = Rack();
        state.repository = repository;
        if (scenario_) {
            const auto scenario = com::Query<IRecoveryScenario>(scenario_.Get());
            if (!scenario || FAILED(sheet.Load(scenario.Get(), name_))) return E_FAIL;
        }
        if (!sheet.Run(ui::ActiveOwner())) return S_FALSE;

        if (!state.scenario) return E_FAIL;
        scenario_ = state.scenario.Get();
        name_ = std::move(state.name);  // a copy could fail, and leave the new scenario with the old name
        addToCurrent_ = state.addToCurrent;
        addToDefault_ = state.addToDefault;
        return S_OK;
    }

    com::Ptr<IUnknown> scenario_;
    com::Ptr<IUnknown> repository_;
    std::wstring name_;
    bool addToCurrent_ = false;
    bool addToDefault_ = false;
};

}  // namespace

HRESULT CreateRecoveryWizard(REFIID iid, void** object) noexcept {
    return RecoveryWizard::Create(iid, object);
}

}  // namespace recoveryui::wizard

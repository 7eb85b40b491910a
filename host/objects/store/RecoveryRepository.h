// One recovery file and the scenarios in it.
#pragma once

#include "HostInterfaces.h"
#include "HostScripting.h"
#include "com/Dual.h"
#include "objects/HostObject.h"
#include "objects/store/NamedList.h"
#include "objects/store/Storable.h"
#include "objects/store/StoreFile.h"

namespace tovarin {

// Scenarios are shared: what is done to an object that was given in or out is what the next Save writes.
// Names differ by more than letter case. The object may be changed when its file is only read; it can
// then be saved under another path.
class RecoveryRepository final
    : public HostObject<RecoveryRepository, IRecoveryRepository, com::Dual<IScriptRepository>,
                        RackClient<RecoveryRepository>> {
public:
    static constexpr const wchar_t* kName = L"RecoveryRepository";
    static constexpr const wchar_t* kProgId = L"Vantrel.RecoveryRepository";

    RecoveryRepository();

    HRESULT STDMETHODCALLTYPE GetFilePath(BSTR* path) noexcept override;
    // Over the names as they are now.
    HRESULT STDMETHODCALLTYPE GetScenarioEnumerator(IScenarioEnumerator** enumerator) noexcept override;
    HRESULT STDMETHODCALLTYPE GetScenario(BSTR name, IUnknown** scenario) noexcept override;
    HRESULT STDMETHODCALLTYPE Load(BSTR path, VARIANT_BOOL readOnly) noexcept override;
    HRESULT STDMETHODCALLTYPE Save(BSTR path) noexcept override;
    HRESULT STDMETHODCALLTYPE ScenarioExists(BSTR name, VARIANT_BOOL* exists) noexcept override;
    // STG_E_FILEALREADYEXISTS for an existing name that may not be replaced.
    HRESULT STDMETHODCALLTYPE AddScenario(IUnknown* scenario, BSTR name, long replace) noexcept override;
    // E_FAIL when there is none of that name.
    HRESULT STDMETHODCALLTYPE RemoveScenario(BSTR name) noexcept override;
    HRESULT STDMETHODCALLTYPE get_ScenarioNames(VARIANT* names) noexcept override;

private:
    // The object is made when somebody asks for it; from then on it is the truth.
    struct Item {
        store::Scenario content;
        com::Ptr<IUnknown> object;
    };
    using Scenarios = store::NamedList<Item>;

    static Scenarios Empty();
    std::vector<std::wstring> Names();
    [[nodiscard]] HRESULT LoadFile(std::wstring_view path, bool readOnly);

    StoreFile file_;
    Scenarios scenarios_;
};

}  // namespace tovarin

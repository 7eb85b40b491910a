// Collects the objects that name the pages of the test settings.
#pragma once

#include <ocidl.h>

#include <vector>

#include "HostInterfaces.h"
#include "objects/HostObject.h"

namespace tovarin {

class SettingsPages final : public HostObject<SettingsPages, ISettingsPageCollector> {
public:
    static constexpr const wchar_t* kName = L"SettingsPageCollector";

    // The provider answers ISpecifyPropertyPages; E_NOINTERFACE otherwise.
    HRESULT STDMETHODCALLTYPE AddProvider(IUnknown* provider) noexcept override;
    HRESULT STDMETHODCALLTYPE RemoveProvider(IUnknown* provider) noexcept override;

    // The classes of all providers' pages, in the order in which the providers came. A provider that
    // fails has none.
    std::vector<CLSID> Classes() const;

    // Lets go of providers that nobody took out.
    void Forget() noexcept { providers_.clear(); }

private:
    std::vector<com::Ptr<ISpecifyPropertyPages>> providers_;
};

}  // namespace tovarin

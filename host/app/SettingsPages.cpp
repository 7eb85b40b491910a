#include "app/SettingsPages.h"

#include <algorithm>

namespace tovarin {

HRESULT SettingsPages::AddProvider(IUnknown* provider) noexcept {
    return Call(L"AddProvider", provider).Answer([&] {
        if (!provider) return E_INVALIDARG;
        auto pages = com::Query<ISpecifyPropertyPages>(provider);
        if (!pages) return E_NOINTERFACE;
        providers_.push_back(std::move(pages));
        return S_OK;
    });
}

HRESULT SettingsPages::RemoveProvider(IUnknown* provider) noexcept {
    return Call(L"RemoveProvider", provider).Answer([&] {
        const auto identity = com::Query<IUnknown>(provider);
        const auto found = std::find_if(providers_.begin(), providers_.end(), [&](const auto& known) {
            return com::Query<IUnknown>(known.Get()) == identity;
        });
        if (found == providers_.end()) return E_INVALIDARG;
        providers_.erase(found);
        return S_OK;
    });
}

std::vector<CLSID> SettingsPages::Classes() const {
    std::vector<CLSID> classes;
    for (const auto& provider : providers_) {
        CAUUID pages{};
        if (FAILED(provider->GetPages(&pages))) continue;
        classes.insert(classes.end(), pages.pElems, pages.pElems + pages.cElems);
        CoTaskMemFree(pages.pElems);
    }
    return classes;
}

}  // namespace tovarin

// What extensions of the host ask: here, of changed function libraries and of the file locator.
#pragma once

#include "HostInterfaces.h"
#include "objects/HostObject.h"

namespace tovarin {

class PluginMgr final : public HostObject<PluginMgr, IPluginMgr, IPluginMgrControl> {
public:
    static constexpr const wchar_t* kName = L"PluginMgr";
    static constexpr const wchar_t* kProgId = L"Tovarin.PluginMgr";

    // This host keeps no library in memory: the line in the journal is all that a change leaves.
    HRESULT STDMETHODCALLTYPE LibraryChanged(BSTR path) noexcept override {
        return Call(L"LibraryChanged", path).Answer([&] {
            return com::ViewOf(path).empty() ? E_INVALIDARG : S_OK;
        });
    }
    // E_FAIL while the host has given none.
    HRESULT STDMETHODCALLTYPE GetFileLocator(IFileLocator** locator) noexcept override {
        return Call(L"GetFileLocator")
            .Give([&] { return locator_ ? locator_.CopyTo(locator) : E_FAIL; }, locator);
    }
    HRESULT STDMETHODCALLTYPE SetFileLocator(IUnknown* locator) noexcept override {
        locator_ = com::Query<IFileLocator>(locator);
        return locator_ || !locator ? S_OK : E_NOINTERFACE;
    }

private:
    com::Ptr<IFileLocator> locator_;
};

}  // namespace tovarin

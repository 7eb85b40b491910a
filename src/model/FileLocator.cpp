#include "model/FileLocator.h"

#include "shell/Rack.h"

namespace recoveryui::model {
namespace {
constexpr long kLocate = 5;

std::wstring GivenOr(HRESULT hr, const com::Bstr& given, const std::wstring& fallback) {
    return SUCCEEDED(hr) && !given.View().empty() ? given.Text() : fallback;
}
}  // namespace

com::Ptr<IFileLocator> FindLocator(IObjectRack* rack) {
    com::Ptr<IFileLocator> locator;
    if (SUCCEEDED(shell::Fetch(rack, L"RACK_FILE_LOCATOR", locator))) return locator;
    com::Ptr<IPluginMgr> manager;
    if (SUCCEEDED(shell::FetchAnywhere(rack, L"TovPluginMgrObject", manager)))
        manager->GetFileLocator(locator.ReleaseAndGetAddressOf());
    return locator;
}

std::wstring FullPath(IObjectRack* rack, const std::wstring& stored) {
    const auto locator = FindLocator(rack);
    if (!locator || stored.empty()) return stored;
    com::Bstr full;
    const HRESULT hr = locator->Locate(com::Bstr(stored).Get(), kLocate, 0, full.Put());
    return GivenOr(hr, full, stored);
}

std::wstring StoredPath(IObjectRack* rack, const std::wstring& full) {
    const auto locator = FindLocator(rack);
    if (!locator || full.empty()) return full;
    com::Bstr stored;
    const HRESULT hr = locator->MakeRelative(com::Bstr(full).Get(), stored.Put());
    return GivenOr(hr, stored, full);
}

}  // namespace recoveryui::model

#include "shell/TypeLibrary.h"

#include <string>

#include "com/Guard.h"
#include "com/Module.h"
#include "shell/ClassRegistration.h"

namespace recoveryui::shell {
namespace {
constexpr DWORD kRetryDelayMs = 172;
}

TypeLibrary::TypeLibrary() {
    com::Check(LoadTypeLib(com::Module::FileName().c_str(), library_.GetAddressOf()));
    TLIBATTR* attributes = nullptr;
    com::Check(library_->GetLibAttr(&attributes));
    attributes_ = *attributes;
    library_->ReleaseTLibAttr(attributes);
}

HRESULT TypeLibrary::Register() const {
    std::wstring name = BareFileName();
    std::wstring noHelp;
    HRESULT hr = RegisterTypeLib(library_.Get(), name.data(), noHelp.data());
    if (SUCCEEDED(hr)) return hr;
    Sleep(kRetryDelayMs);
    return RegisterTypeLib(library_.Get(), name.data(), noHelp.data());
}

HRESULT TypeLibrary::Unregister() const {
    const HRESULT hr = UnRegisterTypeLib(attributes_.guid, attributes_.wMajorVerNum, attributes_.wMinorVerNum,
                                         attributes_.lcid, attributes_.syskind);
    if (SUCCEEDED(hr)) return hr;
    // The platform loads the registered path first, and a bare name is not always on the search path.
    RemoveInterfaces();
    if (DeleteTree(HKEY_CLASSES_ROOT, VersionKey()) != ERROR_SUCCESS) return hr;
    RegDeleteKeyW(HKEY_CLASSES_ROOT, (L"TypeLib\\" + GuidText(attributes_.guid)).c_str());
    return S_OK;
}

// A 64-bit Windows has the interfaces twice, once for programs of each width.
void TypeLibrary::RemoveInterfaces() const {
    constexpr REGSAM kOtherWidth = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
    const RegistryKey views[] = {OpenKey(HKEY_CLASSES_ROOT, L"Interface"),
                                 OpenKey(HKEY_CLASSES_ROOT, L"Interface", kOtherWidth)};
    for (UINT index = 0; index < library_->GetTypeInfoCount(); ++index) {
        com::Ptr<ITypeInfo> info;
        TYPEATTR* attributes = nullptr;
        if (FAILED(library_->GetTypeInfo(index, info.GetAddressOf())) ||
            FAILED(info->GetTypeAttr(&attributes)))
            continue;
        const bool isInterface =
            attributes->typekind == TKIND_INTERFACE || attributes->typekind == TKIND_DISPATCH;
        for (const RegistryKey& view : views) {
            if (isInterface && view) DeleteTree(view.Get(), GuidText(attributes->guid));
        }
        info->ReleaseTypeAttr(attributes);
    }
}

// The registry's words for version and language are hexadecimal.
std::wstring TypeLibrary::VersionKey() const {
    wchar_t version[16];
    wsprintfW(version, L"\\%x.%x", attributes_.wMajorVerNum, attributes_.wMinorVerNum);
    return L"TypeLib\\" + GuidText(attributes_.guid) + version;
}

RegistryKey TypeLibrary::OpenPlatformKey() const {
    wchar_t platform[32];
    wsprintfW(platform, L"\\%x\\Win32", attributes_.lcid);
    return OpenKey(HKEY_CLASSES_ROOT, VersionKey() + platform);
}

}  // namespace recoveryui::shell

// Turns stored paths into full ones and back.
#pragma once

#include <string>

#include "HostInterfaces.h"
#include "objects/HostObject.h"

namespace tovarin {

class FileLocator final : public HostObject<FileLocator, IFileLocator, IFileLocatorFolders> {
public:
    static constexpr const wchar_t* kName = L"FileLocator";
    static constexpr const wchar_t* kProgId = L"Tovarin.FileLocator";

    FileLocator();

    // A full path comes back as it is, there or not; a relative one only when its file exists
    // (STG_E_FILENOTFOUND). A path of the repository is looked up in the repository folder, and comes
    // back as it is when there is none.
    HRESULT STDMETHODCALLTYPE Locate(BSTR path, long flags, long reserved, BSTR* located) noexcept override;
    // E_INVALIDARG for a file outside the repository.
    HRESULT STDMETHODCALLTYPE HandBack(BSTR located) noexcept override;
    HRESULT STDMETHODCALLTYPE MakeRelative(BSTR full, BSTR* stored) noexcept override;

    HRESULT STDMETHODCALLTYPE SetTestFolder(BSTR folder) noexcept override;
    HRESULT STDMETHODCALLTYPE SetProductFolder(BSTR folder) noexcept override;
    HRESULT STDMETHODCALLTYPE SetRepositoryFolder(BSTR folder) noexcept override;

private:
    std::wstring LocateRelative(std::wstring_view path, long flags) const;

    std::wstring testFolder_;
    std::wstring productFolder_;
    std::wstring repositoryFolder_;
};

}  // namespace tovarin

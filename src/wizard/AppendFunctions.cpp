#include "wizard/AppendFunctions.h"

#include "HostInterfaces.h"
#include "model/FileNames.h"
#include "shell/Rack.h"
#include "support/LibraryAppend.h"
#include "support/RepositoryPath.h"
#include "ui/Strings.h"

namespace recoveryui::wizard {
namespace {

constexpr long kLocateLibrary = 5;

std::string ToCodePage(const std::wstring& text) {
    const int size = static_cast<int>(text.size());
    std::string bytes(static_cast<size_t>(WideCharToMultiByte(CP_ACP, 0, text.data(), size, nullptr, 0, nullptr,
                                                              nullptr)),
                      '\0');
    WideCharToMultiByte(CP_ACP, 0, text.data(), size, bytes.data(), static_cast<int>(bytes.size()), nullptr,
                        nullptr);
    return bytes;
}

// Never creates the file. False when it cannot be opened.
bool Append(const std::wstring& path, const std::string& bytes) {
    const HANDLE file = CreateFileW(model::ExtendedLengthPath(path).c_str(), FILE_APPEND_DATA,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    DWORD written = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(file);
    return true;
}

void Announce(const std::wstring& path, IFileLocator* locator, IObjectRack* rack) {
    const com::Bstr located(path);
    if (support::IsRepositoryPath(path)) {
        locator->HandBack(located.Get());
        return;
    }
    com::Ptr<IPluginMgr> manager;
    if (SUCCEEDED(shell::FetchAnywhere(rack, L"TovPluginMgrObject", manager))) manager->LibraryChanged(located.Get());
}

}  // namespace

void AppendNewFunctions(const NewFunctionList& functions, IObjectRack* rack) {
    com::Ptr<IFileLocator> locator;
    if (FAILED(shell::Fetch(rack, L"RACK_FILE_LOCATOR", locator))) return;
    for (const NewFunction& function : functions.All()) {
        com::Bstr located;
        if (FAILED(locator->Locate(com::Bstr(function.typedPath).Get(), kLocateLibrary, 0, located.Put())) ||
            located.View().empty())
            return;
        if (Append(located.Text(), ToCodePage(support::AppendedText(function.text))))
            Announce(located.Text(), locator.Get(), rack);
    }
}

}  // namespace recoveryui::wizard

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

enum class Outcome { Appended, NotOpened, NotWritten };

// Never creates the file, and leaves it as it was where not everything can be written.
Outcome Append(const std::wstring& path, const std::string& bytes) {
    const HANDLE file = CreateFileW(model::ExtendedLengthPath(path).c_str(), GENERIC_WRITE,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return Outcome::NotOpened;
    LARGE_INTEGER end{};
    const auto size = static_cast<DWORD>(bytes.size());
    DWORD written = 0;
    bool appended = SetFilePointerEx(file, {}, &end, FILE_END) != FALSE;
    if (appended && (!WriteFile(file, bytes.data(), size, &written, nullptr) || written != size)) {
        appended = false;
        if (SetFilePointerEx(file, end, nullptr, FILE_BEGIN)) SetEndOfFile(file);
    }
    CloseHandle(file);
    return appended ? Outcome::Appended : Outcome::NotWritten;
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

std::vector<std::wstring> AppendNewFunctions(const NewFunctionList& functions, IObjectRack* rack) {
    std::vector<std::wstring> notWritten;
    com::Ptr<IFileLocator> locator;
    if (FAILED(shell::Fetch(rack, L"RACK_FILE_LOCATOR", locator))) return notWritten;
    for (const NewFunction& function : functions.All()) {
        com::Bstr located;
        if (FAILED(locator->Locate(com::Bstr(function.typedPath).Get(), kLocateLibrary, 0, located.Put())) ||
            located.View().empty())
            break;
        switch (Append(located.Text(), ToCodePage(support::AppendedText(function.text)))) {
            case Outcome::Appended: Announce(located.Text(), locator.Get(), rack); break;
            case Outcome::NotWritten: notWritten.push_back(located.Text()); break;
            case Outcome::NotOpened: break;
        }
    }
    return notWritten;
}

}  // namespace recoveryui::wizard

#include "wizard/AppendFunctions.h"

#include <algorithm>
#include <memory>

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
    std::string bytes(
        static_cast<size_t>(WideCharToMultiByte(CP_ACP, 0, text.data(), size, nullptr, 0, nullptr, nullptr)),
        '\0');
    WideCharToMultiByte(CP_ACP, 0, text.data(), size, bytes.data(), static_cast<int>(bytes.size()), nullptr,
                        nullptr);
    return bytes;
}

enum class Outcome { Appended, NotOpened, NotWritten };

bool Write(HANDLE file, LONGLONG place, const std::string& bytes) {
    const auto size = static_cast<DWORD>(bytes.size());
    DWORD written = 0;
    return SetFilePointerEx(file, {.QuadPart = place}, nullptr, FILE_BEGIN) &&
           WriteFile(file, bytes.data(), size, &written, nullptr) && written == size;
}

// Never creates the file, and leaves it as it was where not everything can be written.
Outcome Append(const std::wstring& path, const std::wstring& functionText) {
    const HANDLE file = CreateFileW(model::ExtendedLengthPath(path).c_str(), GENERIC_READ | GENERIC_WRITE,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return Outcome::NotOpened;
    const std::unique_ptr<void, decltype(&CloseHandle)> closer(file, &CloseHandle);
    constexpr LONGLONG kTail = 256;
    char tail[kTail];
    LARGE_INTEGER size{};
    DWORD read = 0;
    bool appended =
        GetFileSizeEx(file, &size) &&
        SetFilePointerEx(file, {.QuadPart = std::max(size.QuadPart - kTail, 0LL)}, nullptr, FILE_BEGIN) &&
        ReadFile(file, tail, kTail, &read, nullptr);
    if (appended) {
        const support::LibraryEnd end = support::EndOfLibrary({tail, read});
        const LONGLONG place = size.QuadPart - static_cast<LONGLONG>(end.marks);
        appended = Write(file, place, ToCodePage(support::AppendedText(functionText, end)));
        if (!appended && SetFilePointerEx(file, size, nullptr, FILE_BEGIN)) {
            SetEndOfFile(file);
            if (end.marks > 0) Write(file, place, std::string(end.marks, '\x1A'));
        }
    }
    return appended ? Outcome::Appended : Outcome::NotWritten;
}

void Announce(const std::wstring& path, IFileLocator* locator, IObjectRack* rack) {
    const com::Bstr located(path);
    if (support::IsRepositoryPath(path)) {
        locator->HandBack(located.Get());
        return;
    }
    com::Ptr<IPluginMgr> manager;
    if (SUCCEEDED(shell::FetchAnywhere(rack, L"TovPluginMgrObject", manager)))
        manager->LibraryChanged(located.Get());
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
        switch (Append(located.Text(), function.text)) {
            case Outcome::Appended: Announce(located.Text(), locator.Get(), rack); break;
            case Outcome::NotWritten: notWritten.push_back(located.Text()); break;
            case Outcome::NotOpened: break;
        }
    }
    return notWritten;
}

}  // namespace recoveryui::wizard

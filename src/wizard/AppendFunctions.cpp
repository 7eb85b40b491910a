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

// The function is in the library by then: who cannot be told must not let it be written once more.
void Announce(const com::Bstr& located, IFileLocator* locator, IObjectRack* rack) noexcept {
    com::Guarded([&] {
        if (support::IsRepositoryPath(located.View())) return locator->HandBack(located.Get());
        com::Ptr<IPluginMgr> manager;
        com::Check(shell::FetchAnywhere(rack, L"TovPluginMgrObject", manager));
        return manager->LibraryChanged(located.Get());
    });
}

}  // namespace

std::vector<std::wstring> AppendNewFunctions(NewFunctionList& functions, IObjectRack* rack) {
    std::vector<std::wstring> notWritten;
    com::Ptr<IFileLocator> locator;
    if (FAILED(shell::Fetch(rack, L"RACK_FILE_LOCATOR", locator))) return notWritten;
    while (!functions.All().empty()) {
        const NewFunction& function = functions.All().front();
        com::Bstr located;
        if (FAILED(locator->Locate(com::Bstr(function.typedPath).Get(), kLocateLibrary, 0, located.Put())) ||
            located.View().empty())
            break;
        switch (Append(located.Text(), function.text)) {
            case Outcome::Appended: Announce(located, locator.Get(), rack); break;
            case Outcome::NotWritten: notWritten.push_back(located.Text()); break;
            case Outcome::NotOpened: break;
        }
        functions.DropFirst();
    }
    return notWritten;
}

}  // namespace recoveryui::wizard

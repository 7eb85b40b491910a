#include "process/RunningProcesses.h"

#include <windows.h>

#include <tlhelp32.h>
#include <winternl.h>

#include <cstring>
#include <memory>

#include "process/ProcessNames.h"
#include "ui/Handles.h"

namespace recoveryui::process {
namespace {

using Names = std::vector<std::wstring>;

// Null when the module is not loaded or has no such entry point. Not every system has all of them, so none
// of them may be imported.
template <class Function>
Function EntryPoint(const wchar_t* module, const char* name) {
    const HMODULE loaded = GetModuleHandleW(module);
    return loaded ? reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(loaded, name)))
                  : nullptr;
}

struct KernelCloser {
    void operator()(HANDLE handle) const noexcept { CloseHandle(handle); }
};

Names BySnapshot() {
    const wchar_t* const kernel = L"Kernel32.dll";
    const auto create = EntryPoint<decltype(&CreateToolhelp32Snapshot)>(kernel, "CreateToolhelp32Snapshot");
    const auto first = EntryPoint<decltype(&Process32FirstW)>(kernel, "Process32FirstW");
    const auto next = EntryPoint<decltype(&Process32NextW)>(kernel, "Process32NextW");
    Names names;
    if (!create || !first || !next) return names;
    const HANDLE handle = create(TH32CS_SNAPPROCESS, 0);
    if (handle == INVALID_HANDLE_VALUE) return names;
    const ui::Owned<HANDLE, KernelCloser> snapshot(handle);
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = first(handle, &entry); more; more = next(handle, &entry))
        names.push_back(FileNameOf(entry.szExeFile));
    return names;
}

// The head of a record of SystemProcessInformation, as far as it is read here.
struct ProcessRecord {
    ULONG nextOffset;
    BYTE notRead[52];
    UNICODE_STRING imageName;
};

constexpr std::size_t kBufferSize = 0x400000;
constexpr ULONG kToldSize = 0x100000;  // less than the buffer holds, on purpose

Names ByNativeQuery() {
    using Query = NTSTATUS(NTAPI*)(SYSTEM_INFORMATION_CLASS, void*, ULONG, ULONG*);
    const auto query = EntryPoint<Query>(L"ntdll.dll", "NtQuerySystemInformation");
    Names names;
    if (!query) return names;
    const auto buffer = std::make_unique<BYTE[]>(kBufferSize);
    if (query(SystemProcessInformation, buffer.get(), kToldSize, nullptr) != 0) return names;
    for (const BYTE* place = buffer.get();;) {
        ProcessRecord record;  // a copy: not every system aligns them
        std::memcpy(&record, place, sizeof record);
        const UNICODE_STRING& image = record.imageName;
        if (image.Length != 0 && image.MaximumLength != 0)
            names.push_back(FileNameOf({image.Buffer, image.Length / sizeof(wchar_t)}));
        if (record.nextOffset == 0) return names;
        place += record.nextOffset;
    }
}

}  // namespace

std::vector<std::wstring> ProcessesFrom(ProcessSource source) {
    return source == ProcessSource::NativeQuery ? ByNativeQuery() : BySnapshot();
}

std::optional<std::vector<std::wstring>> EnumerateProcesses() {
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    if (!GetVersionExW(&version)) return std::nullopt;
    return ProcessesFrom(SourceFor(version.dwPlatformId, version.dwMajorVersion));
}

}  // namespace recoveryui::process

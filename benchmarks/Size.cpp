// The component's file beside that of a minimal DLL with the same static runtime.
#include <windows.h>

#include <cstdio>
#include <string>

#include "Compare.h"
#include "Rows.h"
#include "Stage.h"

namespace recoveryui::bench {
namespace {

constexpr ULONGLONG kMost = 600 * 1024;

ULONGLONG SizeOf(const wchar_t* dll) {
    wchar_t path[MAX_PATH];
    WIN32_FILE_ATTRIBUTE_DATA data{};
    const HMODULE module = LoadLibraryW(dll);
    Require(GetModuleFileNameW(module, path, MAX_PATH) &&
                GetFileAttributesExW(path, GetFileExInfoStandard, &data),
            "a DLL is not there");
    return data.nFileSizeLow;
}

}  // namespace

void MeasureSize() {
    const ULONGLONG product = SizeOf(L"RecoveryUI.dll"), floor = SizeOf(L"bench_floor.dll");
    char ratio[32];
    std::snprintf(ratio, sizeof ratio, "%.2f", static_cast<double>(product) / static_cast<double>(floor));
    State("size of RecoveryUI.dll", std::to_string(product) + " B", std::to_string(floor) + " B", ratio, "",
          "600 KB", product < kMost);
}

}  // namespace recoveryui::bench

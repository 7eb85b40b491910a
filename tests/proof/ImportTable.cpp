#include "proof/ImportTable.h"

#include <cstring>

namespace recoveryui::proof {

// Linkers place the table at any multiple of four.
using Thunk [[gnu::aligned(4)]] = IMAGE_THUNK_DATA;

void* PutImport(HMODULE module, const char* name, void* replacement) {
    char* const base = reinterpret_cast<char*>(module);
    const auto& dos = *reinterpret_cast<IMAGE_DOS_HEADER*>(base);
    const auto& nt = *reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos.e_lfanew);
    const auto& directory = nt.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    auto* library = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress);
    void* before = nullptr;
    for (; library->Name; ++library) {
        auto* wanted = reinterpret_cast<Thunk*>(base + library->OriginalFirstThunk);
        auto* bound = reinterpret_cast<Thunk*>(base + library->FirstThunk);
        for (; wanted->u1.AddressOfData; ++wanted, ++bound) {
            if (IMAGE_SNAP_BY_ORDINAL(wanted->u1.Ordinal)) continue;
            const auto* import = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + wanted->u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<const char*>(import->Name), name) != 0) continue;
            before = reinterpret_cast<void*>(bound->u1.Function);
            DWORD protection = 0;
            VirtualProtect(&bound->u1.Function, sizeof bound->u1.Function, PAGE_READWRITE, &protection);
            bound->u1.Function = reinterpret_cast<ULONG_PTR>(replacement);
            VirtualProtect(&bound->u1.Function, sizeof bound->u1.Function, protection, &protection);
        }
    }
    return before;
}

}  // namespace recoveryui::proof

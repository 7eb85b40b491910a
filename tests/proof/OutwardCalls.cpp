#include "proof/OutwardCalls.h"

#include <commctrl.h>
#include <oleauto.h>
#include <prsht.h>
#include <uxtheme.h>

#include <array>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <unordered_map>
#include <utility>

#include "proof/ImportTable.h"

namespace recoveryui::proof {
namespace {

struct Block {
    size_t bytes;
    void* caller;
    bool sinceOrder;
};

struct State {
    DWORD thread = 0;  // whose calls count; 0: nobody's
    Fault fault;
    std::array<long, std::size(kOutsideNames)> calls{};
    const char* failed = nullptr;
    char* module = nullptr;
    std::mutex heapMutex;
    std::unordered_map<void*, Block> heap;
};
State& state = *new State;

// Counts a call and tells whether it is to fail.
bool Fails(Outside outside, const char* name) {
    if (state.thread != GetCurrentThreadId()) return false;
    const long call = ++state.calls[static_cast<size_t>(outside)];
    const Fault& fault = state.fault;
    if (outside != fault.outside || fault.nth == 0 || call < fault.nth) return false;
    // A question that can never be asked leaves no way out: a box fails as the nth call only.
    if (call > fault.nth && (!fault.lasting || std::strcmp(name, "MessageBoxW") == 0)) return false;
    if (!state.failed) state.failed = name;
    return true;
}

void Remember(void* block, size_t bytes, void* caller) {
    if (!block) return;
    const std::lock_guard lock(state.heapMutex);
    state.heap[block] = {bytes, caller, state.thread != 0};
}
void Forget(void* block) {
    const std::lock_guard lock(state.heapMutex);
    state.heap.erase(block);
}

void* FailingMalloc(size_t bytes) {
    if (Fails(Outside::Memory, "malloc")) return nullptr;
    void* const block = std::malloc(bytes);
    Remember(block, bytes, __builtin_return_address(0));
    return block;
}
void* FailingCalloc(size_t count, size_t bytes) {
    if (Fails(Outside::Memory, "calloc")) return nullptr;
    void* const block = std::calloc(count, bytes);
    Remember(block, count * bytes, __builtin_return_address(0));
    return block;
}
void* FailingRealloc(void* before, size_t bytes) {
    if (Fails(Outside::Memory, "realloc")) return nullptr;
    Forget(before);  // where the platform itself has no memory left, nothing is counted any more
    void* const block = std::realloc(before, bytes);
    Remember(block, bytes, __builtin_return_address(0));
    return block;
}
// What is used after it was freed is to show itself: it is filled, and stays for a while.
void LateFree(void* block) {
    static std::array<void*, 4096>& freed = *new std::array<void*, 4096>{};
    static std::atomic<size_t> next{0};
    if (block) std::memset(block, 0xDD, _msize(block));
    std::free(std::exchange(freed[next++ % freed.size()], block));
}
void WatchedFree(void* block) {
    if (block) Forget(block);
    LateFree(block);
}

struct Row {
    const char* name;
    Outside outside;
    INT_PTR answer;  // of a failed call
    DWORD error;     // its last error
    void* replacement;
};
extern const Row kRows[];
extern void* originals[];

template <class Function>
struct Hook;
template <class Result, class... Arguments>
struct Hook<Result WINAPI(Arguments...)> {
    template <int slot>
    static Result WINAPI Call(Arguments... arguments) {
        const Row& row = kRows[slot];
        if (Fails(row.outside, row.name)) {
            SetLastError(row.error);
            return (Result)row.answer;
        }
        return reinterpret_cast<Result(WINAPI*)(Arguments...)>(originals[slot])(arguments...);
    }
};

constexpr int kFirst = __COUNTER__ + 1;
#define OUTWARD(function, outside, answer, error)                                              \
    {                                                                                          \
#function, Outside::outside, (INT_PTR)(answer), error,                                 \
            reinterpret_cast < void*>(&Hook <decltype(function)>::Call <__COUNTER__ - kFirst>) \
    }

const Row kRows[] = {
    OUTWARD(SysAllocStringLen, Memory, 0, 0),
    OUTWARD(SafeArrayCreate, Memory, 0, 0),
    OUTWARD(SafeArrayCopy, Memory, E_OUTOFMEMORY, 0),
    OUTWARD(SafeArrayPutElement, Memory, E_OUTOFMEMORY, 0),
    OUTWARD(SafeArrayGetElement, Memory, E_OUTOFMEMORY, 0),
    OUTWARD(VariantCopy, Memory, E_OUTOFMEMORY, 0),
    OUTWARD(VariantChangeType, Memory, E_OUTOFMEMORY, 0),
    OUTWARD(VariantChangeTypeEx, Memory, E_OUTOFMEMORY, 0),
    OUTWARD(CoTaskMemAlloc, Memory, 0, 0),
    OUTWARD(GlobalAlloc, Memory, 0, ERROR_NOT_ENOUGH_MEMORY),

    OUTWARD(CLSIDFromProgID, Platform, REGDB_E_READREGDB, 0),
    OUTWARD(CoCreateInstance, Platform, E_OUTOFMEMORY, 0),
    OUTWARD(CoGetClassObject, Platform, E_OUTOFMEMORY, 0),
    OUTWARD(LoadTypeLib, Platform, TYPE_E_CANTLOADLIBRARY, 0),
    OUTWARD(RegisterTypeLib, Platform, TYPE_E_REGISTRYACCESS, 0),
    OUTWARD(UnRegisterTypeLib, Platform, TYPE_E_REGISTRYACCESS, 0),
    OUTWARD(CreateFileW, Platform, -1, ERROR_ACCESS_DENIED),
    OUTWARD(GetFileSizeEx, Platform, FALSE, ERROR_ACCESS_DENIED),
    OUTWARD(SetFilePointerEx, Platform, FALSE, ERROR_SEEK),
    OUTWARD(ReadFile, Platform, FALSE, ERROR_READ_FAULT),
    OUTWARD(WriteFile, Platform, FALSE, ERROR_DISK_FULL),
    OUTWARD(SetEndOfFile, Platform, FALSE, ERROR_DISK_FULL),
    OUTWARD(OpenProcess, Platform, 0, ERROR_ACCESS_DENIED),
    OUTWARD(LoadLibraryW, Platform, 0, ERROR_MOD_NOT_FOUND),
    OUTWARD(GetProcAddress, Platform, 0, ERROR_PROC_NOT_FOUND),
    OUTWARD(GetModuleFileNameW, Platform, 0, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(RegCreateKeyExW, Platform, ERROR_ACCESS_DENIED, 0),
    OUTWARD(RegOpenKeyExW, Platform, ERROR_ACCESS_DENIED, 0),
    OUTWARD(RegSetValueExW, Platform, ERROR_ACCESS_DENIED, 0),
    OUTWARD(RegQueryValueExW, Platform, ERROR_ACCESS_DENIED, 0),
    OUTWARD(RegDeleteKeyW, Platform, ERROR_ACCESS_DENIED, 0),
    OUTWARD(RegDeleteTreeW, Platform, ERROR_ACCESS_DENIED, 0),
    OUTWARD(RegDeleteValueW, Platform, ERROR_ACCESS_DENIED, 0),
    OUTWARD(OpenClipboard, Platform, FALSE, ERROR_ACCESS_DENIED),
    OUTWARD(EmptyClipboard, Platform, FALSE, ERROR_ACCESS_DENIED),
    OUTWARD(GlobalLock, Platform, 0, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(SetClipboardData, Platform, 0, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(LoadStringW, Platform, 0, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(LoadImageW, Platform, 0, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(LoadResource, Platform, 0, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(ActivateActCtx, Platform, FALSE, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(CreateActCtxW, Platform, -1, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(CreateWindowExW, Platform, 0, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(CreateDialogParamW, Platform, 0, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(DialogBoxParamW, Platform, -1, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(SetWindowTextW, Platform, FALSE, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(SetPropW, Platform, FALSE, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(SendMessageTimeoutW, Platform, 0, ERROR_TIMEOUT),
    OUTWARD(MessageBoxW, Platform, 0, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(TrackPopupMenu, Platform, FALSE, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(TrackPopupMenuEx, Platform, FALSE, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(CreatePopupMenu, Platform, 0, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(AppendMenuW, Platform, FALSE, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(BeginDeferWindowPos, Platform, 0, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(DeferWindowPos, Platform, 0, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(EndDeferWindowPos, Platform, FALSE, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(GetDC, Platform, 0, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(CreateFontIndirectW, Platform, 0, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(CreateCompatibleBitmap, Platform, 0, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(CreateCompatibleDC, Platform, 0, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(CreateDIBSection, Platform, 0, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(ImageList_Create, Platform, 0, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(ImageList_Add, Platform, -1, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(ImageList_ReplaceIcon, Platform, -1, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(CreatePropertySheetPageW, Platform, 0, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(PropertySheetW, Platform, -1, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(SetWindowSubclass, Platform, FALSE, ERROR_NOT_ENOUGH_MEMORY),
    OUTWARD(OpenThemeData, Platform, 0, ERROR_NOT_ENOUGH_MEMORY),
};
#undef OUTWARD
void* originals[std::size(kRows)];

}  // namespace

void OutwardCalls::Catch(HMODULE module) {
    state.module = reinterpret_cast<char*>(module);
    for (size_t slot = 0; slot < std::size(kRows); ++slot)
        originals[slot] = PutImport(module, kRows[slot].name, kRows[slot].replacement);
    PutImport(module, "malloc", reinterpret_cast<void*>(&FailingMalloc));
    PutImport(module, "calloc", reinterpret_cast<void*>(&FailingCalloc));
    PutImport(module, "realloc", reinterpret_cast<void*>(&FailingRealloc));
    PutImport(module, "free", reinterpret_cast<void*>(&WatchedFree));
    if (const HMODULE host = GetModuleHandleW(L"TovarinObjects.dll"))
        PutImport(host, "free", reinterpret_cast<void*>(&LateFree));
}

void OutwardCalls::Order(const Fault& fault) {
    {
        const std::lock_guard lock(state.heapMutex);
        for (auto& [address, block] : state.heap) block.sinceOrder = false;
    }
    state.fault = fault;
    state.calls = {};
    state.failed = nullptr;
    state.thread = GetCurrentThreadId();
}

void OutwardCalls::Lift() {
    state.fault.nth = 0;
}

void OutwardCalls::Stop() {
    state.thread = 0;
}
long OutwardCalls::Calls(Outside outside) {
    return state.calls[static_cast<size_t>(outside)];
}

bool OutwardCalls::HasFailed() {
    return state.failed != nullptr;
}
bool OutwardCalls::IsLasting() {
    return state.fault.lasting;
}
std::string OutwardCalls::Failed() {
    return state.failed ? state.failed : "nothing";
}

OutwardCalls::Heap OutwardCalls::LiveHeap() {
    const std::lock_guard lock(state.heapMutex);
    Heap heap{static_cast<long>(state.heap.size()), 0};
    for (const auto& [address, block] : state.heap) heap.bytes += static_cast<long long>(block.bytes);
    return heap;
}

std::string OutwardCalls::Leaks() {
    const std::lock_guard lock(state.heapMutex);
    std::string text;
    for (const auto& [address, block] : state.heap) {
        if (!block.sinceOrder) continue;
        char line[80];
        std::snprintf(line, sizeof line, " %zu bytes from +0x%llx", block.bytes,
                      static_cast<unsigned long long>(static_cast<char*>(block.caller) - state.module));
        text += line;
    }
    return text;
}

}  // namespace recoveryui::proof

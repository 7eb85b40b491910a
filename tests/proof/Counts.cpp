#include "proof/Counts.h"

#include <objbase.h>
#include <windows.h>

#include <atomic>
#include <utility>

#include "com/Object.h"
#include "harness/ComTest.h"
#include "harness/ProcessWindows.h"
#include "proof/OutwardCalls.h"

namespace recoveryui::proof {
namespace {

std::atomic<long> taskBlocks{0};

class TaskMemorySpy final : public com::Object<TaskMemorySpy, IMallocSpy> {
public:
    SIZE_T STDMETHODCALLTYPE PreAlloc(SIZE_T bytes) noexcept override { return bytes; }
    void* STDMETHODCALLTYPE PostAlloc(void* block) noexcept override {
        if (block) ++taskBlocks;
        return block;
    }
    void* STDMETHODCALLTYPE PreFree(void* block, BOOL spied) noexcept override {
        if (block && spied) --taskBlocks;
        return block;
    }
    void STDMETHODCALLTYPE PostFree(BOOL) noexcept override {}
    SIZE_T STDMETHODCALLTYPE PreRealloc(void* block, SIZE_T bytes, void** given,
                                        BOOL spied) noexcept override {
        *given = block;
        wasFresh_ = !block || !spied;
        return bytes;
    }
    void* STDMETHODCALLTYPE PostRealloc(void* block, BOOL) noexcept override {
        if (block && wasFresh_) ++taskBlocks;
        return block;
    }
    void* STDMETHODCALLTYPE PreGetSize(void* block, BOOL) noexcept override { return block; }
    SIZE_T STDMETHODCALLTYPE PostGetSize(SIZE_T bytes, BOOL) noexcept override { return bytes; }
    void* STDMETHODCALLTYPE PreDidAlloc(void* block, BOOL) noexcept override { return block; }
    int STDMETHODCALLTYPE PostDidAlloc(void*, BOOL, int did) noexcept override { return did; }
    void STDMETHODCALLTYPE PreHeapMinimize() noexcept override {}
    void STDMETHODCALLTYPE PostHeapMinimize() noexcept override {}

private:
    bool wasFresh_ = false;
};

// The handles of menus and icons, by the lower half that is enough to name them.
template <class IsOne>
long CountUserHandles(IsOne isOne) {
    long count = 0;
    for (ULONG_PTR handle = 0x20; handle < 0x8000; handle += 2) count += isOne(handle);
    return count;
}

bool IsIcon(ULONG_PTR handle) {
    ICONINFO info{};
    if (!GetIconInfo(reinterpret_cast<HICON>(handle), &info)) return false;
    DeleteObject(info.hbmMask);
    if (info.hbmColor) DeleteObject(info.hbmColor);
    return true;
}

constexpr size_t kGdiKindInEntry = 14;
const char* NameOfGdiKind(int kind) {
    switch (kind) {
        case 0x01: return "device contexts";
        case 0x04: return "regions";
        case 0x05: return "bitmaps";
        case 0x0A: return "fonts";
        case 0x10: return "brushes";
        case 0x30: return "pens";
        case 0x41: return "memory contexts";
        default: return "other GDI objects";
    }
}

// GetGuiResources always answers 0 where this runs; the platform's table of them tells. An entry without a
// kind is free.
std::map<std::string, long long> CountGdiObjects() {
    constexpr size_t kTableInPeb = 0xF8, kEntrySize = 24, kEntries = 0x4000;
    static const auto currentPeb = reinterpret_cast<char*(WINAPI*)()>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetCurrentPeb")));
    const char* const table = *reinterpret_cast<char* const*>(currentPeb() + kTableInPeb);
    std::map<std::string, long long> counts;
    for (size_t i = 0; table && i < kEntries; ++i)
        if (const int kind = table[i * kEntrySize + kGdiKindInEntry] & 0x7F) ++counts[NameOfGdiKind(kind)];
    return counts;
}

long CountWindows() {
    long count = static_cast<long>(test::TopLevelWindows().size());
    for (HWND window = nullptr; (window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr));) {
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        count += process == GetCurrentProcessId();
    }
    return count;
}

long Lives(const wchar_t* module) {
    const HMODULE loaded = GetModuleHandleW(module);
    return loaded && test::CallEntryPoint(loaded, "DllCanUnloadNow") != S_OK;
}

}  // namespace

void Counts::WatchTaskMemory() {
    CoRegisterMallocSpy(TaskMemorySpy::Make().Get());
}

Counts Counts::Take() {
    const OutwardCalls::Heap heap = OutwardCalls::LiveHeap();
    const auto isMenu = [](ULONG_PTR handle) { return IsMenu(reinterpret_cast<HMENU>(handle)); };
    return {CountGdiObjects(),
            {{"windows", CountWindows()},
             {"menus", CountUserHandles(isMenu)},
             {"icons", CountUserHandles(IsIcon)},
             {"live component", Lives(L"RecoveryUI.dll")},
             {"live stand-ins", Lives(L"TovarinObjects.dll")},
             {"task memory blocks", taskBlocks},
             {"heap blocks", heap.blocks},
             {"heap bytes", heap.bytes}}};
}

std::string Counts::Against(const Counts& before) const {
    std::string text;
    for (auto [now, then] : {std::pair(others, before.others), std::pair(gdi, before.gdi)}) {
        for (const auto& [name, count] : then) now[name] -= count;
        for (const auto& [name, more] : now)
            if (more) text += name + (more > 0 ? " +" : " ") + std::to_string(more) + " ";
    }
    return text;
}

}  // namespace recoveryui::proof

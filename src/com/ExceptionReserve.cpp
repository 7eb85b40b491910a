#include "com/ExceptionReserve.h"

#include <windows.h>

#include <cstddef>

namespace __gnu_cxx {
void __freeres();  // NOLINT(bugprone-reserved-identifier): the library's name
}

// The module's import of malloc, through which its run-time library allocates too.
#ifdef _WIN64
extern void* (*importedMalloc)(std::size_t) __asm__("__imp_malloc");
#else
extern void* (*importedMalloc)(std::size_t) __asm__("__imp__malloc");
#endif

namespace recoveryui::com {
namespace {

volatile LONG preparedThread = 0;
volatile LONG reserveUsed = 0;
void* (*platformMalloc)(std::size_t) = nullptr;
DWORD failingThread = 0;

// Not every linker lets the table be written to.
void Import(void* (*function)(std::size_t)) {
    DWORD before = 0;
    VirtualProtect(&importedMalloc, sizeof importedMalloc, PAGE_READWRITE, &before);
    importedMalloc = function;
    VirtualProtect(&importedMalloc, sizeof importedMalloc, before, &before);
}

void* FailOnce(std::size_t bytes) {
    if (GetCurrentThreadId() != failingThread) return platformMalloc(bytes);
    Import(platformMalloc);
    return nullptr;
}

void ThrowAndCatch() noexcept {
    try {
        throw 0;
    } catch (int) {
    }
}

}  // namespace

void PrepareExceptions() noexcept {
    const LONG thread = static_cast<LONG>(GetCurrentThreadId());
    if (InterlockedExchange(&preparedThread, thread) == thread) return;
    ThrowAndCatch();
    if (InterlockedExchange(&reserveUsed, 1)) return;
    // Without memory for it, an exception comes from the reserve, whose lock is made on that occasion.
    platformMalloc = importedMalloc;
    failingThread = GetCurrentThreadId();
    Import(FailOnce);
    ThrowAndCatch();
}

void ReleaseExceptionReserve() noexcept {
    __gnu_cxx::__freeres();
}

}  // namespace recoveryui::com

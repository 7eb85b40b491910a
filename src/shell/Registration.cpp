#include "shell/Registration.h"

#include "com/ExceptionReserve.h"
#include "com/Guard.h"
#include "shell/ClassRegistration.h"
#include "shell/TypeLibrary.h"

namespace recoveryui::shell {
namespace {

HRESULT CountLibrary(const TypeLibrary& library) {
    const RegistryKey key = library.OpenPlatformKey();
    return key && WriteCount(key.Get(), ReadCount(key.Get()) + 1) == ERROR_SUCCESS ? S_OK : E_FAIL;
}

HRESULT RegisterLibrary() {
    const TypeLibrary library;
    const bool wasRegistered = static_cast<bool>(library.OpenPlatformKey());
    HRESULT hr = library.Register();
    if (SUCCEEDED(hr)) hr = CountLibrary(library);
    if (FAILED(hr) && !wasRegistered) [[maybe_unused]]
        const HRESULT undone = library.Unregister();
    return hr;
}

}  // namespace

HRESULT RegisterServer(std::span<const com::ClassEntry> classes) noexcept {
    com::PrepareExceptions();
    size_t done = 0;
    HRESULT hr = S_OK;
    for (; done < classes.size() && SUCCEEDED(hr); ++done)
        hr = com::Guarded([&] { return RegisterClassEntry(classes[done]); });
    if (FAILED(hr)) --done;  // the class that failed counted nothing
    if (SUCCEEDED(hr)) hr = com::Guarded([] { return RegisterLibrary(); });
    if (SUCCEEDED(hr)) return S_OK;
    for (const com::ClassEntry& entry : classes.first(done)) {
        // What cannot be taken back cannot be reported either: the first failure is the one that counts.
        [[maybe_unused]] const HRESULT undone = com::Guarded([&] { return UnregisterClassEntry(entry); });
    }
    return hr;
}

HRESULT UnregisterServer(std::span<const com::ClassEntry> classes) noexcept {
    com::PrepareExceptions();
    return com::Guarded([&] {
        const TypeLibrary library;
        DWORD left = 0;
        {
            const RegistryKey key = library.OpenPlatformKey();
            if (!key) return E_FAIL;
            left = TakeOne(key.Get());
        }
        // One that cannot be removed does not keep the others; the library stays, so that all can be tried
        // again: what the last one has taken counts as none.
        HRESULT failed = S_OK;
        for (const com::ClassEntry& entry : classes) {
            const HRESULT removed = com::Guarded([&] { return UnregisterClassEntry(entry); });
            if (FAILED(removed)) failed = removed;
        }
        if (FAILED(failed)) return failed;
        const HRESULT hr = left > 0 ? library.Register() : library.Unregister();
        if (FAILED(hr)) return hr;
        return left > 0 ? S_FALSE : S_OK;
    });
}

}  // namespace recoveryui::shell

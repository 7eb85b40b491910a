#include "ui/ModuleState.h"

#include <commctrl.h>

#include <atomic>

#include "com/ExceptionReserve.h"
#include "com/Module.h"

namespace recoveryui::ui {
namespace {

constexpr WORD kManifestResource = 2;  // the number that the loader expects in a DLL

// Making it opens files, so it is kept as long as the module is loaded.
class Context {
public:
    ~Context() {
        if (handle_ != INVALID_HANDLE_VALUE) ReleaseActCtx(handle_);
    }
    // Tries again after a failure.
    HANDLE Get() noexcept {
        if (handle_ != INVALID_HANDLE_VALUE) return handle_;
        ACTCTXW request{};
        request.cbSize = sizeof request;
        request.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
        request.hModule = com::Module::Instance();
        request.lpResourceName = MAKEINTRESOURCEW(kManifestResource);
        HANDLE before = INVALID_HANDLE_VALUE;
        const HANDLE made = CreateActCtxW(&request);
        // Another thread may have been quicker.
        if (!handle_.compare_exchange_strong(before, made) && made != INVALID_HANDLE_VALUE)
            ReleaseActCtx(made);
        return handle_;
    }

private:
    std::atomic<HANDLE> handle_{INVALID_HANDLE_VALUE};
} context;

}  // namespace

ModuleScope::ModuleScope() noexcept {
    com::PrepareExceptions();
    const HANDLE handle = context.Get();
    active_ = handle != INVALID_HANDLE_VALUE && ActivateActCtx(handle, &cookie_);
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&controls);
}

ModuleScope::~ModuleScope() {
    if (active_) DeactivateActCtx(0, cookie_);
}

HWND ActiveOwner() noexcept {
    const HWND active = GetActiveWindow();
    return active ? GetAncestor(active, GA_ROOT) : nullptr;
}

}  // namespace recoveryui::ui

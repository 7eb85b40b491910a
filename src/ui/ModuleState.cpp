#include "ui/ModuleState.h"

#include <commctrl.h>

#include "com/ExceptionReserve.h"
#include "com/Module.h"

namespace recoveryui::ui {
namespace {
constexpr WORD kManifestResource = 2;  // the number that the loader expects in a DLL
}

ModuleScope::ModuleScope() noexcept {
    com::PrepareExceptions();
    ACTCTXW request{};
    request.cbSize = sizeof request;
    request.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    request.hModule = com::Module::Instance();
    request.lpResourceName = MAKEINTRESOURCEW(kManifestResource);
    context_ = CreateActCtxW(&request);
    if (context_ != INVALID_HANDLE_VALUE) ActivateActCtx(context_, &cookie_);

    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&controls);
}

ModuleScope::~ModuleScope() {
    if (context_ == INVALID_HANDLE_VALUE) return;
    if (cookie_) DeactivateActCtx(0, cookie_);
    ReleaseActCtx(context_);
}

HWND ActiveOwner() noexcept {
    const HWND active = GetActiveWindow();
    return active ? GetAncestor(active, GA_ROOT) : nullptr;
}

}  // namespace recoveryui::ui

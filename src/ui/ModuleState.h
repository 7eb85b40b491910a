// The module's own windows and resources, switched to whenever a call enters from outside.
#pragma once

#include <windows.h>

#include "com/Guard.h"

namespace recoveryui::ui {

// Activates the module's common-controls context for the length of a scope.
class ModuleScope {
public:
    ModuleScope() noexcept;
    ~ModuleScope();
    ModuleScope(const ModuleScope&) = delete;
    ModuleScope& operator=(const ModuleScope&) = delete;

private:
    ULONG_PTR cookie_ = 0;
    bool active_;
};

// The boundary of an interface method that may show windows: runs the body in the module's state and
// turns exceptions into HRESULTs.
template <class Body>
HRESULT Enter(Body&& body) noexcept {
    ModuleScope scope;
    return com::Guarded(std::forward<Body>(body));
}

// The thread's active top-level window, to which a modal window belongs; null when there is none.
HWND ActiveOwner() noexcept;

}  // namespace recoveryui::ui

// Registration of the stand-ins, for scripts: programs with a manifest need none.
#pragma once

#include <windows.h>

#include <span>

#include "com/ClassTable.h"

namespace tovarin {

// By this module's full path: the stand-ins belong to one folder. What was registered under the same names
// is replaced. On failure nothing is registered.
HRESULT RegisterClasses(std::span<const recoveryui::com::ClassEntry> classes) noexcept;
HRESULT UnregisterClasses(std::span<const recoveryui::com::ClassEntry> classes) noexcept;

}  // namespace tovarin

// Registration of the module's classes and type library. Several installations may register the same
// module: everything is counted and stays until the last of them is gone.
#pragma once

#include <windows.h>

#include <span>

#include "com/ClassTable.h"

namespace recoveryui::shell {

// One more registration. On failure the counts are what they were before.
HRESULT RegisterServer(std::span<const com::ClassEntry> classes) noexcept;

// One registration less: S_OK when the type library was removed, S_FALSE while others need it.
HRESULT UnregisterServer(std::span<const com::ClassEntry> classes) noexcept;

}  // namespace recoveryui::shell

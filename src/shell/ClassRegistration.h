// The registration of one class.
#pragma once

#include <windows.h>

#include <string>

#include "com/ClassTable.h"

namespace recoveryui::shell {

// The module's file name without its folder: classes are found through the search path, deliberately not
// by full path.
std::wstring BareFileName();
std::wstring GuidText(REFGUID guid);

// Runs the class's script and counts. E_FAIL when the class's key cannot be opened.
[[nodiscard]] HRESULT RegisterClassEntry(const com::ClassEntry& entry);
// Counts down; the last one removes the class. S_FALSE when there is no such class, E_FAIL when its key
// cannot be opened.
[[nodiscard]] HRESULT UnregisterClassEntry(const com::ClassEntry& entry);

}  // namespace recoveryui::shell

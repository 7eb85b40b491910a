// The imported functions of a loaded module.
#pragma once

#include <windows.h>

namespace recoveryui::proof {

// Lets the module call another function in place of the one that it imports under this name; gives the one
// before. Null when it imports none, which happens when the product no longer needs it.
void* PutImport(HMODULE module, const char* name, void* replacement);

}  // namespace recoveryui::proof

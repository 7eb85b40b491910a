// The keys of a registration.
#pragma once

#include <windows.h>

#include <string>

#include "ui/RegistryKey.h"

namespace recoveryui::shell {

using ui::RegistryKey;

// Whether a call failed because there is no such key.
inline bool IsMissing(LSTATUS status) {
    return status == ERROR_FILE_NOT_FOUND || status == ERROR_PATH_NOT_FOUND;
}

// Opens a key for full access; empty when it cannot be opened, for the reason in the status. The view is that
// of this program's width, KEY_WOW64_32KEY or KEY_WOW64_64KEY.
RegistryKey OpenKey(HKEY parent, const std::wstring& path, REGSAM view = 0, LSTATUS* status = nullptr);
// Opens a key for full access, made if needed; empty when that fails.
RegistryKey CreateKey(HKEY parent, const std::wstring& path, LSTATUS* status);

// ERROR_SUCCESS or the platform's code. An empty name is the key's default value.
LSTATUS WriteText(HKEY key, const std::wstring& name, const std::wstring& text);

// The number of registrations outstanding; 0 when there is none, or a value of another type.
DWORD ReadCount(HKEY key);
LSTATUS WriteCount(HKEY key, DWORD count);
// What one unregistration makes of a count: the last one deletes the value. Gives what is left.
DWORD TakeOne(HKEY key);

// Deletes a key with all below it. A key that does not exist is not an error.
LSTATUS DeleteTree(HKEY parent, const std::wstring& path);

}  // namespace recoveryui::shell

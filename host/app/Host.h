// The reference host as a function: a program's main thread shows it, other threads may drive it.
#pragma once

#include <windows.h>

#include <string>

namespace tovarin {

struct HostOptions {
    std::wstring testFile;     // opened at the start; empty for a new test
    std::wstring journalFile;  // the journal is written there at the end; empty for nowhere
    std::wstring
        settingsPath;  // the user's settings, relative to HKEY_CURRENT_USER; empty for the host's own
    int show = SW_SHOWNORMAL;
};

// Class of the main window, by which it can be found.
inline constexpr const wchar_t* kMainWindowClass = L"TovarinHost";

// Initialises COM on the calling thread, shows the main window and returns when it has been closed: 0, or 1
// when the host could not start (the user has been told why).
int RunHost(const HostOptions& options);

}  // namespace tovarin

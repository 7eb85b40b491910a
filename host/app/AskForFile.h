// The platform's open and save dialogs.
#pragma once

#include <windows.h>

#include <string>

namespace tovarin {

struct FileQuestion {
    HWND owner;
    bool save;
    int filter;                // string "Name|pattern|Name|pattern"
    const wchar_t* extension;  // added to a name without one
    std::wstring suggestion;   // a full path or a name; may be empty
};

// Empty when the user gave up.
std::wstring AskForFile(const FileQuestion& question);

}  // namespace tovarin

// Other processes: what they crash in stays theirs.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace recoveryui::test {

// The folder of this program, ending in a backslash.
std::wstring ProgramFolder();

// Starts this program itself, another one of its folder, or the one of a full path, which does not outlive
// this one; the process handle is the caller's.
PROCESS_INFORMATION StartChild(const std::wstring& arguments, HANDLE output = nullptr,
                               const wchar_t* program = nullptr);

// Runs it to its end, with each line of its output; gives its exit code.
DWORD RunChild(const std::wstring& arguments, const std::function<void(const std::string& line)>& onLine,
               const wchar_t* program = nullptr);

}  // namespace recoveryui::test

// Other processes of this program: what they crash in stays theirs.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace recoveryui::proof {

// Starts this program with other arguments. Everything else of it is the caller's.
PROCESS_INFORMATION StartChild(const std::wstring& arguments, HANDLE output = nullptr);

// Runs it to its end, with each line of its output; gives its exit code.
DWORD RunChild(const std::wstring& arguments, const std::function<void(const std::string& line)>& onLine);

}  // namespace recoveryui::proof

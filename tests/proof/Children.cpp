#include "proof/Children.h"

namespace recoveryui::proof {

PROCESS_INFORMATION StartChild(const std::wstring& arguments, HANDLE output, const wchar_t* other) {
    std::wstring program(32768, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
    if (other) program.replace(program.rfind(L'\\') + 1, program.npos, other);
    std::wstring command = L"\"" + program + L"\" " + arguments;
    STARTUPINFOW start{};
    start.cb = sizeof start;
    if (output) {
        start.dwFlags = STARTF_USESTDHANDLES;
        start.hStdOutput = start.hStdError = output;
    }
    PROCESS_INFORMATION child{};
    CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, output != nullptr, DETACHED_PROCESS,
                   nullptr, nullptr, &start, &child);
    CloseHandle(child.hThread);
    return child;
}

DWORD RunChild(const std::wstring& arguments, const std::function<void(const std::string& line)>& onLine,
               const wchar_t* program) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    HANDLE reading = nullptr, writing = nullptr;
    CreatePipe(&reading, &writing, &inherited, 0);
    SetHandleInformation(reading, HANDLE_FLAG_INHERIT, 0);
    const PROCESS_INFORMATION child = StartChild(arguments, writing, program);
    CloseHandle(writing);
    std::string pending;
    char buffer[4096];
    for (DWORD read = 0; ReadFile(reading, buffer, sizeof buffer, &read, nullptr) && read > 0;) {
        pending.append(buffer, read);
        for (size_t end; (end = pending.find('\n')) != pending.npos; pending.erase(0, end + 1))
            onLine(pending.substr(0, end && pending[end - 1] == '\r' ? end - 1 : end));
    }
    CloseHandle(reading);
    WaitForSingleObject(child.hProcess, INFINITE);
    DWORD code = 1;
    GetExitCodeProcess(child.hProcess, &code);
    CloseHandle(child.hProcess);
    return code;
}

}  // namespace recoveryui::proof

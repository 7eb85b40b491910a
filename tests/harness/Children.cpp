#include "harness/Children.h"

namespace recoveryui::test {

namespace {

std::wstring Program() {
    std::wstring program(32768, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
    return program;
}

// What is in it ends with this process.
HANDLE JobOfChildren() {
    static const HANDLE job = [] {
        JOBOBJECT_EXTENDED_LIMIT_INFORMATION limit{};
        limit.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
        const HANDLE made = CreateJobObjectW(nullptr, nullptr);
        SetInformationJobObject(made, JobObjectExtendedLimitInformation, &limit, sizeof limit);
        return made;
    }();
    return job;
}

}  // namespace

std::wstring ProgramFolder() {
    const std::wstring program = Program();
    return program.substr(0, program.rfind(L'\\') + 1);
}

PROCESS_INFORMATION StartChild(const std::wstring& arguments, HANDLE output, const wchar_t* other) {
    const std::wstring name = other ? other : L"";
    const std::wstring program = !other                          ? Program()
                                 : name.find(L'\\') == name.npos ? ProgramFolder() + name
                                                                 : name;
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
    AssignProcessToJobObject(JobOfChildren(), child.hProcess);
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

}  // namespace recoveryui::test

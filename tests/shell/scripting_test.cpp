// The sample script in the platform's script host, against the registered component.
#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include <functional>
#include <string>

#include "HostInterfaces.h"
#include "harness/ComTest.h"
#include "harness/ProcessWindows.h"
#include "host/temp_folder.h"
#include "resources/ids.h"

namespace recoveryui::test {
namespace {

constexpr int kNextButton = 0x3024, kFinishButton = 0x3025;
constexpr char kFile[] = R"({"formatVersion": 1, "scenarios": [
  {"name": "Close the box", "description": "before", "postRecoveryOption": 2,
   "trigger": {"kind": "popUp", "windowTitle": {"text": "Error", "regularExpression": 0},
               "windowText": {"text": "", "regularExpression": 0}, "option": 0},
   "operations": [{"kind": "closeProcesses", "processes": ["demo.exe"]}]},
  {"name": "Other", "description": "", "postRecoveryOption": 5, "trigger": null, "operations": []}]})";

// A program beside the test program's files, with what it writes.
class Program {
public:
    explicit Program(std::wstring command) {
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        HANDLE write = nullptr;
        CreatePipe(&read_, &write, &inherited, 1 << 16);
        STARTUPINFOW start{};
        start.cb = sizeof start;
        start.dwFlags = STARTF_USESTDHANDLES;
        start.hStdOutput = start.hStdError = write;
        EXPECT_TRUE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr,
                                   Folder().c_str(), &start, &process_))
            << Utf8(command);
        CloseHandle(write);
        // It does not outlive this program, whatever ends it.
        JOBOBJECT_EXTENDED_LIMIT_INFORMATION limit{};
        limit.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
        SetInformationJobObject(job_, JobObjectExtendedLimitInformation, &limit, sizeof limit);
        AssignProcessToJobObject(job_, process_.hProcess);
    }
    ~Program() {
        CloseHandle(job_);
        CloseHandle(process_.hProcess);
        CloseHandle(process_.hThread);
        CloseHandle(read_);
    }
    static std::wstring Folder() {
        wchar_t path[MAX_PATH];
        const std::wstring_view program(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
        return std::wstring(program.substr(0, program.rfind(L'\\')));
    }

    bool IsRunning() const { return WaitForSingleObject(process_.hProcess, 10) == WAIT_TIMEOUT; }
    // Null when there is none.
    HWND Window(const wchar_t* title) const {
        for (HWND window = nullptr; (window = FindWindowExW(nullptr, window, nullptr, title));) {
            DWORD process = 0;
            GetWindowThreadProcessId(window, &process);
            if (process == process_.dwProcessId) return window;
        }
        return nullptr;
    }
    // Waits for the end of the program.
    std::string Output() {
        std::string all;
        char part[4096];
        for (DWORD size = 0; ReadFile(read_, part, sizeof part, &size, nullptr) && size > 0;)
            all.append(part, size);
        std::erase(all, '\r');
        return all;
    }
    DWORD ExitCode() const {
        DWORD code = 99;
        WaitForSingleObject(process_.hProcess, INFINITE);
        GetExitCodeProcess(process_.hProcess, &code);
        return code;
    }

private:
    HANDLE read_ = nullptr;
    const HANDLE job_ = CreateJobObjectW(nullptr, nullptr);
    PROCESS_INFORMATION process_{};
};

DWORD Regsvr32(const std::wstring& arguments) {
    return Program(L"regsvr32 /s " + arguments).ExitCode();
}

// Into another process, which SetWindowText does not reach.
void SetText(HWND edit, const wchar_t* text) {
    SendMessageW(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
}

bool CanPress(HWND wizard, int button) {
    return IsWindowEnabled(GetDlgItem(wizard, button)) != FALSE;
}

class ScriptingTest : public ComTest {
protected:
    ScriptingTest() {
        EXPECT_EQ(Regsvr32(L"RecoveryUI.dll"), 0u);
        EXPECT_EQ(Regsvr32(L"TovarinObjects.dll"), 0u);
        tovarin::TempFolder::Write(file_, kFile);
    }
    ~ScriptingTest() override {
        EXPECT_EQ(Regsvr32(L"/u TovarinObjects.dll"), 0u);
        EXPECT_EQ(Regsvr32(L"/u RecoveryUI.dll"), 0u);
        for (const wchar_t* key : {L"Vantrel.RecoveryWizard", L"Vantrel.RecoveryRepository"})
            EXPECT_EQ(RegGetValueW(HKEY_CLASSES_ROOT, key, nullptr, RRF_RT_ANY, nullptr, nullptr, nullptr),
                      ERROR_FILE_NOT_FOUND)
                << Utf8(key);
    }

    // What the script says while somebody answers each page of its wizard with a button.
    std::string RunSample(const std::function<WPARAM(HWND wizard, HWND page)>& answer) {
        Program script(L"cscript //nologo edit_scenario.vbs \"" + file_ + L"\" \"Close the box\"");
        while (script.IsRunning()) {
            const HWND wizard = script.Window(L"Recovery Scenario Wizard");
            const HWND page = reinterpret_cast<HWND>(SendMessageW(wizard, PSM_GETCURRENTPAGEHWND, 0, 0));
            // A wizard that is just being shown has not set its buttons yet.
            if (!IsWindowVisible(page) || CanPress(wizard, kNextButton) == CanPress(wizard, kFinishButton))
                continue;
            SendMessageW(wizard, PSM_PRESSBUTTON, answer(wizard, page), 0);
            PostMessageW(wizard, WM_NULL, 0, 0);  // its loop sees the end with the next message
        }
        return script.Output();
    }

    tovarin::TempFolder folder_;
    const std::wstring file_ = folder_ / L"scenarios.trs";
};

TEST_F(ScriptingTest, TheSampleEditsAScenarioAndReadsTheResults) {
    const std::string begin =
        "RecoveryDlg is an IRecoveryDlg\nRecoveryPP is an IObjectRackClient\n"
        "RecoveryWizard is an IRecoveryWizard\nRecoveryAddDlg is an IRecoveryAddDlg\n"
        "RecoveryUIAddin is an IUIAddIn\nRecoveryPPSpecifier is an IObjectRackClient\n"
        "ScenarioProperties is an IScenarioProperties\n"
        "scenario: Close the box\nscenario: Other\nbefore: trigger 1, 1 operations, option 2, \"before\"\n";
    EXPECT_EQ(RunSample([](HWND, HWND) { return PSBTN_CANCEL; }), begin + "cancelled\ndone\n");
    EXPECT_EQ(tovarin::TempFolder::Read(file_), kFile);

    const auto walk = [](HWND wizard, HWND page) {
        if (const HWND name = GetDlgItem(page, IDC_SCEN_NAME)) SetText(name, L"Renamed");
        if (const HWND text = GetDlgItem(page, IDC_SCEN_DESCRIPTION)) SetText(text, L"after");
        if (const HWND another = GetDlgItem(page, IDC_OPERATION_LIST_ANOTHER))
            SendMessageW(another, BM_SETCHECK, BST_UNCHECKED, 0);
        return CanPress(wizard, kFinishButton) ? PSBTN_FINISH : PSBTN_NEXT;
    };
    EXPECT_EQ(RunSample(walk), begin +
                                   "after: Renamed: trigger 1, 1 operations, option 2, \"after\"\n"
                                   "add to the test: False, to new tests: False\nsaved\ndone\n");
    const auto saved = New<IRecoveryRepository>(L"Vantrel.RecoveryRepository");
    VARIANT_BOOL exists = VARIANT_FALSE;
    ASSERT_EQ(saved->Load(com::Bstr(file_).Get(), VARIANT_TRUE), S_OK);
    saved->ScenarioExists(com::Bstr(L"Renamed").Get(), &exists);
    EXPECT_TRUE(exists);
}

}  // namespace
}  // namespace recoveryui::test

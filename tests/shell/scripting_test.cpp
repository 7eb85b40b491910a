// The sample script in the platform's script host, against the registered component.
#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include <atomic>
#include <functional>
#include <string>
#include <thread>

#include "HostInterfaces.h"
#include "harness/Children.h"
#include "harness/ComTest.h"
#include "harness/ProcessWindows.h"
#include "host/temp_folder.h"
#include "resources/ids.h"

namespace recoveryui::test {
namespace {

constexpr char kFile[] = R"({"formatVersion": 1, "scenarios": [
  {"name": "Close the box", "description": "before", "postRecoveryOption": 2,
   "trigger": {"kind": "popUp", "windowTitle": {"text": "Error", "regularExpression": 0},
               "windowText": {"text": "", "regularExpression": 0}, "option": 0},
   "operations": [{"kind": "closeProcesses", "processes": ["demo.exe"]}]},
  {"name": "Other", "description": "", "postRecoveryOption": 5, "trigger": null, "operations": []}]})";

// What a program of the platform says; it has to succeed.
std::string RunTool(const wchar_t* name, const std::wstring& arguments) {
    std::string said;
    const auto hear = [&](const std::string& line) { said += line + "\n"; };
    EXPECT_EQ(RunChild(arguments, hear, (std::wstring(L"C:\\windows\\system32\\") + name).c_str()), 0u);
    return said;
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
        SetCurrentDirectoryW(ProgramFolder().c_str());
        for (const wchar_t* dll : {L"RecoveryUI.dll", L"TovarinObjects.dll"})
            RunTool(L"regsvr32.exe", std::wstring(L"/s ") + dll);
        tovarin::TempFolder::Write(file_, kFile);
    }
    ~ScriptingTest() override {
        for (const wchar_t* dll : {L"TovarinObjects.dll", L"RecoveryUI.dll"})
            RunTool(L"regsvr32.exe", std::wstring(L"/s /u ") + dll);
        for (const wchar_t* key : {L"Vantrel.RecoveryWizard", L"Vantrel.RecoveryRepository"})
            EXPECT_EQ(RegGetValueW(HKEY_CLASSES_ROOT, key, nullptr, RRF_RT_ANY, nullptr, nullptr, nullptr),
                      ERROR_FILE_NOT_FOUND)
                << Utf8(key);
    }

    // What the script says while somebody answers each page of its wizard with a button.
    std::string RunSample(const std::function<WPARAM(HWND wizard, HWND page)>& answer) {
        std::string said;
        std::atomic<bool> isOver = false;
        std::thread script([&] {
            said =
                RunTool(L"cscript.exe", L"//nologo edit_scenario.vbs \"" + file_ + L"\" \"Close the box\"");
            isOver = true;
        });
        for (; !isOver; Sleep(10)) {
            const HWND wizard = FindWindowW(nullptr, L"Recovery Scenario Wizard");
            const HWND page = reinterpret_cast<HWND>(SendMessageW(wizard, PSM_GETCURRENTPAGEHWND, 0, 0));
            // A wizard that is just being shown has not set its buttons yet.
            if (!IsWindowVisible(page) || CanPress(wizard, kNext) == CanPress(wizard, kFinish)) continue;
            SendMessageW(wizard, PSM_PRESSBUTTON, answer(wizard, page), 0);
            PostMessageW(wizard, WM_NULL, 0, 0);  // its loop sees the end with the next message
        }
        script.join();
        return said;
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
        return CanPress(wizard, kFinish) ? PSBTN_FINISH : PSBTN_NEXT;
    };
    EXPECT_EQ(RunSample(walk), begin +
                                   "after: Renamed: trigger 1, 1 operations, option 2, \"after\"\n"
                                   "add to the test: False, to new tests: False\nsaved\ndone\n");
    EXPECT_EQ(NamesInFile(file_), (Rows{L"Other", L"Renamed"}));
}

}  // namespace
}  // namespace recoveryui::test

// Every kind of trigger and operation, made with the mouse on a real window, stored, and read back.
#include <windows.h>

#include <commctrl.h>

#include "harness/Children.h"
#include "harness/Pointing.h"
#include "host/temp_folder.h"
#include "tour/Tour.h"

namespace recoveryui::tour {
namespace {

using test::kEditOfCombo;

// The application under test in a process of its own, for the pointing hand to point at.
class Application {
public:
    static constexpr wchar_t kTitle[] = L"Order 4711";
    static constexpr int kMessage = 10, kTryAgain = 11;

    explicit Application(UserScreen& screen) : process_(test::StartChild(kTitle, nullptr, L"target.exe")) {
        screen.WaitUntil("the application shows its window", [&] {
            window_ = FindWindowW(L"OrderEntry", kTitle);
            return window_ && IsWindowVisible(window_);
        });
    }
    ~Application() {
        TerminateProcess(process_.hProcess, 0);
        CloseHandle(process_.hProcess);
    }
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    void PointAt(UserScreen& screen, HWND wizard, int hand, int control) const {
        test::PointAt(screen, wizard, hand, GetDlgItem(window_, control));
    }

private:
    const PROCESS_INFORMATION process_;
    HWND window_ = nullptr;
};

class EveryKind : public Tour {
protected:
    EveryKind()
        : file_(FileIn(L"every kind.trs")),
          library_(MakeFile(L"library.vbs", "Function Log(Object)\r\nEnd Function\r\n")) {
        DeleteFileW(file_.c_str());
    }

    static HWND NewScenario(UserScreen& screen, HWND manager, int trigger) {
        screen.Press(manager, IDC_MANAGER_NEW_SCENARIO);
        const HWND wizard = screen.WaitForWindow(L"Recovery Scenario Wizard");
        screen.Next(wizard);
        screen.Check(wizard, trigger);
        screen.Next(wizard);
        return wizard;
    }
    // From the list of operations to the page of one type.
    static void AddOperation(UserScreen& screen, HWND wizard, int type) {
        screen.Next(wizard);
        screen.Check(wizard, type);
        screen.Next(wizard);
    }
    // The summary has the words of the trigger and of the operation.
    static void FinishAs(UserScreen& screen, HWND wizard, const wchar_t* name, const std::wstring& row,
                         const std::wstring& trigger, const wchar_t* operation) {
        EXPECT_EQ(screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS), Rows{row});
        screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER, false);
        screen.Next(wizard);
        screen.Next(wizard);
        screen.Enter(wizard, IDC_SCEN_NAME, name);
        screen.Next(wizard);
        EXPECT_TRUE(screen.Text(wizard, IDC_SUMMARY_TEXT)
                        .starts_with(L"Trigger Event:\r\n\t" + trigger + L"\r\nRecovery Operations:\r\n\t" +
                                     operation + L"\r\nPost-Recovery"));
        screen.Finish(wizard);
    }
    static void PictureProperties(UserScreen& screen, HWND manager, const wchar_t* scenario,
                                  const wchar_t* picture, int page = 1) {
        screen.Choose(manager, IDC_MANAGER_LIST, scenario);
        screen.Press(manager, IDC_MANAGER_PROPERTIES);
        const HWND sheet = screen.WaitForWindow(L"Recovery Scenario Properties");
        screen.Turn(sheet, page);
        screen.Picture(sheet, picture);
        screen.Press(sheet, IDCANCEL);
        screen.WaitUntilClosed(sheet);
    }

    const std::wstring file_, library_;
};

TEST_F(EveryKind, IsMadeStoredAndReadBack) {
    Play(L"every-kind-journal.txt", [&](UserScreen& screen, HWND host) {
        const HWND manager = OpenManager(screen, host);
        const Application application(screen);

        HWND wizard = NewScenario(screen, manager, IDC_SELECT_TRIGGER_POPUP);
        application.PointAt(screen, wizard, IDC_POPUP_HAND, Application::kMessage);
        EXPECT_EQ(screen.Text(wizard, IDC_POPUP_TITLE), Application::kTitle);
        EXPECT_EQ(screen.Text(wizard, IDC_POPUP_TEXT), L"The order could not be saved.");
        screen.Picture(wizard, L"40-popup-pointed-at");
        screen.Next(wizard);
        AddOperation(screen, wizard, IDC_SELECT_OPERATION_CLICK);
        screen.Check(wizard, IDC_CLICK_LABEL);
        application.PointAt(screen, wizard, IDC_CLICK_HAND, Application::kMessage);
        EXPECT_EQ(screen.RowsOf(wizard, IDC_CLICK_LABEL_LIST), (Rows{L"Try Again", L"Discard"}));
        screen.Picture(wizard, L"41-button-labels");
        screen.Next(wizard);
        FinishAs(screen, wizard, L"1 Pop-up", L"Keyboard click | Click button with label: Try Again ",
                 L"Pop-up window", L"Keyboard or mouse operation");

        wizard = NewScenario(screen, manager, IDC_SELECT_TRIGGER_OBJECT_STATE);
        application.PointAt(screen, wizard, IDC_SELECT_OBJECT_HAND, Application::kTryAgain);
        const HWND selection = screen.WaitForWindow(L"Object Selection - Object State Trigger");
        screen.Picture(selection, L"42-object-selection");
        screen.Press(selection, IDOK);
        screen.Picture(wizard, L"43-object-hierarchy");
        screen.Next(wizard);
        screen.Picture(wizard, L"44-object-properties");
        screen.Press(wizard, IDC_OBJECT_PROPS_ADD_REMOVE);
        const HWND edited = screen.WaitForWindow(L"Edit Properties");
        screen.Picture(edited, L"49-edit-properties");
        screen.Press(edited, IDCANCEL);
        screen.Next(wizard);
        AddOperation(screen, wizard, IDC_SELECT_OPERATION_PROCESS);
        screen.Press(wizard, IDC_PROCESSES_NEW);
        screen.Type(L"order entry.exe");
        screen.Keys({VK_RETURN});
        screen.Picture(wizard, L"45-close-processes");
        screen.Next(wizard);
        FinishAs(screen, wizard, L"2 Object state", L"Close process | order entry.exe", L"Object state",
                 L"Close process");

        wizard = NewScenario(screen, manager, IDC_SELECT_TRIGGER_ERROR);
        screen.Choose(wizard, IDC_SELECT_ERROR_LIST, L"Object not found");
        screen.Picture(wizard, L"46-test-run-error");
        screen.Next(wizard);
        AddOperation(screen, wizard, IDC_SELECT_OPERATION_FUNCTION);
        screen.Enter(wizard, kEditOfCombo, library_);
        screen.Keys({VK_RETURN});
        screen.Check(wizard, IDC_FUNC_DEFINE);
        screen.Enter(wizard, IDC_FUNC_NAME, L"Restore");
        screen.Picture(wizard, L"47-new-function");
        screen.Next(wizard);
        FinishAs(screen, wizard, L"3 Error", L"Function call | " + library_ + L"::Restore", L"Test run error",
                 L"Function call");

        wizard = NewScenario(screen, manager, IDC_SELECT_TRIGGER_CRASH);
        screen.Choose(wizard, IDC_PROCESSES_RUNNING, L"target.exe");
        screen.Press(wizard, IDC_PROCESSES_ADD_SELECTED);
        EXPECT_EQ(screen.RowsOf(wizard, IDC_PROCESSES_CHOSEN), Rows{L"target.exe"});
        screen.Picture(wizard, L"48-application-crash");
        screen.Next(wizard);
        AddOperation(screen, wizard, IDC_SELECT_OPERATION_CLICK);
        screen.Next(wizard);
        FinishAs(screen, wizard, L"4 Crash", L"Keyboard click | Enter", L"Application crash",
                 L"Keyboard or mouse operation");

        screen.Press(manager, IDC_MANAGER_SAVE);
        screen.GiveFile(L"Save Recovery File", file_);
        screen.Press(screen.WaitForWindow(L"Recovery Scenario Manager - every kind.trs"), IDCANCEL);
        screen.WaitUntilClosed(manager);
    });

    // Another run of the host: nothing is left but the file and the library.
    Play(L"every-kind-read-journal.txt", [&](UserScreen& screen, HWND host) {
        const HWND manager = OpenManager(screen, host);
        screen.Press(manager, IDC_MANAGER_OPEN);
        screen.GiveFile(L"Open Recovery File", file_);
        EXPECT_EQ(screen.RowsOf(manager, IDC_MANAGER_LIST),
                  (Rows{L"1 Pop-up", L"2 Object state", L"3 Error", L"4 Crash"}));
        screen.Choose(manager, IDC_MANAGER_LIST, L"1 Pop-up");
        screen.Picture(manager, L"50-every-kind");
        PictureProperties(screen, manager, L"1 Pop-up", L"51-properties-popup");
        PictureProperties(screen, manager, L"2 Object state", L"52-properties-object-state");
        PictureProperties(screen, manager, L"3 Error", L"53-properties-error");
        PictureProperties(screen, manager, L"3 Error", L"55-properties-operations", 2);
        PictureProperties(screen, manager, L"3 Error", L"56-properties-post-recovery", 3);
        PictureProperties(screen, manager, L"4 Crash", L"54-properties-crash");
        screen.Press(manager, IDCANCEL);
        screen.WaitUntilClosed(manager);
    });

    EXPECT_EQ(tovarin::TempFolder::Read(library_),
              "Function Log(Object)\r\nEnd Function\r\n\r\n"
              "Function Restore(Object, Method, Arguments, retVal)\r\n\r\nEnd Function");
}

}  // namespace
}  // namespace recoveryui::tour

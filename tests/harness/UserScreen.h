// What a user sees and does. Whatever a user could not do (press a hidden or disabled button, choose a row
// that is not there, wait for a window that does not come) throws and ends the script. Every action returns
// when the windows wait for the user again; nothing sleeps for a fixed time.
//
// A control is named by its window and id. It is looked for in all of the window, so a wizard or sheet
// stands for its current page as well.
#pragma once

#include <windows.h>

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "harness/User.h"

namespace recoveryui::test {

using Rows = std::vector<std::wstring>;

// The platform's numbers in a wizard and in a combo box.
inline constexpr int kBack = 0x3023, kNext = 0x3024, kFinish = 0x3025, kEditOfCombo = 1001;

class UserScreen {
public:
    UserScreen(const UiThread& ui, ULONGLONG deadline) : ui_(ui), deadline_(deadline) {}

    // How long a window or a change is waited for.
    void SetPatience(DWORD milliseconds) { patience_ = milliseconds; }

    // ---- Windows
    // A visible window that takes input. Without a title: any of the class.
    HWND WaitForWindow(const wchar_t* title, const wchar_t* windowClass = L"#32770");
    void WaitUntilClosed(HWND window);
    void WaitUntil(const char* what, const std::function<bool()>& condition);
    // Waits for a message box of the product, answers it, and gives its text.
    std::wstring AnswerBox(WORD button, const wchar_t* caption = L"Tovarin");
    // The open message box: its icon and its buttons, the default one in brackets ("question: Yes [No]").
    std::wstring BoxLook();
    void Close(HWND window);
    // Answers the platform's file dialog of that caption with a path, or with another of its buttons.
    void GiveFile(const wchar_t* caption, const std::wstring& path);
    void LeaveFileDialog(const wchar_t* caption, int button);
    // A look at a window in its present state: whatever the checks of its looks find fails the test. Leaves
    // "<name>.bmp" in the folder RECOVERYUI_SHOTS, when that is set.
    void Picture(HWND window, const std::wstring& name);

    // ---- Buttons and edit boxes
    HWND Control(HWND window, int id);
    void Press(HWND window, int id);
    void Check(HWND window, int id, bool checked = true);
    bool IsChecked(HWND window, int id);
    bool IsEnabled(HWND window, int id);
    bool IsVisible(HWND window, int id);
    std::wstring Text(HWND window, int id);
    // Replaces the text of an edit box.
    void Enter(HWND window, int id, const std::wstring& text);
    std::wstring Tip(HWND window, int id);
    // The control with the keyboard focus.
    int FocusId();
    void Focus(HWND window, int id);

    // ---- List views ("first column | second"), list boxes, combo boxes, trees (two blanks per level)
    Rows RowsOf(HWND window, int id);
    // The chosen rows, in order.
    Rows Chosen(HWND window, int id);
    // Chooses a row by its whole text or its first column.
    void Choose(HWND window, int id, const std::wstring& row);
    void DoubleClick(HWND window, int id, const std::wstring& row);
    // Clicks the check box of a list view's row.
    void ToggleRow(HWND window, int id, const std::wstring& row);
    bool IsRowChecked(HWND window, int id, const std::wstring& row);
    // Of a list view with more rows than it has room for, and no bar across.
    bool IsLastRowInView(HWND window, int id);

    // ---- Keyboard and menus
    // Keys to the control with the focus; `Type` sends characters.
    void Keys(std::initializer_list<WORD> virtualKeys);
    void Type(const std::wstring& text);
    // The keyboard itself: keys held down together, to the foreground window.
    void RealKeys(std::initializer_list<WORD> chord);
    // Waits for a pop-up menu and gives its items: disabled ones in brackets, separators "-".
    Rows MenuItems();
    // Chooses an item of the pop-up menu, or leaves it with Escape.
    void ChooseMenu(const std::wstring& item);

    // ---- Wizards and sheets
    void Turn(HWND sheet, int page);
    HWND Page(HWND wizard);
    std::wstring PageTitle(HWND wizard);
    // "B N F": upper case enabled, lower case disabled, "-" hidden; "*" follows the default button.
    std::wstring WizardButtons(HWND wizard);
    void Back(HWND wizard) { Press(wizard, kBack); }
    void Next(HWND wizard) { Press(wizard, kNext); }
    void Finish(HWND wizard) { Press(wizard, kFinish); }
    void Cancel(HWND wizard) { Press(wizard, IDCANCEL); }

    // Runs on the windows' thread, from its message loop.
    void Do(std::function<void()> action);
    void DoWhile(std::function<bool()> step);
    LRESULT Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

private:
    HWND WaitForBox();
    HWND Usable(HWND window, int id);
    int RowIndex(HWND list, const std::wstring& row);
    void ClickRow(HWND list, int index, bool twice);
    void ClickAt(HWND control, POINT place, bool twice);

    const UiThread& ui_;
    ULONGLONG deadline_;
    DWORD patience_ = 15000;
};

}  // namespace recoveryui::test

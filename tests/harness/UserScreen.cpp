#include "harness/UserScreen.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>

#include "harness/ProcessWindows.h"
#include "looks/checks.h"
#include "resources/ids.h"

namespace recoveryui::test {
namespace {

constexpr DWORD kStepLimit = 15000;
constexpr UINT kGetMenuOfWindow = 0x1E1;  // MN_GETHMENU
// The file dialog's place for a name: an edit box, or one in a box in a list.
constexpr int kFileNameEdit = 0x480, kFileNameList = 0x47C;

[[noreturn]] void Fail(const std::string& problem) {
    throw std::runtime_error(problem);
}

GUITHREADINFO InfoOf(DWORD thread) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(thread, &info);
    return info;
}

std::string Name(HWND window) {
    return Utf8(ClassOf(window)) + " \"" + Utf8(TextOf(window)) + "\"";
}

}  // namespace

void UserScreen::Do(std::function<void()> action) {
    if (!ui_.Do(std::move(action), kStepLimit)) Fail("the windows do not answer");
}

void UserScreen::DoWhile(std::function<bool()> step) {
    if (!ui_.DoWhile(std::move(step), kStepLimit)) Fail("the windows do not answer");
}

LRESULT UserScreen::Ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DWORD_PTR answer = 0;
    if (!SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, kStepLimit, &answer)) {
        Fail(IsWindow(window) ? "a window does not answer" : "a window is gone");
    }
    return static_cast<LRESULT>(answer);
}

void UserScreen::WaitUntil(const char* what, const std::function<bool()>& condition) {
    const ULONGLONG limit = GetTickCount64() + patience_;
    while (!condition()) {
        const ULONGLONG now = GetTickCount64();
        if (now > limit || now > deadline_) Fail(std::string("waited in vain: ") + what);
        // Nothing can come any more, unless it came together with the end.
        if (ui_.Ended() && !condition()) Fail(std::string("the modal call has returned; wanted: ") + what);
        Sleep(2);
    }
}

HWND UserScreen::WaitForWindow(const wchar_t* title, const wchar_t* windowClass) {
    HWND found = nullptr;
    const std::string what = Utf8(windowClass) + " \"" + (title ? Utf8(title) : "*") + "\"";
    WaitUntil(what.c_str(), [&] {
        for (const HWND window : TopLevelWindows()) {
            if (!IsWindowVisible(window) || !IsWindowEnabled(window) || ClassOf(window) != windowClass)
                continue;
            if (!title || TextOf(window) == title) found = window;
        }
        return found != nullptr;
    });
    Do([] {});
    return found;
}

void UserScreen::WaitUntilClosed(HWND window) {
    WaitUntil("the window closes", [&] { return !IsWindow(window); });
}

HWND UserScreen::WaitForBox() {
    HWND box = nullptr;
    WaitUntil("a message box", [&] { return (box = FindBox()) != nullptr; });
    return box;
}

std::wstring UserScreen::BoxLook() {
    const struct {
        LPWSTR icon;
        const wchar_t* name;
    } icons[] = {{IDI_ERROR, L"error:"},
                 {IDI_QUESTION, L"question:"},
                 {IDI_WARNING, L"warning:"},
                 {IDI_INFORMATION, L"information:"}};
    constexpr std::pair<int, const wchar_t*> kButtons[] = {
        {IDYES, L"Yes"}, {IDNO, L"No"}, {IDOK, L"OK"}, {IDCANCEL, L"Cancel"}};
    const HWND box = WaitForBox();
    std::wstring look;
    for (const HWND child : Descendants(box)) {
        const bool isIcon = (GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
        if (ClassOf(child) != L"Static" || !isIcon) continue;
        const auto shown = reinterpret_cast<HICON>(Ask(child, STM_GETICON));
        for (const auto& icon : icons)
            if (LoadIconW(nullptr, icon.icon) == shown) look = icon.name;
    }
    const int standard = FocusId();
    for (const auto& [id, name] : kButtons) {
        if (!IsWindowVisible(GetDlgItem(box, id))) continue;
        look += id == standard ? L" [" + std::wstring(name) + L"]" : L" " + std::wstring(name);
    }
    return look;
}

std::wstring UserScreen::AnswerBox(WORD button, const wchar_t* caption) {
    const HWND box = WaitForBox();
    if (TextOf(box) != caption) Fail("the message box is called " + Name(box));
    const std::wstring text = TextOf(GetDlgItem(box, kBoxText));
    Press(box, button);
    WaitUntilClosed(box);
    if (!ui_.Ended()) Do([] {});
    return text;
}

void UserScreen::Close(HWND window) {
    if (!IsWindowEnabled(window)) Fail("cannot be closed behind another window: " + Name(window));
    Do([=] { PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0); });
}

void UserScreen::GiveFile(const wchar_t* caption, const std::wstring& path) {
    const HWND dialog = WaitForWindow(caption);
    HWND edit = GetDlgItem(dialog, kFileNameEdit);
    if (!edit) edit = GetWindow(GetWindow(GetDlgItem(dialog, kFileNameList), GW_CHILD), GW_CHILD);
    Do([&] { SetWindowTextW(edit, path.c_str()); });
    Do([&] { PostMessageW(GetDlgItem(dialog, IDOK), BM_CLICK, 0, 0); });
}

// Its list of files has the number of its OK button.
void UserScreen::LeaveFileDialog(const wchar_t* caption, int button) {
    const HWND dialog = WaitForWindow(caption);
    Do([&] { PostMessageW(GetDlgItem(dialog, button), BM_CLICK, 0, 0); });
    WaitUntilClosed(dialog);
}

void UserScreen::Picture(HWND window, const std::wstring& name) {
    std::wstring complaints;
    Do([&] { complaints = looks::ComplaintsAbout(window); });
    EXPECT_EQ(Utf8(complaints), "") << "in the window of the picture " << Utf8(name);
    const wchar_t* const folder = _wgetenv(L"RECOVERYUI_SHOTS");
    if (!folder) return;
    bool saved = false;
    const std::wstring path = std::wstring(folder) + L"\\" + name + L".bmp";
    Do([&] {
        RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        saved = SaveBmp(window, path);
    });
    if (!saved) Fail("no picture could be saved as " + Utf8(path));
}

HWND UserScreen::Control(HWND window, int id) {
    HWND found = nullptr;
    for (const HWND child : Descendants(window)) {
        if (GetDlgCtrlID(child) != id) continue;
        if (IsWindowVisible(child)) return child;
        if (!found) found = child;
    }
    if (!found) Fail("no control " + std::to_string(id) + " in " + Name(window));
    return found;
}

HWND UserScreen::Usable(HWND window, int id) {
    const HWND control = Control(window, id);
    const char* problem = nullptr;
    if (!IsWindowEnabled(control)) problem = "disabled: ";
    if (!IsWindowVisible(control)) problem = "hidden: ";
    if (!IsWindowEnabled(GetAncestor(control, GA_ROOT))) problem = "behind another window: ";
    if (problem) Fail(problem + std::to_string(id) + " " + Name(control));
    return control;
}

void UserScreen::Press(HWND window, int id) {
    const HWND button = Usable(window, id);
    Do([=] { PostMessageW(button, BM_CLICK, 0, 0); });
}

void UserScreen::Check(HWND window, int id, bool checked) {
    if (IsChecked(window, id) != checked) Press(window, id);
    if (IsChecked(window, id) != checked) Fail("does not change when pressed: " + Name(Control(window, id)));
}

bool UserScreen::IsChecked(HWND window, int id) {
    return Ask(Control(window, id), BM_GETCHECK) == BST_CHECKED;
}
bool UserScreen::IsEnabled(HWND window, int id) {
    return IsWindowEnabled(Control(window, id));
}
bool UserScreen::IsVisible(HWND window, int id) {
    return IsWindowVisible(Control(window, id));
}
std::wstring UserScreen::Text(HWND window, int id) {
    return TextOf(Control(window, id));
}

void UserScreen::Enter(HWND window, int id, const std::wstring& text) {
    const HWND edit = Usable(window, id);
    if (GetWindowLongW(edit, GWL_STYLE) & ES_READONLY) Fail("read-only: " + Name(edit));
    Do([=] {
        SetFocus(edit);
        SendMessageW(edit, EM_SETSEL, 0, -1);
        SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
    });
}

std::wstring UserScreen::Tip(HWND window, int id) {
    const HWND control = Control(window, id);
    // Tips are made when the mouse comes.
    Ask(control, WM_SETCURSOR, reinterpret_cast<WPARAM>(control), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    for (const HWND tip : TopLevelWindows()) {
        if (ClassOf(tip) != TOOLTIPS_CLASSW) continue;
        wchar_t text[512] = L"";
        TTTOOLINFOW tool{};
        tool.cbSize = sizeof tool;
        tool.hwnd = GetParent(control);
        tool.uId = reinterpret_cast<UINT_PTR>(control);
        tool.lpszText = text;
        Ask(tip, TTM_GETTEXTW, 512, reinterpret_cast<LPARAM>(&tool));
        if (*text) return text;
    }
    return {};
}

int UserScreen::FocusId() {
    const HWND focus = InfoOf(ui_.Id()).hwndFocus;
    return focus ? GetDlgCtrlID(focus) : 0;
}

void UserScreen::Focus(HWND window, int id) {
    Do([control = Control(window, id)] { SetFocus(control); });
}

void UserScreen::Keys(std::initializer_list<WORD> virtualKeys) {
    const HWND focus = InfoOf(ui_.Id()).hwndFocus;
    for (const WORD key : virtualKeys) {
        Do([=] {
            PostMessageW(focus, WM_KEYDOWN, key, 1);
            PostMessageW(focus, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
        });
    }
}

void UserScreen::Type(const std::wstring& text) {
    for (const wchar_t letter : text) Do([=] { PostMessageW(GetFocus(), WM_CHAR, letter, 1); });
}

void UserScreen::RealKeys(std::initializer_list<WORD> chord) {
    std::vector<INPUT> inputs;
    const auto add = [&](WORD key, DWORD flags) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
        input.ki.dwFlags = flags;
        inputs.push_back(input);
    };
    for (const WORD key : chord) add(key, 0);
    for (auto key = std::rbegin(chord); key != std::rend(chord); ++key) add(*key, KEYEVENTF_KEYUP);
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
    Do([] {});
}

Rows UserScreen::MenuItems() {
    const HWND window = WaitForWindow(nullptr, L"#32768");
    const HMENU menu = reinterpret_cast<HMENU>(Ask(window, kGetMenuOfWindow));
    Rows items;
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        wchar_t text[256] = L"";
        GetMenuStringW(menu, static_cast<UINT>(i), text, 256, MF_BYPOSITION);
        const UINT state = GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION);
        items.push_back(state & MF_SEPARATOR                ? L"-"
                        : state & (MF_GRAYED | MF_DISABLED) ? L"[" + std::wstring(text) + L"]"
                                                            : text);
    }
    return items;
}

void UserScreen::ChooseMenu(const std::wstring& item) {
    const Rows items = MenuItems();
    const HWND owner = InfoOf(ui_.Id()).hwndMenuOwner;
    bool found = item.empty();
    std::vector<WORD> keys;
    for (const std::wstring& text : items) {
        if (found) break;
        found = text == item;
        if (text != L"-") keys.push_back(VK_DOWN);
    }
    if (!found) Fail("no such item in the menu: " + Utf8(item));
    keys.push_back(item.empty() ? VK_ESCAPE : VK_RETURN);
    for (const WORD key : keys) PostMessageW(owner, WM_KEYDOWN, key, 1);
    WaitUntil("the menu closes", [] { return FindWindowW(L"#32768", nullptr) == nullptr; });
    if (!ui_.Ended()) Do([] {});
}

void UserScreen::Turn(HWND sheet, int page) {
    Do([=] { SendMessageW(sheet, PSM_SETCURSEL, static_cast<WPARAM>(page), 0); });
}

HWND UserScreen::Page(HWND wizard) {
    return reinterpret_cast<HWND>(Ask(wizard, PSM_GETCURRENTPAGEHWND));
}
std::wstring UserScreen::PageTitle(HWND wizard) {
    return TextOf(GetDlgItem(Page(wizard), IDC_PAGE_TITLE));
}

std::wstring UserScreen::WizardButtons(HWND wizard) {
    std::wstring state;
    const wchar_t letters[] = L"BNF";
    for (int i = 0; i < 3; ++i) {
        const HWND button = Control(wizard, kBack + i);
        if (i > 0) state += L' ';
        state += !IsWindowVisible(button)  ? L'-'
                 : IsWindowEnabled(button) ? letters[i]
                                           : wchar_t(letters[i] + 32);
        if ((GetWindowLongW(button, GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON) state += L'*';
    }
    return state;
}

}  // namespace recoveryui::test

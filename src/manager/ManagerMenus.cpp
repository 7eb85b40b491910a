// The Manager's menus and keys.
#include "manager/ManagerDlg.h"
#include "resources/ids.h"
#include "support/Text.h"
#include "ui/Strings.h"
#include "ui/Window.h"

namespace recoveryui::manager {
namespace {

constexpr UINT_PTR kKeySubclass = 2;

struct Key {
    WPARAM key;
    int command;
    bool control;
    bool alt;
    bool everywhere;  // in all of the dialog, not only on the list
};
constexpr Key kKeys[] = {
    {VK_DELETE, IDC_MANAGER_DELETE, false, false, false},
    {VK_F2, IDC_MANAGER_EDIT, false, false, false},
    {'C', IDC_MANAGER_COPY, true, false, false},
    {'V', IDC_MANAGER_PASTE, true, false, false},
    {VK_RETURN, IDC_MANAGER_PROPERTIES, false, true, false},
    {'N', IDC_MANAGER_NEW, true, false, true},
    {'O', IDC_MANAGER_OPEN, true, false, true},
    {'S', IDC_MANAGER_SAVE, true, false, true},
};

bool IsDown(int key) {
    return GetKeyState(key) < 0;
}

// Entries of menus that are no control's command.
constexpr UINT kSaveAsEntry = 1;
constexpr UINT kFirstRecentEntry = 10;

ui::Menu MakeMenu() {
    return ui::Menu(CreatePopupMenu());
}

void Append(const ui::Menu& menu, UINT id, const std::wstring& text, bool enabled = true) {
    AppendMenuW(menu.Get(), MF_STRING | (enabled ? MF_ENABLED : MF_GRAYED), id, text.c_str());
}
void AppendSeparator(const ui::Menu& menu) {
    AppendMenuW(menu.Get(), MF_SEPARATOR, 0, nullptr);
}

// A path as a menu can show it: not wider than the screen, and without mnemonics.
std::wstring EntryOf(std::wstring path) {
    constexpr size_t kLongest = 100, kBeginning = 30;
    if (path.size() > kLongest) path.replace(kBeginning, path.size() - kLongest, L"...");
    return support::ReplaceAll(path, L"&", L"&&");
}

// The chosen entry, or 0.
UINT Track(const ui::Menu& menu, HWND owner, POINT point, const RECT* keepClear = nullptr) {
    TPMPARAMS exclude{sizeof exclude, {}};
    if (keepClear) exclude.rcExclude = *keepClear;
    return static_cast<UINT>(TrackPopupMenuEx(menu.Get(), TPM_RETURNCMD | TPM_LEFTALIGN | TPM_RIGHTBUTTON,
                                              point.x, point.y, owner, keepClear ? &exclude : nullptr));
}

UINT DropFrom(const ui::Menu& menu, HWND owner, HWND button) {
    RECT place{};
    GetWindowRect(button, &place);
    return Track(menu, owner, {place.left, place.bottom}, &place);
}

}  // namespace

void ManagerDlg::ListenToKeys() {
    for (HWND child = GetWindow(Window(), GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        SetWindowSubclass(child, &ManagerDlg::KeyProcedure, kKeySubclass, reinterpret_cast<DWORD_PTR>(this));
}

LRESULT CALLBACK ManagerDlg::KeyProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                          DWORD_PTR object) noexcept {
    const auto* dialog = reinterpret_cast<const ManagerDlg*>(object);
    const bool onList = window == dialog->list_.Window();
    switch (message) {
        case WM_NCDESTROY: RemoveWindowSubclass(window, &ManagerDlg::KeyProcedure, kKeySubclass); break;
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            if (dialog->OnKey(window, message, wParam)) return 0;
            break;
        case WM_CHAR:
        case WM_SYSCHAR:
            // The characters of keys such as Ctrl+C are no text to look for.
            if (onList && wParam < L' ') return 0;
            break;
        case WM_GETDLGCODE: {
            // Enter belongs to a selected row; without one it is the default button's.
            const auto* key = reinterpret_cast<const MSG*>(lParam);
            const bool own = onList && key && key->message == WM_KEYDOWN && key->wParam == VK_RETURN &&
                             dialog->list_.Selected() >= 0;
            return DefSubclassProc(window, message, wParam, lParam) | (own ? DLGC_WANTMESSAGE : 0);
        }
        default: break;
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

bool ManagerDlg::OnKey(HWND control, UINT message, WPARAM pressed) const noexcept {
    const bool alt = message == WM_SYSKEYDOWN;
    if (IsDown(VK_SHIFT)) return false;
    for (const Key& key : kKeys) {
        if (key.key != pressed || key.alt != alt || key.control != IsDown(VK_CONTROL)) continue;
        if (!key.everywhere && control != list_.Window()) continue;
        Post(key.command);
        return true;
    }
    return false;
}

void ManagerDlg::Post(int control) const noexcept {
    PostMessageW(Window(), WM_COMMAND, static_cast<WPARAM>(control), 0);
}

void ManagerDlg::OnActivateRow() {
    const ManagerState state = State();
    if (state.rowSelected) Post(IsEnabled(Command::Edit, state) ? IDC_MANAGER_EDIT : IDC_MANAGER_PROPERTIES);
}

void ManagerDlg::ShowOpenMenu() {
    const ui::Menu menu = MakeMenu();
    Append(menu, IDC_MANAGER_OPEN, ui::LoadText(IDS_MENU_OPEN));
    const std::vector<std::wstring> files = recent_.Entries();
    if (!files.empty()) AppendSeparator(menu);
    for (size_t i = 0; i < files.size(); ++i)
        Append(menu, kFirstRecentEntry + static_cast<UINT>(i), EntryOf(files[i]));
    const UINT chosen = DropFrom(menu, Window(), Item(IDC_MANAGER_OPEN));
    if (chosen == IDC_MANAGER_OPEN) Post(IDC_MANAGER_OPEN);
    if (chosen >= kFirstRecentEntry && chosen - kFirstRecentEntry < files.size())
        OpenKnown(files[chosen - kFirstRecentEntry]);
}

void ManagerDlg::ShowSaveMenu() {
    const ManagerState state = State();
    const ui::Menu menu = MakeMenu();
    Append(menu, IDC_MANAGER_SAVE, ui::LoadText(IDS_MENU_SAVE), IsEnabled(Command::Save, state));
    Append(menu, kSaveAsEntry, ui::LoadText(IDS_MENU_SAVE_AS), IsEnabled(Command::SaveAs, state));
    const UINT chosen = DropFrom(menu, Window(), Item(IDC_MANAGER_SAVE));
    if (chosen == IDC_MANAGER_SAVE) Post(IDC_MANAGER_SAVE);
    if (chosen == kSaveAsEntry) Run(Command::SaveAs);
}

void ManagerDlg::ShowContextMenu(POINT point) {
    if (point.x == -1 && point.y == -1) {  // by the keyboard: at the selected row
        RECT row{LVIR_LABEL, 0, 0, 0};
        const int selected = list_.Selected();
        if (selected < 0 || !ListView_GetItemRect(list_.Window(), selected, &row, LVIR_LABEL)) row = {};
        point = {row.left, row.bottom};
        ClientToScreen(list_.Window(), &point);
    }
    struct Entry {
        int control;
        Command command;
        int text;
    };
    constexpr Entry kEntries[] = {{IDC_MANAGER_NEW_SCENARIO, Command::NewScenario, IDS_TIP_NEW_SCENARIO},
                                  {IDC_MANAGER_EDIT, Command::Edit, IDS_TIP_EDIT},
                                  {IDC_MANAGER_PROPERTIES, Command::Properties, IDS_TIP_PROPERTIES},
                                  {0, Command::Close, 0},
                                  {IDC_MANAGER_COPY, Command::Copy, IDS_MENU_COPY},
                                  {IDC_MANAGER_PASTE, Command::Paste, IDS_MENU_PASTE},
                                  {IDC_MANAGER_DELETE, Command::Delete, IDS_TIP_DELETE}};
    const ManagerState state = State();
    const ui::Menu menu = MakeMenu();
    for (const Entry& entry : kEntries) {
        if (entry.control == 0) {
            AppendSeparator(menu);
        } else {
            Append(menu, static_cast<UINT>(entry.control), ui::LoadText(entry.text),
                   IsEnabled(entry.command, state));
        }
    }
    if (const UINT chosen = Track(menu, Window(), point)) Post(static_cast<int>(chosen));
}

}  // namespace recoveryui::manager

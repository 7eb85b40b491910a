#include "ui/Clipboard.h"

#include <commctrl.h>
#include <windowsx.h>

#include <cstring>
#include <cwchar>

#include "resources/ids.h"
#include "ui/Handles.h"
#include "ui/ListView.h"
#include "ui/Strings.h"

namespace recoveryui::ui {
namespace {

bool HasClass(HWND control, const wchar_t* name) {
    wchar_t own[32] = {};
    GetClassNameW(control, own, static_cast<int>(std::size(own)));
    return lstrcmpiW(own, name) == 0;
}

std::wstring SelectedRows(const ListView& list) {
    const int columns = Header_GetItemCount(ListView_GetHeader(list.Window()));
    std::wstring text;
    for (const int row : list.AllSelected()) {
        if (!text.empty()) text += L"\r\n";
        for (int column = 0; column < columns; ++column)
            text += (column ? L"\t" : L"") + list.Text(row, column);
    }
    return text;
}

std::wstring SelectedItem(HWND tree) {
    std::wstring text(256, L'\0');
    TVITEMW item{};
    item.mask = TVIF_TEXT;
    item.hItem = TreeView_GetSelection(tree);
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    if (!item.hItem || !TreeView_GetItem(tree, &item)) return {};
    text.resize(std::wcslen(text.c_str()));
    return text;
}

bool CopyFrom(HWND control) {
    const std::wstring text = SelectedText(control);
    return !text.empty() && CopyToClipboard(control, text);
}

// With the keyboard the menu has no place of its own: it opens at the control's corner.
POINT MenuPlace(HWND control, LPARAM place) {
    if (place != -1) return {GET_X_LPARAM(place), GET_Y_LPARAM(place)};
    RECT area{};
    GetWindowRect(control, &area);
    return {area.left, area.top};
}

}  // namespace

std::wstring SelectedText(HWND control) {
    if (HasClass(control, WC_LISTVIEWW)) return SelectedRows(ListView(control));
    return HasClass(control, WC_TREEVIEWW) ? SelectedItem(control) : std::wstring();
}

bool CopyToClipboard(HWND owner, const std::wstring& text) {
    const size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    void* const room = memory ? GlobalLock(memory) : nullptr;
    bool taken = false;
    if (room) {
        std::memcpy(room, text.c_str(), bytes);
        GlobalUnlock(memory);
        // What was copied before goes only when there is something to take its place.
        if (OpenClipboard(owner)) {
            EmptyClipboard();
            taken = SetClipboardData(CF_UNICODETEXT, memory) != nullptr;
            CloseClipboard();
        }
    }
    // The clipboard owns the memory only once it has taken it.
    if (memory && !taken) GlobalFree(memory);
    return taken;
}

bool CopyOnKey(const NMHDR& header) {
    if ((header.code != LVN_KEYDOWN && header.code != TVN_KEYDOWN) || GetKeyState(VK_CONTROL) >= 0)
        return false;
    const WORD key = header.code == LVN_KEYDOWN ? reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey
                                                : reinterpret_cast<const NMTVKEYDOWN&>(header).wVKey;
    if (key == 'C') return CopyFrom(header.hwndFrom);
    if (key != 'A' || header.code != LVN_KEYDOWN) return false;
    ListView_SetItemState(header.hwndFrom, -1, LVIS_SELECTED, LVIS_SELECTED);
    return true;
}

bool CopyFromContextMenu(HWND dialog, HWND control, LPARAM place) {
    if (SelectedText(control).empty()) return false;
    const Menu menu(CreatePopupMenu());
    constexpr UINT_PTR kCopy = 1;
    AppendMenuW(menu.Get(), MF_STRING, kCopy, LoadText(IDS_MENU_COPY).c_str());
    const POINT corner = MenuPlace(control, place);
    if (TrackPopupMenu(menu.Get(), TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON, corner.x, corner.y, 0,
                       dialog, nullptr) == static_cast<BOOL>(kCopy))
        CopyFrom(control);
    return true;
}

}  // namespace recoveryui::ui

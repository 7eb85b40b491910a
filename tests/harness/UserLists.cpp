// The part of the user's screen that reads and chooses rows.
#include <windows.h>

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <functional>
#include <stdexcept>

#include "harness/ProcessWindows.h"
#include "harness/UserScreen.h"

namespace recoveryui::test {
namespace {

enum class Kind { ListView, ListBox, Combo, Tree };

Kind KindOf(HWND list) {
    const std::wstring name = ClassOf(list);
    if (name == WC_LISTVIEWW) return Kind::ListView;
    if (name == WC_TREEVIEWW) return Kind::Tree;
    if (name == L"ListBox") return Kind::ListBox;
    if (name == L"ComboBox") return Kind::Combo;
    throw std::runtime_error("not a list: " + Utf8(name));
}

std::wstring ListViewText(HWND list, int row, int column) {
    wchar_t text[4096] = L"";
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = 4096;
    SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return item.pszText == LPSTR_TEXTCALLBACKW ? L"" : item.pszText;
}

void TreeRows(HWND tree, HTREEITEM item, int level, Rows& rows, std::vector<HTREEITEM>* items) {
    for (; item; item = TreeView_GetNextSibling(tree, item)) {
        wchar_t text[1024] = L"";
        TVITEMW info{};
        info.mask = TVIF_TEXT;
        info.hItem = item;
        info.pszText = text;
        info.cchTextMax = 1024;
        SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&info));
        rows.push_back(std::wstring(static_cast<size_t>(level) * 2, L' ') + text);
        if (items) items->push_back(item);
        TreeRows(tree, TreeView_GetChild(tree, item), level + 1, rows, items);
    }
}

// Of a list box or a combo box, by its messages.
Rows Texts(HWND list, UINT count, UINT length, UINT read) {
    Rows rows(static_cast<size_t>(SendMessageW(list, count, 0, 0)));
    for (size_t row = 0; row < rows.size(); ++row) {
        rows[row].resize(static_cast<size_t>(SendMessageW(list, length, row, 0)));
        SendMessageW(list, read, row, reinterpret_cast<LPARAM>(rows[row].data()));
    }
    return rows;
}

Rows Read(HWND list, std::vector<HTREEITEM>* items = nullptr) {
    Rows rows;
    switch (KindOf(list)) {
        case Kind::ListView: {
            const HWND header = ListView_GetHeader(list);
            const int columns = header ? std::max(1, Header_GetItemCount(header)) : 1;
            for (int row = 0; row < ListView_GetItemCount(list); ++row) {
                rows.push_back(ListViewText(list, row, 0));
                for (int column = 1; column < columns; ++column)
                    rows.back() += L" | " + ListViewText(list, row, column);
            }
            break;
        }
        case Kind::ListBox: return Texts(list, LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT);
        case Kind::Combo: return Texts(list, CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT);
        case Kind::Tree: TreeRows(list, TreeView_GetRoot(list), 0, rows, items); break;
    }
    return rows;
}

bool IsChosen(HWND list, int row, const std::vector<HTREEITEM>& items) {
    switch (KindOf(list)) {
        case Kind::ListView: return ListView_GetItemState(list, row, LVIS_SELECTED) != 0;
        case Kind::ListBox: return ListBox_GetSel(list, row) > 0;
        case Kind::Combo: return ComboBox_GetCurSel(list) == row;
        case Kind::Tree: return TreeView_GetSelection(list) == items[static_cast<size_t>(row)];
    }
    return false;
}

RECT PlaceOf(HWND list, int row) {
    RECT place{};
    if (KindOf(list) == Kind::ListView) {
        ListView_EnsureVisible(list, row, FALSE);
        ListView_GetItemRect(list, row, &place, LVIR_LABEL);
    } else {
        ListBox_SetTopIndex(list, row);
        ListBox_GetItemRect(list, row, &place);
    }
    return place;
}

}  // namespace

Rows UserScreen::RowsOf(HWND window, int id) {
    return Read(Control(window, id));
}

Rows UserScreen::Chosen(HWND window, int id) {
    const HWND list = Control(window, id);
    std::vector<HTREEITEM> items;
    const Rows rows = Read(list, &items);
    Rows chosen;
    for (size_t row = 0; row < rows.size(); ++row) {
        if (IsChosen(list, static_cast<int>(row), items)) chosen.push_back(rows[row]);
    }
    return chosen;
}

int UserScreen::RowIndex(HWND list, const std::wstring& row) {
    const Rows rows = Read(list);
    for (size_t i = 0; i < rows.size(); ++i) {
        const std::wstring text = rows[i].substr(std::min(rows[i].size(), rows[i].find_first_not_of(L' ')));
        if (text == row || text.rfind(row + L" | ", 0) == 0) return static_cast<int>(i);
    }
    throw std::runtime_error("no row \"" + Utf8(row) + "\"");
}

void UserScreen::ClickAt(HWND control, POINT place, bool twice) {
    const LPARAM at = MAKELPARAM(place.x, place.y);
    Do([=] {
        for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK}) {
            if (message == WM_LBUTTONDBLCLK && !twice) break;
            PostMessageW(control, message, MK_LBUTTON, at);
            PostMessageW(control, WM_LBUTTONUP, 0, at);
        }
    });
}

void UserScreen::ClickRow(HWND list, int index, bool twice) {
    std::vector<HTREEITEM> items;
    switch (KindOf(list)) {
        case Kind::Combo:
            Do([=] {
                ComboBox_SetCurSel(list, index);
                SendMessageW(GetParent(list), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), CBN_SELCHANGE),
                             reinterpret_cast<LPARAM>(list));
            });
            return;
        case Kind::Tree: {
            Read(list, &items);
            const HTREEITEM item = items[static_cast<size_t>(index)];
            Do([=] {
                SetFocus(list);
                TreeView_SelectItem(list, item);
            });
            RECT place{};
            if (!twice || !TreeView_GetItemRect(list, item, &place, TRUE)) return;
            ClickAt(list, {place.left + 6, (place.top + place.bottom) / 2}, true);
            return;
        }
        default: break;
    }
    const RECT place = PlaceOf(list, index);
    ClickAt(list, {place.left + 6, (place.top + place.bottom) / 2}, twice);
}

void UserScreen::Choose(HWND window, int id, const std::wstring& row) {
    const HWND list = Usable(window, id);
    ClickRow(list, RowIndex(list, row), false);
}

void UserScreen::DoubleClick(HWND window, int id, const std::wstring& row) {
    const HWND list = Usable(window, id);
    ClickRow(list, RowIndex(list, row), true);
}

void UserScreen::ToggleRow(HWND window, int id, const std::wstring& row) {
    const HWND list = Usable(window, id);
    const int index = RowIndex(list, row);
    ListView_EnsureVisible(list, index, FALSE);
    RECT icon{};
    ListView_GetItemRect(list, index, &icon, LVIR_ICON);
    ClickAt(list, {icon.left - 8, (icon.top + icon.bottom) / 2}, false);
}

bool UserScreen::IsRowChecked(HWND window, int id, const std::wstring& row) {
    const HWND list = Control(window, id);
    return ListView_GetCheckState(list, RowIndex(list, row));
}

bool UserScreen::IsLastRowInView(HWND window, int id) {
    const HWND list = Control(window, id);
    RECT row{}, view{};
    Do([&] {
        GetClientRect(list, &view);
        ListView_GetItemRect(list, ListView_GetItemCount(list) - 1, &row, LVIR_BOUNDS);
    });
    return row.bottom <= view.bottom && ListView_GetTopIndex(list) > 0 &&
           !(GetWindowLongW(list, GWL_STYLE) & WS_HSCROLL);
}

}  // namespace recoveryui::test

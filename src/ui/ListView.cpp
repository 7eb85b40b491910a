#include "ui/ListView.h"

#include "ui/Picture.h"

namespace recoveryui::ui {
namespace {

constexpr int kIconSize = 16;  // at 96 DPI

LVITEMW StateItem(UINT state) {
    LVITEMW item{};
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    item.state = state;
    return item;
}

}  // namespace

void ListView::SetExtendedStyle(DWORD style) const {
    SendMessageW(window_, LVM_SETEXTENDEDLISTVIEWSTYLE, style, static_cast<LPARAM>(style));
}

void ListView::SetIcons(std::span<const int> ids) const {
    // The view destroys its last list itself.
    ImageList_Destroy(ListView_SetImageList(window_, LoadIcons(window_, ids, kIconSize), LVSIL_SMALL));
}

void ListView::AddColumn(const std::wstring& title) const {
    const HWND header = ListView_GetHeader(window_);
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_SUBITEM;
    column.pszText = const_cast<LPWSTR>(title.c_str());
    column.iSubItem = Header_GetItemCount(header);
    SendMessageW(window_, LVM_INSERTCOLUMNW, static_cast<WPARAM>(column.iSubItem),
                 reinterpret_cast<LPARAM>(&column));
}

int ListView::InsertRow(int index, const std::wstring& text, int image, LPARAM data) const {
    LVITEMW item{};
    item.mask = LVIF_TEXT | LVIF_PARAM | (image >= 0 ? LVIF_IMAGE : 0);
    item.iItem = index;
    item.pszText = const_cast<LPWSTR>(text.c_str());
    item.iImage = image;
    item.lParam = data;
    return static_cast<int>(SendMessageW(window_, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)));
}

void ListView::SetText(int row, int column, const std::wstring& text) const {
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = const_cast<LPWSTR>(text.c_str());
    SendMessageW(window_, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

std::wstring ListView::Text(int row, int column) const {
    std::wstring text(256, L'\0');
    for (;;) {
        LVITEMW item{};
        item.iSubItem = column;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        const auto length = static_cast<size_t>(SendMessageW(
            window_, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item)));
        if (length + 1 < text.size()) {
            text.resize(length);
            return text;
        }
        text.resize(text.size() * 2);
    }
}

void ListView::DeleteRow(int row) const {
    ListView_DeleteItem(window_, row);
}
void ListView::Clear() const {
    ListView_DeleteAllItems(window_);
}
int ListView::Count() const {
    return ListView_GetItemCount(window_);
}
int ListView::Selected() const {
    return ListView_GetNextItem(window_, -1, LVNI_SELECTED);
}

std::vector<int> ListView::AllSelected() const {
    std::vector<int> rows;
    for (int row = Selected(); row >= 0; row = ListView_GetNextItem(window_, row, LVNI_SELECTED))
        rows.push_back(row);
    return rows;
}

void ListView::Select(int row) const {
    ClearSelection();
    if (row < 0) return;
    LVITEMW item = StateItem(LVIS_SELECTED | LVIS_FOCUSED);
    SendMessageW(window_, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    ListView_EnsureVisible(window_, row, FALSE);
}

// Told to clear all rows, a virtual list walks through them; mostly there is one to be told about.
void ListView::ClearSelection() const {
    const bool several = ListView_GetSelectedCount(window_) > 1;
    for (const UINT state : {LVNI_SELECTED, LVNI_FOCUSED}) {
        const int row = several ? -1 : ListView_GetNextItem(window_, -1, state);
        if (row < 0 && !several) continue;
        LVITEMW item = StateItem(0);
        SendMessageW(window_, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    }
}

void ListView::FitColumnToContents(int column) const {
    ListView_SetColumnWidth(window_, column, LVSCW_AUTOSIZE);
}

void ListView::FitColumnToHeader(int column) const {
    ListView_SetColumnWidth(window_, column, LVSCW_AUTOSIZE_USEHEADER);
    // Some versions of the control leave no room for the header's own margins.
    const int least = HeaderWidth(column);
    if (ListView_GetColumnWidth(window_, column) < least) ListView_SetColumnWidth(window_, column, least);
}

int ListView::HeaderWidth(int column) const {
    wchar_t title[128] = L"";
    LVCOLUMNW header{};
    header.mask = LVCF_TEXT;
    header.pszText = title;
    header.cchTextMax = static_cast<int>(std::size(title));
    SendMessageW(window_, LVM_GETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&header));
    const int margin = GetSystemMetrics(SM_CXEDGE) * 12;
    return ListView_GetStringWidth(window_, title) + margin;
}

void ListView::FitColumn(int column) const {
    FitColumnToContents(column);
    const int contents = ListView_GetColumnWidth(window_, column);
    FitColumnToHeader(column);
    if (ListView_GetColumnWidth(window_, column) < contents)
        ListView_SetColumnWidth(window_, column, contents);
}

// Inserting into a visible list without this costs a repaint a row.
ListView::Filling::Filling(const ListView& list) : window_(list.Window()) {
    SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
}

ListView::Filling::~Filling() {
    SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(window_, nullptr, TRUE);
}

}  // namespace recoveryui::ui

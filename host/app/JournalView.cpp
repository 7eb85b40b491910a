#include "app/JournalView.h"

#include <algorithm>
#include <cstring>

#include "app/Text.h"
#include "app/ids.h"
#include "com/Guard.h"
#include "com/Module.h"

namespace tovarin {
namespace com = recoveryui::com;
namespace {

struct Column {
    int title;
    int width;  // at 96 dots per inch
};
constexpr Column kColumns[JournalRow::kColumns] = {
    {IDS_COLUMN_TIME, 90},       {IDS_COLUMN_OBJECT, 150}, {IDS_COLUMN_OPERATION, 140},
    {IDS_COLUMN_ARGUMENTS, 300}, {IDS_COLUMN_RESULT, 220},
};

}  // namespace

void JournalView::Create(HWND parent) {
    list_ = CreateWindowExW(0, WC_LISTVIEWW, LoadText(IDS_JOURNAL).c_str(),
                            WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_OWNERDATA |
                                LVS_SHOWSELALWAYS | LVS_NOSORTHEADER,
                            0, 0, 0, 0, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(kId)),
                            com::Module::Instance(), nullptr);
    if (!list_) com::Check(E_FAIL);
    ListView_SetExtendedListViewStyle(list_, LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP);
    int index = 0;
    for (const Column& column : kColumns) {
        std::wstring title = LoadText(column.title);
        LVCOLUMNW entry{};
        entry.mask = LVCF_TEXT | LVCF_WIDTH;
        entry.cx = column.width;
        entry.pszText = title.data();
        ListView_InsertColumn(list_, index++, &entry);
    }
}

void JournalView::SetScale(HFONT font, int dpi) {
    SendMessageW(list_, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    dpi_ = dpi;
    int index = 0;
    for (const Column& column : kColumns)
        ListView_SetColumnWidth(list_, index++, MulDiv(column.width, dpi, 96));
    StretchLastColumn();
}

void JournalView::Place(const RECT& place) {
    MoveWindow(list_, place.left, place.top, place.right - place.left, place.bottom - place.top, TRUE);
    StretchLastColumn();
}

// To the scroll bar, whether it is there yet or not, but never narrower than its own width.
void JournalView::StretchLastColumn() {
    constexpr int kLast = JournalRow::kColumns - 1;
    RECT place{};
    GetWindowRect(list_, &place);
    int width = place.right - place.left - GetSystemMetrics(SM_CXVSCROLL);
    for (int column = 0; column < kLast; ++column) width -= ListView_GetColumnWidth(list_, column);
    ListView_SetColumnWidth(list_, kLast, std::max(width, MulDiv(kColumns[kLast].width, dpi_, 96)));
}

void JournalView::Add(std::vector<JournalRow> rows) {
    if (rows.empty()) return;
    const int last = static_cast<int>(rows_.Count()) - 1;
    const bool follows = last < ListView_GetTopIndex(list_) + ListView_GetCountPerPage(list_);
    if (rows_.Add(std::move(rows)) > 0) ListView_SetItemState(list_, -1, 0, LVIS_SELECTED);
    ListView_SetItemCountEx(list_, static_cast<int>(rows_.Count()), LVSICF_NOSCROLL);
    if (follows) ListView_EnsureVisible(list_, static_cast<int>(rows_.Count()) - 1, FALSE);
}

void JournalView::Clear() {
    rows_.Clear();
    ListView_SetItemCountEx(list_, 0, 0);
}

void JournalView::OnDisplayInfo(NMLVDISPINFOW& info) const {
    LVITEMW& item = info.item;
    if (!(item.mask & LVIF_TEXT) || item.cchTextMax <= 0) return;
    const auto row = static_cast<size_t>(item.iItem);
    const std::wstring text = row < rows_.Count() && item.iSubItem < JournalRow::kColumns
                                  ? rows_.At(row).cells[static_cast<size_t>(item.iSubItem)]
                                  : std::wstring();
    const size_t length = std::min(text.size(), static_cast<size_t>(item.cchTextMax) - 1);
    std::memcpy(item.pszText, text.data(), length * sizeof(wchar_t));
    item.pszText[length] = L'\0';
}

bool JournalView::HasSelection() const {
    return ListView_GetSelectedCount(list_) > 0;
}

void JournalView::SelectAll() {
    ListView_SetItemState(list_, -1, LVIS_SELECTED, LVIS_SELECTED);
}

void JournalView::Copy() const {
    std::vector<size_t> chosen;
    for (int row = -1; (row = ListView_GetNextItem(list_, row, LVNI_SELECTED)) != -1;)
        chosen.push_back(static_cast<size_t>(row));
    if (!chosen.empty()) CopyToClipboard(list_, rows_.TextOf(chosen));
}

void CopyToClipboard(HWND owner, const std::wstring& text) {
    const size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (!memory) com::Check(E_OUTOFMEMORY);
    std::memcpy(GlobalLock(memory), text.c_str(), bytes);
    GlobalUnlock(memory);
    if (!OpenClipboard(owner)) {
        GlobalFree(memory);
        com::Check(HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED));
    }
    EmptyClipboard();
    if (!SetClipboardData(CF_UNICODETEXT, memory)) GlobalFree(memory);
    CloseClipboard();
}

}  // namespace tovarin

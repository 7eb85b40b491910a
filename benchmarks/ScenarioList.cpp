// Filling the Manager's list beside inserting the same rows into an ordinary list view.
#include "manager/ScenarioList.h"

#include <windows.h>

#include <commctrl.h>

#include "Compare.h"
#include "Rows.h"
#include "Stage.h"

namespace recoveryui::bench {
namespace {

constexpr int kRows = 100'000;

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NOTIFY) {
        auto* list = reinterpret_cast<manager::ScenarioList*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        LRESULT answer = 0;
        if (list && list->OnNotify(*reinterpret_cast<NMHDR*>(lParam), answer)) return answer;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

HWND MakeList(DWORD style) {
    WNDCLASSW definition{};
    definition.lpfnWndProc = &Procedure;
    definition.hInstance = GetModuleHandleW(nullptr);
    definition.lpszClassName = L"BenchList";
    RegisterClassW(&definition);
    const HWND parent = CreateWindowW(definition.lpszClassName, L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                      400, 300, nullptr, nullptr, definition.hInstance, nullptr);
    return CreateWindowW(WC_LISTVIEWW, L"",
                         WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_NOCOLUMNHEADER | LVS_SINGLESEL | style, 0,
                         0, 380, 260, parent, nullptr, definition.hInstance, nullptr);
}

void Insert(HWND list, const std::vector<std::wstring>& names) {
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    ListView_DeleteAllItems(list);
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    for (const std::wstring& name : names) {
        item.pszText = const_cast<LPWSTR>(name.c_str());
        ListView_InsertItem(list, &item);
        ++item.iItem;
    }
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    Settle(GetParent(list));
}

}  // namespace

void MeasureScenarioList() {
    std::vector<std::wstring> names;
    for (int i = 0; i < kRows; ++i) names.push_back(L"Out of paper " + std::to_wstring(i));

    const HWND own = MakeList(LVS_OWNERDATA), ordinary = MakeList(0);
    manager::ScenarioList list;
    list.Attach(own, [](const std::wstring&) { return 0; });
    SetWindowLongPtrW(GetParent(own), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&list));
    LVCOLUMNW column{};
    column.mask = LVCF_WIDTH;
    column.cx = 300;
    ListView_InsertColumn(ordinary, 0, &column);

    const auto fill = [&] {
        list.Fill(names);
        Settle(GetParent(own));
    };
    Compare({{"scenario list: fill 100,000 rows", 0.05}}, 7, Timed(fill),
            Timed([&] { Insert(ordinary, names); }));
    for (const HWND window : {own, ordinary}) {
        Require(ListView_GetItemCount(window) == kRows, "a list is not filled");
        DestroyWindow(GetParent(window));
    }
}

}  // namespace recoveryui::bench

#include "manager/ScenarioList.h"

#include "manager/NameSearch.h"
#include "resources/ids.h"

namespace recoveryui::manager {
namespace {

constexpr signed char kUnknown = -1;
constexpr int kIcons[] = {IDI_TRIGGER_OBJECT_STATE, IDI_TRIGGER_POPUP, IDI_TRIGGER_ERROR, IDI_TRIGGER_CRASH,
                          IDI_SCENARIO_UNREADABLE};

}  // namespace

void ScenarioList::Attach(HWND window, ImageOf imageOf) {
    view_ = ui::ListView(window);
    imageOf_ = std::move(imageOf);
    view_.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP);
    MakeImages();
    view_.AddColumn({});
    FitColumn();
}

void ScenarioList::MakeImages() const { view_.SetIcons(kIcons); }

void ScenarioList::Fill(std::vector<std::wstring> names) {
    names_ = std::move(names);
    images_.assign(names_.size(), kUnknown);
    view_.ClearSelection();
    ListView_SetItemCountEx(view_.Window(), Count(), 0);
    InvalidateRect(view_.Window(), nullptr, TRUE);
    FitColumn();
}

void ScenarioList::FitColumn() const {
    if (!view_.Window()) return;
    RECT client{};
    GetClientRect(view_.Window(), &client);
    ListView_SetColumnWidth(view_.Window(), 0, client.right);
}

int ScenarioList::Selected() const {
    const int row = view_.Selected();
    return row < Count() ? row : -1;
}

bool ScenarioList::OnNotify(NMHDR& header, LRESULT& answer) {
    switch (header.code) {
        case LVN_GETDISPINFOW: Show(reinterpret_cast<NMLVDISPINFOW&>(header).item); return true;
        case LVN_ODFINDITEMW: answer = Find(reinterpret_cast<const NMLVFINDITEMW&>(header)); return true;
        default: return false;
    }
}

void ScenarioList::Show(LVITEMW& item) {
    if (item.iItem < 0 || item.iItem >= Count()) return;
    const auto row = static_cast<size_t>(item.iItem);
    if (item.mask & LVIF_TEXT) item.pszText = names_[row].data();
    if (!(item.mask & LVIF_IMAGE)) return;
    if (images_[row] == kUnknown) images_[row] = static_cast<signed char>(imageOf_(names_[row]));
    item.iImage = images_[row];
}

int ScenarioList::Find(const NMLVFINDITEMW& request) const {
    const UINT flags = request.lvfi.flags;
    if (!(flags & (LVFI_STRING | LVFI_PARTIAL)) || !request.lvfi.psz) return -1;
    return FindName(names_, request.lvfi.psz, request.iStart,
                    {.prefix = (flags & LVFI_PARTIAL) != 0, .wrap = (flags & LVFI_WRAP) != 0});
}

}  // namespace recoveryui::manager

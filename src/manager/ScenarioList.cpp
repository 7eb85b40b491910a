#include "manager/ScenarioList.h"

#include "model/ScenarioRows.h"

namespace recoveryui::manager {
namespace {

constexpr signed char kUnknown = -1;

}  // namespace

void ScenarioList::Attach(HWND window, ImageOf imageOf) {
    view_ = ui::ListView(window);
    imageOf_ = std::move(imageOf);
    view_.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP);
    MakeImages();
    view_.AddColumn({});
    FitColumn();
}

void ScenarioList::MakeImages() const {
    view_.SetIcons(model::kScenarioIcons);
}

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
        case LVN_ODFINDITEMW:
            answer = model::FindRow(reinterpret_cast<const NMLVFINDITEMW&>(header), Count(),
                                    [this](int row) -> std::wstring_view { return names_[row]; });
            return true;
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

}  // namespace recoveryui::manager

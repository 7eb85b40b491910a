#include "settings/AssociationView.h"

#include <algorithm>

#include "model/ScenarioRows.h"
#include "resources/ids.h"
#include "settings/CheckImages.h"
#include "ui/Dpi.h"
#include "ui/ListKeys.h"
#include "ui/Strings.h"

namespace recoveryui::settings {
namespace {

constexpr int kPicturesWidth = 50;  // at 96 DPI: check box, icon and what stands between
constexpr int kMeasuredNames = 30;
enum Column { kNameColumn, kFileColumn };
enum StateImage : UINT { kUnchecked = 1, kChecked = 2 };

int CommandOf(WPARAM key, bool alt) noexcept {
    switch (key) {
        case VK_UP: return alt ? IDC_RECOVERY_UP : 0;
        case VK_DOWN: return alt ? IDC_RECOVERY_DOWN : 0;
        case VK_DELETE: return alt ? 0 : IDC_RECOVERY_REMOVE;
        case VK_SPACE: return alt ? 0 : IDC_RECOVERY_TOGGLE;
        default: return 0;
    }
}

}  // namespace

void AssociationView::Attach(HWND window) {
    view_ = ui::ListView(window);
    view_.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP);
    view_.AddColumn(ui::LoadText(IDS_COLUMN_SCENARIO));
    view_.AddColumn(ui::LoadText(IDS_COLUMN_FILE));
    MakeImages();
    ListView_SetCallbackMask(window, LVIS_STATEIMAGEMASK);
    ui::PutBefore(window, &AssociationView::KeyProcedure);
}

void AssociationView::MakeImages() const {
    view_.SetIcons(model::kScenarioIcons);
    ImageList_Destroy(ListView_SetImageList(view_.Window(), CheckImages(view_.Window()), LVSIL_STATE));
}

void AssociationView::Refill() const {
    view_.ClearSelection();
    ListView_SetItemCountEx(view_.Window(), list_.Size(), LVSICF_NOSCROLL);
    InvalidateRect(view_.Window(), nullptr, TRUE);
}

// A virtual list told to measure its rows leaves out their pictures, and some versions ask for every row.
void AssociationView::FitColumns() const {
    RECT client{};
    GetClientRect(view_.Window(), &client);
    const int pictures = ui::ScaleForWindow(view_.Window(), kPicturesWidth);
    ListView_SetColumnWidth(view_.Window(), kNameColumn,
                            std::min<int>(LongestName() + pictures, client.right * 2 / 3));
    view_.FitColumnToHeader(kFileColumn);
}

int AssociationView::LongestName() const {
    size_t most = 0;
    for (const ScenarioAssociation& item : list_.Items()) most = std::max(most, item.name.size());
    int widest = ListView_GetStringWidth(view_.Window(), ui::LoadText(IDS_COLUMN_SCENARIO).c_str());
    int left = kMeasuredNames;
    for (const ScenarioAssociation& item : list_.Items()) {
        // Names with fewer letters are hardly ever wider.
        if (item.name.size() * 4 < most * 3) continue;
        widest = std::max(widest, ListView_GetStringWidth(view_.Window(), std::wstring(item.name).c_str()));
        if (--left == 0) break;
    }
    return widest;
}

int AssociationView::Selected() const {
    const int row = view_.Selected();
    return list_.Has(row) ? row : kNoRow;
}

int AssociationView::IconOf(int row) const {
    return list_.Has(row) ? looks_.Of(list_.Items()[row], list_).icon : kIconUnreadable;
}

bool AssociationView::OnNotify(NMHDR& header, LRESULT& answer) const {
    switch (header.code) {
        case LVN_GETDISPINFOW: Show(reinterpret_cast<NMLVDISPINFOW&>(header).item); return true;
        case LVN_ODFINDITEMW:
            answer = model::FindRow(reinterpret_cast<const NMLVFINDITEMW&>(header), list_.Size(),
                                    [this](int row) -> std::wstring_view { return list_.Items()[row].name; });
            return true;
        default: return false;
    }
}

void AssociationView::Show(LVITEMW& item) const {
    if (!list_.Has(item.iItem)) return;
    const ScenarioAssociation& shown = list_.Items()[item.iItem];
    if ((item.mask & LVIF_TEXT) && item.cchTextMax > 0) {
        const std::wstring_view text = item.iSubItem == kFileColumn ? shown.file : shown.name;
        item.pszText[text.copy(item.pszText, static_cast<size_t>(item.cchTextMax - 1))] = L'\0';
    }
    if (item.mask & LVIF_STATE) {
        item.state = INDEXTOSTATEIMAGEMASK(shown.enabled ? kChecked : kUnchecked);
        item.stateMask = LVIS_STATEIMAGEMASK;
    }
    if (item.mask & LVIF_IMAGE) item.iImage = looks_.Of(shown, list_).icon;
}

int AssociationView::ClickedCheckBox(const NMITEMACTIVATE& click) const {
    LVHITTESTINFO hit{};
    hit.pt = click.ptAction;
    ListView_SubItemHitTest(view_.Window(), &hit);
    return hit.flags == LVHT_ONITEMSTATEICON && list_.Has(hit.iItem) ? hit.iItem : kNoRow;
}

LRESULT CALLBACK AssociationView::KeyProcedure(HWND window, UINT message, WPARAM wParam,
                                               LPARAM lParam) noexcept {
    // The blank has done its work; it is not looked for.
    if (message == WM_CHAR && wParam == L' ') return 0;
    return ui::KeysToCommands<&CommandOf>(window, message, wParam, lParam);
}

}  // namespace recoveryui::settings

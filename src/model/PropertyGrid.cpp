#include "model/PropertyGrid.h"

#include <commctrl.h>

#include <utility>

#include "resources/ids.h"
#include "ui/Strings.h"

namespace recoveryui::model {
namespace {
enum Column { kNameColumn, kValueColumn };
}

void PropertyGrid::SetUp(HWND list, Use use) {
    list_ = ui::ListView(list);
    use_ = use;
    const DWORD boxes = use == Use::Check ? LVS_EX_CHECKBOXES : 0;
    list_.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_INFOTIP | LVS_EX_GRIDLINES | boxes);
    list_.AddColumn(ui::LoadText(IDS_COLUMN_PROPERTY));
    list_.AddColumn(ui::LoadText(IDS_COLUMN_VALUE));
    Show(nullptr, Rows::All);
}

void PropertyGrid::Show(ITestObject* object, Rows rows) {
    object_ = object;
    properties_ = PropertiesOf(object);
    if (rows == Rows::Identifying) properties_ = Identifying(std::move(properties_));
    {
        const ui::ListView::Filling filling(list_);
        list_.Clear();
        for (const ObjectProperty& property : properties_) {
            const int row = list_.InsertRow(list_.Count(), property.name);
            ShowValue(row);
            ShowTick(row);
        }
    }
    list_.FitColumn(kNameColumn);
    list_.FitColumnToHeader(kValueColumn);
}

const ObjectProperty* PropertyGrid::At(int row) const noexcept {
    return row >= 0 && static_cast<size_t>(row) < properties_.size() ? &properties_[static_cast<size_t>(row)]
                                                                     : nullptr;
}

// A row that is being inserted changes its state from none.
bool PropertyGrid::IsTick(const NMLISTVIEW& change) noexcept {
    const UINT before = change.uOldState & LVIS_STATEIMAGEMASK,
               after = change.uNewState & LVIS_STATEIMAGEMASK;
    return (change.uChanged & LVIF_STATE) != 0 && before != 0 && before != after;
}

HRESULT PropertyGrid::WriteTick(int row) {
    const ObjectProperty* shown = At(row);
    if (!shown || !object_ || IsTicked(row) == shown->isChecked) return S_OK;
    const HRESULT hr = object_->SetPropertyChecked(shown->index, !shown->isChecked);
    if (SUCCEEDED(hr)) properties_[static_cast<size_t>(row)].isChecked = !shown->isChecked;
    ShowTick(row);
    return hr;
}

HRESULT PropertyGrid::WriteTicks() {
    HRESULT hr = S_OK;
    for (int row = 0; SUCCEEDED(hr) && At(row); ++row) hr = WriteTick(row);
    return hr;
}

HRESULT PropertyGrid::WriteValue(int row, com::Variant value, bool isRegex) {
    if (!At(row) || !object_) return S_OK;
    ObjectProperty& property = properties_[static_cast<size_t>(row)];
    const HRESULT hr = object_->SetPropertyValue(property.index, value.Get(), isRegex);
    if (FAILED(hr)) return hr;
    property.value = std::move(value);
    property.isRegex = isRegex;
    ShowValue(row);
    return S_OK;
}

bool PropertyGrid::IsTicked(int row) const {
    return ListView_GetCheckState(list_.Window(), row) == 1;
}

void PropertyGrid::ShowTick(int row) const {
    if (use_ == Use::Check) ListView_SetCheckState(list_.Window(), row, At(row)->isChecked);
}

void PropertyGrid::ShowValue(int row) const {
    const auto text = TextOfValue(At(row)->value);
    list_.SetText(row, kValueColumn, text ? *text : ui::LoadText(IDS_COMPLEX_VALUE));
}

}  // namespace recoveryui::model

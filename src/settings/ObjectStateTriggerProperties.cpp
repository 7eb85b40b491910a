#include "settings/ObjectStateTriggerProperties.h"

#include <commctrl.h>

#include "model/ObjectTree.h"
#include "resources/ids.h"

namespace recoveryui::settings {

ObjectStateTriggerProperties::ObjectStateTriggerProperties(IUnknown* trigger, IObjectRack* rack) noexcept
    : PropertiesPage(IDD_PROPERTIES_OBJECT_STATE, rack),
      trigger_(com::Query<IObjectStateRecoveryTrigger>(trigger)) {}

void ObjectStateTriggerProperties::OnInit() {
    grid_.SetUp(Item(IDC_PROPERTIES_GRID), model::PropertyGrid::Use::ReadOnly);
    com::Ptr<ITestObject> object;
    if (!trigger_ || FAILED(trigger_->GetTestObject(object.GetAddressOf()))) return;
    if (const auto clicked = com::Query<IDispatch>(object.Get())) members_ = model::ChainOf(clicked.Get());
    model::ObjectTree(Item(IDC_PROPERTIES_TREE)).Show(members_);
    ShowMember();
}

bool ObjectStateTriggerProperties::OnNotify(NMHDR& header, LRESULT& answer) {
    if (header.idFrom != IDC_PROPERTIES_TREE || header.code != TVN_SELCHANGEDW)
        return PropertiesPage::OnNotify(header, answer);
    ShowMember();
    return true;
}

void ObjectStateTriggerProperties::ShowMember() {
    const auto selected = model::ObjectTree(Item(IDC_PROPERTIES_TREE)).Selected();
    IDispatch* member = selected && *selected < members_.size() ? members_[*selected].Get() : nullptr;
    grid_.Show(com::Query<ITestObject>(member).Get(), model::PropertyGrid::Rows::Identifying);
}

}  // namespace recoveryui::settings

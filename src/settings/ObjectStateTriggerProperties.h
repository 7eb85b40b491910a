#pragma once

#include "HostInterfaces.h"
#include "model/PropertyGrid.h"
#include "model/TestObjects.h"
#include "settings/PropertiesPage.h"

namespace recoveryui::settings {

// The hierarchy of the object that a trigger watches, and what identifies each of its members.
class ObjectStateTriggerProperties final : public PropertiesPage {
public:
    ObjectStateTriggerProperties(IUnknown* trigger, IObjectRack* rack) noexcept;

private:
    void OnInit() override;
    bool OnNotify(NMHDR& header, LRESULT& answer) override;
    void ShowMember();

    com::Ptr<IObjectStateRecoveryTrigger> trigger_;
    model::ObjectChain members_;
    model::PropertyGrid grid_;
};

}  // namespace recoveryui::settings

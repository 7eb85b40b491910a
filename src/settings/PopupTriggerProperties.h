#pragma once

#include "HostInterfaces.h"
#include "settings/PropertiesPage.h"

namespace recoveryui::settings {

// The conditions of a pop-up trigger as it stores them. Empty when one of them cannot be read.
class PopupTriggerProperties final : public PropertiesPage {
public:
    PopupTriggerProperties(IUnknown* trigger, IObjectRack* rack) noexcept;

private:
    void OnInit() override;

    com::Ptr<IPopUpRecoveryTrigger> trigger_;
};

}  // namespace recoveryui::settings

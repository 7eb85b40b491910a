#pragma once

#include "HostInterfaces.h"
#include "settings/PropertiesPage.h"

namespace recoveryui::settings {

// The processes whose crash a trigger waits for.
class CrashTriggerProperties final : public PropertiesPage {
public:
    CrashTriggerProperties(IUnknown* trigger, IObjectRack* rack) noexcept;

private:
    void OnInit() override;

    com::Ptr<ICrashRecoveryTrigger> trigger_;
};

}  // namespace recoveryui::settings

#pragma once

#include "HostInterfaces.h"
#include "settings/PropertiesPage.h"

namespace recoveryui::settings {

// The error that a trigger waits for. Empty for any error and for a code that is not known.
class ErrorTriggerProperties final : public PropertiesPage {
public:
    ErrorTriggerProperties(IUnknown* trigger, IObjectRack* rack) noexcept;

private:
    void OnInit() override;

    com::Ptr<IErrorRecoveryTrigger> trigger_;
};

}  // namespace recoveryui::settings

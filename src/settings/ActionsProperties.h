#pragma once

#include <vector>

#include "HostInterfaces.h"
#include "settings/PropertiesPage.h"

namespace recoveryui::settings {

// The scenario's operations in order, the restart last.
class ActionsProperties final : public PropertiesPage {
public:
    ActionsProperties(std::vector<com::Ptr<IRecoveryAction>> operations, bool restart,
                      IObjectRack* rack) noexcept;

private:
    void OnInit() override;

    std::vector<com::Ptr<IRecoveryAction>> operations_;
    bool restart_;
};

}  // namespace recoveryui::settings

#pragma once

#include "settings/PropertiesPage.h"

namespace recoveryui::settings {

// What the test run does after recovery.
class PostRecoveryProperties final : public PropertiesPage {
public:
    PostRecoveryProperties(long option, IObjectRack* rack) noexcept;

private:
    void OnInit() override;

    long option_;
};

}  // namespace recoveryui::settings

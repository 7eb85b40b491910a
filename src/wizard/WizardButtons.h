// Which wizard buttons a page shows and enables.
#pragma once

#include <cstdint>
#include <optional>

#include "wizard/PageFlow.h"

namespace recoveryui::wizard {

// The flags of the property sheet's set-wizard-buttons message; nothing for a position without buttons.
std::optional<std::uint32_t> WizardButtons(Position position, bool canAdvance);

}  // namespace recoveryui::wizard

// Which wizard buttons a page shows and enables, and which one Enter presses.
#pragma once

#include <cstdint>
#include <optional>

#include "wizard/PageFlow.h"

namespace recoveryui::wizard {

// The ids that every wizard frame gives its buttons.
inline constexpr int kNextButton = 0x3024;
inline constexpr int kFinishButton = 0x3025;

// The flags of the property sheet's set-wizard-buttons message; nothing for a position without buttons.
std::optional<std::uint32_t> WizardButtons(Position position, bool canAdvance);

// What Enter presses, be it disabled: in an unfinished page the sheet would take Back, which leaves it.
constexpr int DefaultButton(Position position) {
    return position == Position::Last ? kFinishButton : kNextButton;
}

}  // namespace recoveryui::wizard

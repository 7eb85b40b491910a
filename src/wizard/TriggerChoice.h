// The radio buttons of the trigger-type page. Their order is not that of the kinds' numbers.
#pragma once

#include <cstdint>
#include <optional>

#include "model/Kinds.h"

namespace recoveryui::wizard {

inline constexpr int kNoRadio = -1;

// The kind that a radio button stands for; nothing when none is chosen.
std::optional<model::TriggerKind> TriggerKindAt(int radio);

// The radio button of a kind as a trigger reports it, or kNoRadio for a kind without meaning.
int RadioOfTriggerKind(std::int32_t kind);

// The radio button that is chosen when the page is first shown. `kind` is nothing when the trigger could
// not say its kind.
int InitialTriggerRadio(bool hasTrigger, std::optional<std::int32_t> kind);

}  // namespace recoveryui::wizard

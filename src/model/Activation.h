#pragma once

#include <optional>
#include <span>

#include "model/ScenarioAssociation.h"

namespace recoveryui::model {

// The items of "Activate recovery scenarios:", numbered as in the combo.
enum class ActivationItem { None = -1, EveryStep = 0, OnError = 1, Never = 2 };
inline constexpr int kActivationItems = 3;

// What an item stores: `Enabled`, and the mode of every record.
struct ActivationValues {
    std::int32_t enabled;
    std::int32_t mode;

    bool operator==(const ActivationValues&) const = default;
};

// The caption of a combo item, a string id.
int ActivationText(ActivationItem item);

// The item data of a combo item: -1, 1, 0.
std::int32_t ActivationItemValue(ActivationItem item);

// The item to select. `enabled` is the stored `Enabled`, absent when unreadable or of another type.
ActivationItem ActivationOnReading(std::optional<std::int32_t> enabled,
                                   std::span<const ScenarioAssociation> records);

// What the selected item writes; without a selection the first record's mode is kept.
ActivationValues ActivationToWrite(ActivationItem item, std::span<const ScenarioAssociation> records);

}  // namespace recoveryui::model

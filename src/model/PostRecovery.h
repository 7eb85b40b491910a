// The six choices of what the test run does after recovery, by their place on the page.
#pragma once

#include <optional>

#include "model/Kinds.h"

namespace recoveryui::model {

inline constexpr int kNoChoice = -1;
inline constexpr int kChoiceCount = 6;

// Whether the choice can be made: with a restart only the last two can.
bool IsOffered(int choice, bool restart);

// The option that a choice stands for; nothing when it is not offered.
std::optional<PostRecoveryOption> OptionOf(int choice, bool restart);

// The choice that shows a scenario's option, or kNoChoice for a value without meaning.
int ChoiceOf(std::int32_t option);

// The string id of a choice's caption.
int CaptionOf(int choice);

// The choice when the page is first shown; `option` is that of the scenario being edited, if there is one.
int InitialChoice(std::optional<std::int32_t> option, bool restart);

// The choice when the page is shown again: one that a restart has hidden gives way to the first offered.
int ChoiceOnActivation(int choice, bool restart);

}  // namespace recoveryui::model

#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "support/ReplayErrors.h"

namespace recoveryui::settings {

// The pages of the properties sheet.
enum class SheetPage { General, ObjectState, Popup, Error, Crash, Actions, PostRecovery };

// The page of a trigger kind; absent for an unknown kind.
std::optional<SheetPage> TriggerPage(std::int32_t triggerKind);

// The pages in order. `triggerKind` is absent when it could not be read; `operationsRead`: both the
// operations and the option were.
std::vector<SheetPage> PagesOf(std::optional<std::int32_t> triggerKind, bool operationsRead);

// What the test run error page shows; null leaves it empty, as for "any error", which no step reports.
const support::ReplayError* ErrorToShow(std::int32_t code);

// The option's text, a string id, 0 for an unknown option.
int TextOfOption(std::int32_t option);

// Whether the operations end with the restart row.
bool ShowsRestart(std::int32_t option);

}  // namespace recoveryui::settings

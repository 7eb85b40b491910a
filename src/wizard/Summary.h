// The text of the wizard's last page.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "support/Text.h"

namespace recoveryui::wizard {

// The scenario as its objects describe themselves, in their own numbers.
struct SummaryContent {
    std::optional<std::int32_t> trigger;  // its kind; nothing without a trigger
    std::vector<std::int32_t> operations;
    bool restart = false;
    std::int32_t option = 0;
};

// The summary, or nothing when a kind or the option has no meaning.
std::optional<std::wstring> BuildSummary(const SummaryContent& content, const support::Strings& strings);

}  // namespace recoveryui::wizard

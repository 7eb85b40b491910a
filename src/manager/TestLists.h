#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "model/RecordString.h"

namespace recoveryui::manager {

// The record string `stored` with the scenarios `names` of `file` appended, enabled and in the mode of
// the first record ("On every step" for an empty list); absent when each is there already.
std::optional<std::wstring> WithScenarios(std::wstring_view stored, const std::wstring& file,
                                          std::span<const std::wstring> names,
                                          const model::PathConversion& toFull = {},
                                          const model::PathConversion& toStored = {});

}  // namespace recoveryui::manager

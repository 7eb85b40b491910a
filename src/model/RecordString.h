#pragma once

#include <forward_list>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/ScenarioAssociation.h"

namespace recoveryui::model {

// Turns the stored form of a path into the full one, or back; empty means "keep the path as it is".
using PathConversion = std::function<std::wstring(const std::wstring&)>;

// Texts that stay where they are while others are added.
using Texts = std::forward_list<std::wstring>;

// The complete records of a stored string, in order; what follows the first incomplete one is dropped. Their
// texts are parts of `text`, or full paths that are added to `paths`. Neighbours of the same file share one
// call of `toFull`.
std::vector<ScenarioAssociation> ReadRecords(std::wstring_view text, const PathConversion& toFull,
                                             Texts& paths);

// The same with the paths as they stand.
inline std::vector<ScenarioAssociation> ReadRecords(std::wstring_view text) {
    Texts none;
    return ReadRecords(text, {}, none);
}

// The string to store. `mode` overrides the records' own modes.
std::wstring WriteRecords(std::span<const ScenarioAssociation> records,
                          std::optional<std::int32_t> mode = std::nullopt,
                          const PathConversion& toStored = {});

}  // namespace recoveryui::model

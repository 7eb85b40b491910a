// What both targets of the recovery file promise.
#pragma once

#include "Fuzz.h"
#include "objects/store/StoreFormat.h"

namespace recoveryui::fuzz {

inline std::string TextOf(const std::vector<tovarin::store::NamedScenario>& scenarios) {
    tovarin::store::StoreWriter writer;
    for (const auto& named : scenarios) writer.Add(named.name, named.scenario);
    return writer.Finish();
}

// Gives what was read back.
inline std::vector<tovarin::store::NamedScenario> RequireRoundTrip(
    const std::vector<tovarin::store::NamedScenario>& scenarios) {
    const std::string text = TextOf(scenarios);
    std::vector<tovarin::store::NamedScenario> again;
    Require(tovarin::store::ReadStore(text, again) == tovarin::store::ReadResult::Read,
            "what was written can be read");
    Require(again.size() == scenarios.size(), "no scenario is lost");
    Require(TextOf(again) == text, "the same content gives the same bytes");
    return again;
}

}  // namespace recoveryui::fuzz

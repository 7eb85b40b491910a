// A recovery file whose every part carries one number, so that a mixture of two saves is seen.
#pragma once

#include <string>
#include <vector>

#include "objects/store/StoreFormat.h"

namespace recoveryui::proof {

inline constexpr int kScenariosOfVersion = 60;

inline std::string TextOfVersion(int version) {
    tovarin::store::StoreWriter writer;
    tovarin::store::Scenario scenario;
    scenario.trigger = tovarin::store::PopUpTrigger{{L"Error", 0}, {L"", 0}, 0};
    scenario.description = std::to_wstring(version);
    // Its length changes from one to the next.
    for (int i = 0; i < kScenariosOfVersion + version % 7; ++i)
        writer.Add(L"scenario " + std::to_wstring(i), scenario);
    return writer.Finish();
}

// -1 for anything but the whole text of one version.
inline int VersionOf(const std::string& bytes) {
    std::vector<tovarin::store::NamedScenario> scenarios;
    if (tovarin::store::ReadStore(bytes, scenarios) != tovarin::store::ReadResult::Read || scenarios.empty())
        return -1;
    const int version = static_cast<int>(wcstol(scenarios.front().scenario.description.c_str(), nullptr, 10));
    return bytes == TextOfVersion(version) ? version : -1;
}

}  // namespace recoveryui::proof

// The creatable class of the properties sheet.
#pragma once

#include <windows.h>

namespace recoveryui::settings {

// A new `ScenarioProperties`, queried for an interface. The out-argument is null on failure.
HRESULT CreateScenarioProperties(REFIID iid, void** object) noexcept;

}  // namespace recoveryui::settings

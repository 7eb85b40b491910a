// What every list of scenarios needs: its icons, and the row that the user looks for by its letters.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <string_view>

#include "resources/ids.h"

namespace recoveryui::model {

// By trigger kind, then the icon of a scenario that cannot be read.
inline constexpr int kScenarioIcons[] = {IDI_TRIGGER_OBJECT_STATE, IDI_TRIGGER_POPUP, IDI_TRIGGER_ERROR,
                                         IDI_TRIGGER_CRASH, IDI_SCENARIO_UNREADABLE};

// The answer to LVN_ODFINDITEM; -1 for no such row.
int FindRow(const NMLVFINDITEMW& request, int count, const std::function<std::wstring_view(int)>& nameAt);

}  // namespace recoveryui::model

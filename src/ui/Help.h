// The one way to a help topic.
#pragma once

#include <windows.h>

struct IObjectRack;

namespace recoveryui::ui {

// Shows a topic (a file name such as "Recovery_Scenario_Wizard_Welcome.htm") in the host's help viewer
// when the rack has one, else in the platform's viewer for the file in the module's help folder. A
// missing topic is reported to the user.
void ShowHelpTopic(HWND window, const wchar_t* topic, IObjectRack* rack);

}  // namespace recoveryui::ui

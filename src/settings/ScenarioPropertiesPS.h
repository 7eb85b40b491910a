// The read-only sheet of one scenario.
#pragma once

#include <string>

#include "HostInterfaces.h"
#include "RecoveryUI.h"
#include "com/Ptr.h"
#include "settings/PropertiesPages.h"
#include "ui/PropertySheet.h"

namespace recoveryui::settings {

class ScenarioPropertiesPS final : public ui::PropertySheet {
public:
    // What has no meaning here, or cannot be read, has no page.
    ScenarioPropertiesPS(IRecoveryScenario& scenario, IUnknown* trigger, const std::wstring& file,
                         const std::wstring& name, IObjectRack* rack);

    void Run(HWND owner) { ShowModal(owner); }

private:
    void AddTriggerPage(SheetPage page, IUnknown* trigger, IObjectRack* rack);
};

}  // namespace recoveryui::settings

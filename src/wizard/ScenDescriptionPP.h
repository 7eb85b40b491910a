#pragma once

#include "resources/ids.h"
#include "wizard/WizardPPBase.h"

namespace recoveryui::wizard {

// Asks for the scenario's name, unique in its recovery file, and its description.
class ScenDescriptionPP final : public WizardPPBase {
public:
    explicit ScenDescriptionPP(WizardPS& sheet);

private:
    void OnInit() override;
    bool OnCommand(const ui::Command& command) override;
    Leave OnNext() override;
    // The file before it is only shown.
    HWND FirstFocus() const override { return Item(IDC_SCEN_NAME); }

    bool IsTaken(const std::wstring& name) const;

    std::wstring initialName_;
    bool isDescriptionShown_ = true;
};

}  // namespace recoveryui::wizard

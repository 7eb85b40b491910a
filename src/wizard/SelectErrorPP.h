#pragma once

#include <cstdint>
#include <optional>

#include "wizard/WizardPPBase.h"

namespace recoveryui::wizard {

// Asks for the error of the replay engine that a step fails with, or for any.
class SelectErrorPP final : public WizardPPBase {
public:
    explicit SelectErrorPP(WizardPS& sheet);

private:
    void OnInit() override;  // from the sheet's trigger, if it is an error trigger
    bool OnCommand(const ui::Command& command) override;
    Leave OnNext() override;  // a new trigger object on every Next

    void FillErrors() const;
    void SelectTriggersError();
    std::optional<std::int32_t> CodeAt(LRESULT index) const;
    LRESULT Selected() const;
    void ShowSelection();
};

}  // namespace recoveryui::wizard

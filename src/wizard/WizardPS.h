// The wizard's sheet: fifteen pages around one state.
#pragma once

#include <map>
#include <utility>

#include "ui/Picture.h"
#include "ui/PropertySheet.h"
#include "wizard/WizardState.h"

namespace recoveryui::wizard {

class WizardPS final : public ui::PropertySheet {
public:
    WizardPS();

    WizardState& State() noexcept { return state_; }
    // The font of the pages' titles, made once for all pages of that resolution.
    HFONT TitleFont(HWND page, int dpi);
    // The picture of that number, made once for all pages that show it in that size.
    HBITMAP Picture(int id, SIZE size);
    // Takes trigger, operations, option, name and description over from an existing scenario. The restart
    // flag is not derived from the option. E_FAIL when the scenario cannot be edited.
    [[nodiscard]] HRESULT Load(IRecoveryScenario* scenario, std::wstring name);
    // True after Finish. After Cancel the scenario is as it was.
    bool Run(HWND owner);

private:
    WizardState state_;
    std::map<int, ui::Font> titleFonts_;  // by DPI
    ui::Pictures loader_;
    std::map<std::pair<int, LONG>, ui::Bitmap> pictures_;  // by number and height
};

}  // namespace recoveryui::wizard

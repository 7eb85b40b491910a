#pragma once

#include "settings/PropertiesPage.h"

namespace recoveryui::settings {

// Where the scenario is kept, its name and its description.
class GeneralProperties final : public PropertiesPage {
public:
    GeneralProperties(std::wstring file, std::wstring name, std::wstring description,
                      IObjectRack* rack) noexcept;

private:
    void OnInit() override;

    std::wstring file_;
    std::wstring name_;
    std::wstring description_;
};

}  // namespace recoveryui::settings

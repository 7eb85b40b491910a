#include "settings/GeneralProperties.h"

#include <utility>

#include "resources/ids.h"

namespace recoveryui::settings {

GeneralProperties::GeneralProperties(std::wstring file, std::wstring name, std::wstring description,
                                     IObjectRack* rack) noexcept
    : PropertiesPage(IDD_PROPERTIES_GENERAL, rack),
      file_(std::move(file)),
      name_(std::move(name)),
      description_(std::move(description)) {}

void GeneralProperties::OnInit() {
    SetItemText(IDC_GENERAL_FILE, file_);
    SetItemText(IDC_GENERAL_NAME, name_);
    SetItemText(IDC_GENERAL_DESCRIPTION, description_);
}

}  // namespace recoveryui::settings

#include "settings/PostRecoveryProperties.h"

#include "resources/ids.h"
#include "settings/PropertiesPages.h"
#include "ui/Strings.h"

namespace recoveryui::settings {

PostRecoveryProperties::PostRecoveryProperties(long option, IObjectRack* rack) noexcept
    : PropertiesPage(IDD_PROPERTIES_POST_RECOVERY, rack), option_(option) {}

void PostRecoveryProperties::OnInit() {
    SetLabelText(IDC_PROPERTIES_OPTION, ui::LoadText(TextOfOption(static_cast<std::int32_t>(option_))));
}

}  // namespace recoveryui::settings

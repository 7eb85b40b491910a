#include "settings/ErrorTriggerProperties.h"

#include "resources/ids.h"
#include "settings/PropertiesPages.h"
#include "ui/Strings.h"

namespace recoveryui::settings {

ErrorTriggerProperties::ErrorTriggerProperties(IUnknown* trigger, IObjectRack* rack) noexcept
    : PropertiesPage(IDD_PROPERTIES_ERROR, rack), trigger_(com::Query<IErrorRecoveryTrigger>(trigger)) {}

void ErrorTriggerProperties::OnInit() {
    long code = 0;
    if (!trigger_ || FAILED(trigger_->GetErrorCode(&code))) return;
    const support::ReplayError* error = ErrorToShow(static_cast<std::int32_t>(code));
    if (!error) return;
    SetLabelText(IDC_PROPERTIES_ERROR, ui::LoadText(error->labelId));
    SetLabelText(IDC_PROPERTIES_ERROR_DESCRIPTION, ui::LoadText(error->descriptionId));
}

}  // namespace recoveryui::settings

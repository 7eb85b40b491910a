#include "settings/PopupTriggerProperties.h"

#include "com/Bstr.h"
#include "resources/ids.h"

namespace recoveryui::settings {

PopupTriggerProperties::PopupTriggerProperties(IUnknown* trigger, IObjectRack* rack) noexcept
    : PropertiesPage(IDD_PROPERTIES_POPUP, rack), trigger_(com::Query<IPopUpRecoveryTrigger>(trigger)) {}

void PopupTriggerProperties::OnInit() {
    com::Bstr title, text;
    long isTitleRegex = 0, isTextRegex = 0;
    if (!trigger_ || FAILED(trigger_->GetWindowTitle(title.Put(), &isTitleRegex)) ||
        FAILED(trigger_->GetWindowText(text.Put(), &isTextRegex)))
        return;
    SetItemChecked(IDC_PROPERTIES_TITLE_CHECK, !title.View().empty());
    SetItemText(IDC_PROPERTIES_TITLE, title.Text());
    SetItemChecked(IDC_PROPERTIES_TITLE_REGEX, isTitleRegex != 0);
    SetItemChecked(IDC_PROPERTIES_TEXT_CHECK, !text.View().empty());
    SetItemText(IDC_PROPERTIES_TEXT, text.Text());
    SetItemChecked(IDC_PROPERTIES_TEXT_REGEX, isTextRegex != 0);
}

}  // namespace recoveryui::settings

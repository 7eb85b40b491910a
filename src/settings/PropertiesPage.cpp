#include "settings/PropertiesPage.h"

#include "support/HelpTopics.h"
#include "ui/Clipboard.h"
#include "ui/Help.h"
#include "ui/Window.h"

namespace recoveryui::settings {

PropertiesPage::PropertiesPage(int templateId, IObjectRack* rack) noexcept
    : PropertyPage(templateId), rack_(rack) {}

void PropertiesPage::SetItemText(int id, const std::wstring& text) const {
    ui::SetText(Item(id), text);
}

// The margin inside would set it off from the labels.
void PropertiesPage::SetLabelText(int id, const std::wstring& text) const {
    SendMessageW(Item(id), EM_SETMARGINS, EC_LEFTMARGIN, 0);
    SetItemText(id, text);
}

HWND PropertiesPage::FirstFocus() const {
    return PropSheet_GetTabControl(Sheet());
}

void PropertiesPage::SetItemChecked(int id, bool checked) const {
    ui::SetChecked(Item(id), checked);
}

bool PropertiesPage::OnNotify(NMHDR& header, LRESULT& answer) {
    return ui::CopyOnKey(header) || PropertyPage::OnNotify(header, answer);
}

bool PropertiesPage::OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer) {
    if (message == WM_CONTEXTMENU)
        return ui::CopyFromContextMenu(Window(), reinterpret_cast<HWND>(wParam), lParam);
    return PropertyPage::OnMessage(message, wParam, lParam, answer);
}

void PropertiesPage::OnHelp() {
    ui::ShowHelpTopic(Window(), support::topics::kScenarioProperties, Rack());
}

}  // namespace recoveryui::settings

#include "wizard/SelectPopupPP.h"

#include "com/Create.h"
#include "resources/ids.h"
#include "ui/Window.h"

namespace recoveryui::wizard {
namespace {

constexpr int kHandIconSize = 32;

struct Controls {
    int check;
    int value;
    int regex;
};
constexpr Controls kTitle{IDC_POPUP_TITLE_CHECK, IDC_POPUP_TITLE, IDC_POPUP_TITLE_REGEX};
constexpr Controls kText{IDC_POPUP_TEXT_CHECK, IDC_POPUP_TEXT, IDC_POPUP_TEXT_REGEX};

PopupCondition ReadCondition(HWND page, const Controls& controls) {
    return {ui::IsChecked(GetDlgItem(page, controls.check)), ui::TextOf(GetDlgItem(page, controls.value)),
            ui::IsChecked(GetDlgItem(page, controls.regex))};
}

void ShowCondition(HWND page, const Controls& controls, const PopupCondition& condition) {
    ui::SetChecked(GetDlgItem(page, controls.check), condition.checked);
    ui::SetText(GetDlgItem(page, controls.value), condition.value);
    ui::SetChecked(GetDlgItem(page, controls.regex), condition.isRegex);
}

void EnableCondition(HWND page, const Controls& controls, bool enabled) {
    ui::Enable(GetDlgItem(page, controls.value), enabled);
    ui::Enable(GetDlgItem(page, controls.regex), enabled);
}

}  // namespace

SelectPopupPP::SelectPopupPP(WizardPS& sheet) : WizardPPBase(sheet, IDD_POPUP) {}

void SelectPopupPP::OnInit() {
    WizardPPBase::OnInit();
    SetButtonIcon(IDC_POPUP_HAND, IDI_POINTING_HAND, kHandIconSize);
    tips_.Add(Window(), Item(IDC_POPUP_HAND), IDS_TIP_POINTING_HAND);
}

}  // namespace recoveryui::wizard

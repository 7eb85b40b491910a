#include "wizard/SelectPopupPP.h"

#include "com/Create.h"
#include "resources/ids.h"
#include "ui/Messages.h"
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

com::Ptr<IWindowTextSource> TextSourceAmong(const std::vector<com::Ptr<IDispatch>>& objects) {
    for (const auto& object : objects) {
        if (auto source = com::Query<IWindowTextSource>(object.Get())) return source;
    }
    return nullptr;
}

void Enable(HWND page, const Controls& controls, bool enabled) {
    ui::Enable(GetDlgItem(page, controls.value), enabled);
    ui::Enable(GetDlgItem(page, controls.regex), enabled);
}

}  // namespace

SelectPopupPP::SelectPopupPP(WizardPS& sheet) : WizardPPBase(sheet, IDD_POPUP) {}

void SelectPopupPP::OnInit() {
    WizardPPBase::OnInit();
    SetButtonIcon(IDC_POPUP_HAND, IDI_POINTING_HAND, kHandIconSize);
    tips_.Add(Window(), Item(IDC_POPUP_HAND), IDS_TIP_POINTING_HAND);

    long kind = 0;
    if (State().trigger) com::Check(State().trigger->GetTriggerKind(&kind));
    const bool isPopup = State().trigger && model::TriggerKindFrom(kind) == model::TriggerKind::PopUp;
    const auto popup = isPopup ? com::Query<IPopUpRecoveryTrigger>(State().trigger.Get()) : nullptr;
    Show(popup ? ReadTrigger(*popup.Get()) : FreshConditions());
}

// A title that cannot be read ends the initialisation; a text that cannot be read only leaves its condition
// out.
PopupConditions SelectPopupPP::ReadTrigger(IPopUpRecoveryTrigger& trigger) const {
    PopupConditions conditions;
    com::Bstr title, text;
    long isRegex = 0;
    com::Check(trigger.GetWindowTitle(title.Put(), &isRegex));
    conditions.title = TitleOfTrigger(title.Text(), isRegex != 0);
    isRegex = 0;
    if (SUCCEEDED(trigger.GetWindowText(text.Put(), &isRegex)))
        conditions.text = TextOfTrigger(text.Text(), isRegex != 0);
    return conditions;
}

PopupConditions SelectPopupPP::Read() const {
    return {ReadCondition(Window(), kTitle), ReadCondition(Window(), kText)};
}

void SelectPopupPP::Show(const PopupConditions& conditions) {
    Muted muted(*this);
    ShowCondition(Window(), kTitle, conditions.title);
    ShowCondition(Window(), kText, conditions.text);
    Enable(Window(), kTitle, conditions.title.checked);
    Enable(Window(), kText, conditions.text.checked);
    Validate();
}

void SelectPopupPP::Validate() {
    SetCanAdvance(Read().Complete());
}

// Only a click enables or disables: nobody is to lose the box he types in.
void SelectPopupPP::OnChecked(int check) {
    Enable(Window(), check == kTitle.check ? kTitle : kText, ui::IsChecked(Item(check)));
    Validate();
}

HWND SelectPopupPP::FirstFocus() const {
    for (const int value : {kTitle.value, kText.value}) {
        if (IsWindowEnabled(Item(value))) return Item(value);
    }
    return Item(kTitle.check);
}

bool SelectPopupPP::OnCommand(const ui::Command& command) {
    switch (command.id) {
        case IDC_POPUP_HAND:
            if (command.code == BN_CLICKED) OnPointingHand();
            return true;
        case IDC_POPUP_TITLE_CHECK:
        case IDC_POPUP_TEXT_CHECK:
            if (command.code == BN_CLICKED) OnChecked(command.id);
            return true;
        case IDC_POPUP_TITLE:
        case IDC_POPUP_TEXT:
            if (command.code == EN_CHANGE) Validate();
            return true;
        default: return WizardPPBase::OnCommand(command);
    }
}

void SelectPopupPP::OnPointingHand() {
    const auto target = hand_.Point(Window(), State().rack.Get());
    if (!target) return;
    const auto source = TextSourceAmong(target->Objects());
    if (!source) {
        ui::ShowMessage(Window(), IDS_OBJECT_NOT_SUPPORTED);
        return;
    }
    com::Bstr text;
    com::Check(source->GetText(text.Put()));
    // An empty text still has a title to go with; no text at all is a failure.
    if (!text.IsNull()) Show(CapturedConditions(target->Title(), text.Text()));
}

Leave SelectPopupPP::OnNext() {
    const PopupConditions conditions = Read();
    com::Ptr<IPopUpRecoveryTrigger> trigger;
    com::Check(com::Create(L"Vantrel.PopUpRecoveryTrigger", trigger));
    if (conditions.title.checked)
        com::Check(
            trigger->SetWindowTitle(com::Bstr(conditions.title.value).Get(), conditions.title.isRegex));
    if (conditions.text.checked)
        com::Check(trigger->SetWindowText(com::Bstr(conditions.StoredText()).Get(), conditions.text.isRegex));
    com::Check(trigger->SetPopUpOption(0));
    return TakeTrigger(trigger.Get());
}

}  // namespace recoveryui::wizard

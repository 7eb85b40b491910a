#include "wizard/SelectPopupPP.h"

#include "com/Create.h"
#include "resources/ids.h"
#include "ui/Messages.h"
#include "ui/Window.h"

namespace recoveryui::wizard {
namespace {

constexpr int kHandIconSize = 32;

PopupCondition ReadCondition(const ConditionControls& controls) {
    return {ui::IsChecked(controls.check), ui::TextOf(controls.value), ui::IsChecked(controls.regex)};
}

void ShowCondition(const ConditionControls& controls, const PopupCondition& condition) {
    ui::SetChecked(controls.check, condition.checked);
    ui::SetText(controls.value, condition.value);
    ui::SetChecked(controls.regex, condition.isRegex);
}

com::Ptr<IWindowTextSource> TextSourceAmong(const std::vector<com::Ptr<IDispatch>>& objects) {
    for (const auto& object : objects) {
        if (auto source = com::Query<IWindowTextSource>(object.Get())) return source;
    }
    return nullptr;
}

void Enable(const ConditionControls& controls, bool enabled) {
    ui::Enable(controls.value, enabled);
    ui::Enable(controls.regex, enabled);
}

}  // namespace

SelectPopupPP::SelectPopupPP(WizardPS& sheet) : WizardPPBase(sheet, IDD_POPUP) {}

void SelectPopupPP::OnInit() {
    WizardPPBase::OnInit();
    title_ = {Item(IDC_POPUP_TITLE_CHECK), Item(IDC_POPUP_TITLE), Item(IDC_POPUP_TITLE_REGEX)};
    text_ = {Item(IDC_POPUP_TEXT_CHECK), Item(IDC_POPUP_TEXT), Item(IDC_POPUP_TEXT_REGEX)};
    SetButtonIcon(IDC_POPUP_HAND, IDI_POINTING_HAND, kHandIconSize);
    AddTip(IDC_POPUP_HAND, IDS_TIP_POINTING_HAND);

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
    return {ReadCondition(title_), ReadCondition(text_)};
}

void SelectPopupPP::Show(const PopupConditions& conditions) {
    Muted muted(*this);
    ShowCondition(title_, conditions.title);
    ShowCondition(text_, conditions.text);
    Enable(title_, conditions.title.checked);
    Enable(text_, conditions.text.checked);
    Validate();
}

void SelectPopupPP::Validate() {
    SetCanAdvance(Read().Complete());
}

// Only a click enables or disables: nobody is to lose the box he types in.
void SelectPopupPP::OnChecked(int check) {
    const ConditionControls& controls = check == IDC_POPUP_TITLE_CHECK ? title_ : text_;
    Enable(controls, ui::IsChecked(controls.check));
    Validate();
}

HWND SelectPopupPP::FirstFocus() const {
    for (const HWND value : {title_.value, text_.value}) {
        if (IsWindowEnabled(value)) return value;
    }
    return title_.check;
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

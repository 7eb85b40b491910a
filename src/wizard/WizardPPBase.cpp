#include "wizard/WizardPPBase.h"

#include <new>
#include <utility>

#include "com/Guard.h"
#include "resources/ids.h"
#include "ui/Help.h"
#include "ui/Picture.h"
#include "ui/Strings.h"
#include "ui/Window.h"

namespace recoveryui::wizard {

WizardPPBase::WizardPPBase(WizardPS& sheet, int templateId, bool canAdvance)
    : PropertyPage(templateId, ui::LoadText(IDS_WIZARD_TITLE)),
      sheet_(sheet),
      page_(PageOf(templateId)),
      canAdvance_(canAdvance) {}

std::optional<model::TriggerKind> WizardPPBase::KindOfTrigger() const {
    long kind = 0;
    if (!State().trigger || FAILED(State().trigger->GetTriggerKind(&kind))) return std::nullopt;
    return model::TriggerKindFrom(kind);
}

void WizardPPBase::SetCanAdvance(bool canAdvance) {
    if (std::exchange(canAdvance_, canAdvance) == canAdvance) return;
    // A page that was left still gets messages; the buttons are another page's by then.
    const LRESULT current = SendMessageW(Sheet(), PSM_GETCURRENTPAGEHWND, 0, 0);
    if (current != reinterpret_cast<LRESULT>(Window())) return;
    UpdateWizardButtons();
    KeepFocusLater();
}

// Posted, so that it takes effect after the message that is being handled.
void WizardPPBase::UpdateWizardButtons() const {
    const auto flags = WizardButtons(page_.position, canAdvance_);
    if (!flags) return;
    PostMessageW(Sheet(), PSM_SETWIZBUTTONS, 0, static_cast<LPARAM>(*flags));
}

// The button that was pressed may be disabled by now.
HWND WizardPPBase::NextFocus() const {
    for (const int id : {kNextButton, kFinishButton}) {
        const HWND button = GetDlgItem(Sheet(), id);
        if (IsWindowEnabled(button)) return button;
    }
    const HWND first = PropertyPage::NextFocus();
    return first ? first : GetDlgItem(Sheet(), IDCANCEL);
}

void WizardPPBase::ShowFrame() {
    const HFONT font = sheet_.TitleFont(Window(), Dpi());
    SendMessageW(Item(IDC_PAGE_TITLE), WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);

    const HWND frame = Item(IDC_PAGE_BITMAP);
    RECT area{};
    GetClientRect(frame, &area);
    const HBITMAP picture = sheet_.Picture(page_.bitmapId, {area.right, area.bottom});
    SendMessageW(frame, STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(picture));
}

// The page works without it, and the rest of its beginning matters more.
void WizardPPBase::OnInit() try {
    ShowFrame();
} catch (const std::bad_alloc&) {
}

void WizardPPBase::ShowIcon(ButtonIcon& button) {
    ui::Icon before = std::exchange(
        button.icon, ui::LoadIconOfSize(button.iconId, MulDiv(button.size, Dpi(), USER_DEFAULT_SCREEN_DPI)));
    SendDlgItemMessageW(Window(), button.control, BM_SETIMAGE, IMAGE_ICON,
                        reinterpret_cast<LPARAM>(button.icon.Get()));
}

void WizardPPBase::OnDpiChanged() {
    ShowFrame();
    for (ButtonIcon& button : icons_) ShowIcon(button);
}

LRESULT WizardPPBase::OnSetActive() {
    if (!CanBeShown()) return kStay;
    OnActivate();
    UpdateWizardButtons();
    return 0;
}

void WizardPPBase::OnHelp() {
    ui::ShowHelpTopic(Window(), page_.helpTopic, State().rack.Get());
}

Leave WizardPPBase::TakeTrigger(IUnknown* trigger) {
    com::Ptr<IRecoveryTrigger> general;
    com::Check(trigger->QueryInterface(IID_PPV_ARGS(general.GetAddressOf())));
    State().trigger = std::move(general);
    return GoOn();
}

Leave WizardPPBase::AddOperation(IUnknown* operation) {
    com::Ptr<IRecoveryAction> general;
    com::Check(operation->QueryInterface(IID_PPV_ARGS(general.GetAddressOf())));
    State().operations.push_back(std::move(general));
    return GoOn();
}

// As dispensable as the frame.
void WizardPPBase::SetButtonIcon(int control, int iconId, int size) try {
    icons_.push_back({control, iconId, size, {}});
    ShowIcon(icons_.back());
} catch (const std::bad_alloc&) {
}

}  // namespace recoveryui::wizard

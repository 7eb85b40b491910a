#include "wizard/OperationClickPP.h"

#include <commctrl.h>

#include "com/Automation.h"
#include "com/Create.h"
#include "model/KeySequence.h"
#include "resources/ids.h"
#include "ui/Messages.h"
#include "ui/Radio.h"
#include "ui/Subclass.h"
#include "ui/Window.h"
#include "wizard/WindowButtons.h"

namespace recoveryui::wizard {
namespace {

constexpr int kHandIconSize = 32;

// The choices in their own order; the buttons of a group have consecutive ids only by accident.
constexpr int kRadioIds[] = {IDC_CLICK_ENTER, IDC_CLICK_ESCAPE, IDC_CLICK_LABEL, IDC_CLICK_KEYS};

// The top-level window of the innermost object that is a window; null for none.
HWND ClickedWindow(const std::vector<com::Ptr<IDispatch>>& objects) {
    for (const auto& object : objects) {
        com::Variant id, handle;
        if (FAILED(com::GetProperty(object.Get(), L"objectid", &id)) ||
            FAILED(VariantChangeType(handle.Put(), const_cast<VARIANT*>(&id.Get()), 0, VT_I8)))
            continue;
        const auto window = reinterpret_cast<HWND>(static_cast<INT_PTR>(handle.Get().llVal));
        if (IsWindow(window)) return GetAncestor(window, GA_ROOT);
    }
    return nullptr;
}

com::CVtlSafeArray<VARIANT> ClickArguments(const std::wstring& label) {
    com::CVtlSafeArray<VARIANT> arguments;
    com::Check(arguments.Create(2));
    com::Check(arguments.PutElement(0, com::Variant(label)));
    com::Check(arguments.PutElement(1, com::Variant(kButtonAction)));
    return arguments;
}

// A letter with Alt is a key of the field; it is not also to press the button that has it as its access key.
LRESULT CALLBACK KeysProcedure(HWND field, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    const LRESULT answer = ui::CallOwn(field, message, wParam, lParam);
    MSG letter{};
    if (message == WM_SYSKEYDOWN) PeekMessageW(&letter, field, WM_SYSCHAR, WM_SYSCHAR, PM_REMOVE);
    return answer;
}

}  // namespace

OperationClickPP::OperationClickPP(WizardPS& sheet) : WizardPPBase(sheet, IDD_OPERATION_CLICK) {}

void OperationClickPP::OnInit() {
    WizardPPBase::OnInit();
    SetButtonIcon(IDC_CLICK_HAND, IDI_POINTING_HAND, kHandIconSize);
    AddTip(IDC_CLICK_HAND, IDS_TIP_POINTING_HAND);
    ui::PutBefore(Item(IDC_CLICK_HOTKEY), &KeysProcedure);
    CheckDlgButton(Window(), IDC_CLICK_ENTER, BST_CHECKED);
    Refresh();
}

ClickChoice OperationClickPP::Choice() const {
    for (size_t place = 0; place < std::size(kRadioIds); ++place) {
        if (IsDlgButtonChecked(Window(), kRadioIds[place])) return static_cast<ClickChoice>(place);
    }
    return ClickChoice::Enter;
}

void OperationClickPP::Refresh() {
    const bool hasLabels = SendMessageW(Item(IDC_CLICK_LABEL_LIST), CB_GETCOUNT, 0, 0) > 0;
    const ClickControls controls = ControlsFor(Choice(), hasLabels);
    ui::Enable(Item(IDC_CLICK_LABEL_LIST), controls.labelList);
    ui::Enable(Item(IDC_CLICK_HAND), controls.pointingHand);
    ui::Enable(Item(IDC_CLICK_HOTKEY), controls.hotKey);
    InvalidateRect(Item(IDC_CLICK_HOTKEY), nullptr, TRUE);  // some versions of the control stay grey
    ui::Enable(Item(IDC_CLICK_HINT), controls.hotKey);
    SetCanAdvance(controls.canAdvance);
}

bool OperationClickPP::OnCommand(const ui::Command& command) {
    switch (command.id) {
        case IDC_CLICK_ENTER:
        case IDC_CLICK_ESCAPE:
        case IDC_CLICK_LABEL:
        case IDC_CLICK_KEYS:
            if (command.code == BN_CLICKED) Refresh();
            return true;
        case IDC_CLICK_HAND:
            if (command.code == BN_CLICKED) OnPointingHand();
            return true;
        default: return WizardPPBase::OnCommand(command);
    }
}

// In the field for keys F1 is the key that is meant.
void OperationClickPP::OnHelp() {
    if (GetFocus() != Item(IDC_CLICK_HOTKEY)) WizardPPBase::OnHelp();
}

void OperationClickPP::OnPointingHand() {
    const auto target = hand_.Point(Window(), State().rack.Get());
    if (!target) return;
    const HWND clicked = ClickedWindow(target->Objects());
    const auto labels = ButtonLabels(clicked ? ButtonCaptions(clicked) : std::vector<std::wstring>());

    const HWND list = Item(IDC_CLICK_LABEL_LIST);
    SendMessageW(list, CB_RESETCONTENT, 0, 0);
    for (const std::wstring& label : labels)
        SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(label.c_str()));
    SendMessageW(list, CB_SETCURSEL, 0, 0);
    Refresh();
    if (labels.empty()) ui::ShowMessage(Window(), IDS_NO_BUTTONS);
}

Leave OperationClickPP::OnNext() {
    switch (Choice()) {
        case ClickChoice::Enter: return AddKeys(model::Press(model::kKeyEnter));
        case ClickChoice::Escape: return AddKeys(model::Press(model::kKeyEscape));
        case ClickChoice::ButtonLabel: return AddButtonClick();
        case ClickChoice::Keys: return AddKeyCombination();
    }
    return Leave::Stay;
}

Leave OperationClickPP::AddKeyCombination() {
    const auto hotKey = LOWORD(SendMessageW(Item(IDC_CLICK_HOTKEY), HKM_GETHOTKEY, 0, 0));
    if (LOBYTE(hotKey) == 0) {
        ui::ShowMessage(Window(), IDS_KEY_REQUIRED);
        SetFocus(Item(IDC_CLICK_HOTKEY));
        return Leave::Stay;
    }
    return AddKeys(model::PressCombination(LOBYTE(hotKey), HIBYTE(hotKey)));
}

Leave OperationClickPP::AddKeys(const std::vector<std::uint32_t>& sequence) {
    com::Ptr<IKeyBoardSimulatorRecoveryAction> operation;
    com::Check(com::Create(L"Vantrel.KeyBoardSimulatorRecoveryAction", operation));
    com::CVtlSafeArray<unsigned long> entries;
    com::Check(entries.Create(static_cast<ULONG>(sequence.size())));
    for (size_t i = 0; i < sequence.size(); ++i)
        com::Check(entries.PutElement(static_cast<LONG>(i), sequence[i]));
    com::Check(operation->SetKeySequence(entries.Get()));
    return AddOperation(operation.Get());
}

Leave OperationClickPP::AddButtonClick() {
    const std::wstring label = ui::TextOf(Item(IDC_CLICK_LABEL_LIST));
    if (label.empty()) return Leave::Stay;
    com::Ptr<IObjectAccessorRecoveryAction> operation;
    com::Check(com::Create(L"Vantrel.ObjectAccessorRecoveryAction", operation));
    com::Check(operation->SetTargetKind(kButtonTargetKind));
    com::Check(operation->SetMethodName(com::Bstr(kButtonMethod).Get()));
    com::Check(operation->SetMethodArguments(ClickArguments(label).Get()));
    return AddOperation(operation.Get());
}

}  // namespace recoveryui::wizard

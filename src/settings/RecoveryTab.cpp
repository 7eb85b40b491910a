#include "settings/RecoveryTab.h"

#include "resources/ids.h"
#include "support/HelpTopics.h"
#include "support/Text.h"
#include "ui/EditKeys.h"
#include "ui/Help.h"
#include "ui/ModuleState.h"
#include "ui/Strings.h"
#include "ui/Window.h"

namespace recoveryui::settings {
namespace {

struct ButtonRow {
    int control;
    int icon;
    int tip;
    bool TabButtons::*enabled;
};
constexpr ButtonRow kButtons[] = {
    {IDC_RECOVERY_ADD, IDI_ADD, IDS_TIP_ADD, &TabButtons::add},
    {IDC_RECOVERY_REMOVE, IDI_REMOVE, IDS_TIP_REMOVE, &TabButtons::remove},
    {IDC_RECOVERY_UP, IDI_MOVE_UP, IDS_TIP_MOVE_UP, &TabButtons::up},
    {IDC_RECOVERY_DOWN, IDI_MOVE_DOWN, IDS_TIP_MOVE_DOWN, &TabButtons::down},
    {IDC_RECOVERY_PROPERTIES, IDI_PROPERTIES, IDS_TIP_PROPERTIES, &TabButtons::properties},
};

}  // namespace

RecoveryTab::RecoveryTab(IObjectRack* rack, std::shared_ptr<RecoverySettings> settings,
                         std::function<void()> changed)
    : ChildDialog(IDD_RECOVERY_TAB),
      rack_(rack),
      settings_(std::move(settings)),
      changed_(std::move(changed)),
      looks_(rack),
      view_(settings_->list, looks_) {}

void RecoveryTab::OnInit() {
    PrepareButtons();
    view_.Attach(Item(IDC_RECOVERY_LIST));
    FillActivation();
    PrepareLayout();
    ui::LeaveKeysToSheet(Window());
    ShowList(settings_->list.Has(settings_->currentRow) ? settings_->currentRow : 0);
    UpdateDefaultButton();
}

void RecoveryTab::PrepareButtons() {
    static_assert(std::size(kButtons) == std::tuple_size_v<decltype(buttons_)>);
    for (size_t i = 0; i < buttons_.size(); ++i) {
        buttons_[i].Attach(Item(kButtons[i].control), kButtons[i].icon);
        AddTip(kButtons[i].control, kButtons[i].tip);
    }
}

void RecoveryTab::PrepareLayout() {
    using namespace ui::anchor;
    anchors_.Begin(Window());
    anchors_.Add({IDC_RECOVERY_LIST}, kAll);
    anchors_.Add({IDC_RECOVERY_DESCRIPTION_LABEL, IDC_RECOVERY_DESCRIPTION}, kLeft | kRight | kBottom);
    anchors_.Add({IDC_RECOVERY_ACTIVATION_LABEL, IDC_RECOVERY_ACTIVATION}, kLeft | kBottom);
    anchors_.Add({IDC_RECOVERY_SET_DEFAULT}, kRight | kBottom);
}

void RecoveryTab::FillActivation() {
    const HWND combo = Item(IDC_RECOVERY_ACTIVATION);
    for (int place = 0; place < model::kActivationItems; ++place) {
        const auto item = static_cast<model::ActivationItem>(place);
        const std::wstring text = ui::LoadText(model::ActivationText(item));
        SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
        SendMessageW(combo, CB_SETITEMDATA, static_cast<WPARAM>(place), model::ActivationItemValue(item));
    }
    SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(settings_->activation), 0);
}

bool RecoveryTab::OnCommand(const ui::Command& command) {
    if (command.id == IDC_RECOVERY_ACTIVATION) {
        if (command.code == CBN_SELCHANGE) ChooseActivation();
        return true;
    }
    if (command.code != BN_CLICKED) return false;
    // The commands may outlive the page that holds the window.
    const auto alive = shared_from_this();
    const ui::ModuleScope scope;
    Run(command.id);
    return true;
}

void RecoveryTab::Run(int command) {
    const int row = view_.Selected();
    switch (command) {
        case IDC_RECOVERY_ADD: return Add();
        case IDC_RECOVERY_REMOVE: return Remove();
        case IDC_RECOVERY_UP: return row == kNoRow ? void() : Move(row, settings_->list.MoveUp(row));
        case IDC_RECOVERY_DOWN: return row == kNoRow ? void() : Move(row, settings_->list.MoveDown(row));
        case IDC_RECOVERY_PROPERTIES: return Properties();
        case IDC_RECOVERY_TOGGLE: return Toggle(row);
        case IDC_RECOVERY_SET_DEFAULT: return SetAsDefault();
        default: return;
    }
}

bool RecoveryTab::OnNotify(NMHDR& header, LRESULT& answer) {
    const auto alive = shared_from_this();  // files are read from the host for what the list asks
    return header.idFrom == IDC_RECOVERY_LIST && OnListNotify(header, answer);
}

bool RecoveryTab::OnListNotify(NMHDR& header, LRESULT& answer) {
    switch (header.code) {
        case LVN_ITEMCHANGED: {
            const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
            if ((change.uNewState ^ change.uOldState) & LVIS_SELECTED) UpdateSelection();
            return true;
        }
        case NM_CLICK:
        case NM_DBLCLK:
            Toggle(view_.ClickedCheckBox(reinterpret_cast<const NMITEMACTIVATE&>(header)));
            return true;
        default: return view_.OnNotify(header, answer);
    }
}

bool RecoveryTab::OnMessage(UINT message, WPARAM, LPARAM, LRESULT&) {
    switch (message) {
        case WM_SIZE: anchors_.Follow(); return true;
        case WM_THEMECHANGED: view_.MakeImages(); return false;
        default: return false;
    }
}

void RecoveryTab::OnDpiChanged() {
    view_.MakeImages();
}

void RecoveryTab::OnHelp() {
    ui::ShowHelpTopic(Window(), support::topics::kRecoveryTab, rack_.Get());
}

void RecoveryTab::ShowList(int row) {
    {
        const Muted muted(*this);
        view_.Refill();
    }
    // Before the list scrolls to the row: a scroll bar that goes afterwards takes room and paint with it.
    view_.FitColumns();
    SelectRow(row);
}

void RecoveryTab::SelectRow(int row) {
    {
        const Muted muted(*this);
        view_.Select(settings_->list.Has(row) ? row : kNoRow);
    }
    UpdateSelection();
}

void RecoveryTab::UpdateSelection() {
    const AssociationList& list = settings_->list;
    const int row = view_.Selected();
    if (row != kNoRow) settings_->currentRow = row;
    const std::wstring description =
        row == kNoRow ? std::wstring() : looks_.Of(list.Items()[row], list).description;
    const HWND edit = Item(IDC_RECOVERY_DESCRIPTION);
    const std::wstring text = support::ToEditLineEnds(description);
    if (text != ui::TextOf(edit)) ui::SetText(edit, text);
    const TabButtons states = ButtonsFor(list.Size(), row, view_.IconOf(row));
    for (const ButtonRow& row : kButtons) ui::Enable(Item(row.control), states.*row.enabled);
}

void RecoveryTab::UpdateDefaultButton() {
    ui::Enable(Item(IDC_RECOVERY_SET_DEFAULT), settings_->CanSetAsDefault());
}

void RecoveryTab::Changed() {
    const auto alive = shared_from_this();
    settings_->Changed();
    UpdateDefaultButton();
    changed_();
}

}  // namespace recoveryui::settings

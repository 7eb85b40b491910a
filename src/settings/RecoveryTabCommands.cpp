// What the user can do on the Recovery tab.
#include <algorithm>

#include "resources/ids.h"
#include "settings/RecoveryTab.h"
#include "settings/ScenarioCalls.h"
#include "ui/Messages.h"
#include "ui/Strings.h"
#include "ui/Window.h"

namespace recoveryui::settings {

void RecoveryTab::Add() {
    const auto chosen = AskForScenarios(rack_.Get());
    if (!chosen || !Window()) return;
    const std::wstring file = settings_->FullPath(chosen->file);
    bool isShown = true;
    const auto show = [&] {
        if (std::exchange(isShown, true)) return;
        looks_.Forget(file);
        ShowList(settings_->list.Size() - 1);
    };
    for (const std::wstring& name : chosen->names) {
        const AddResult result = settings_->list.Add(file, name);
        isShown = isShown && result == AddResult::AlreadyAssociated;
        if (result == AddResult::Added) continue;
        show();
        TellAbout(result, name);
        if (!Window()) return;
    }
    show();
    SetFocus(view_.Window());
    Changed();
    UpdateSelection();
}

void RecoveryTab::TellAbout(AddResult result, const std::wstring& name) const {
    if (result == AddResult::AlreadyAssociated) {
        ui::ShowMessage(Window(), ui::FormatText(IDS_ALREADY_ASSOCIATED, {name}), MB_OK | MB_ICONEXCLAMATION);
    } else {
        ui::ShowMessage(Window(), ui::FormatText(IDS_DIFFERENT_FILE, {name, name}),
                        MB_OK | MB_ICONINFORMATION);
    }
}

void RecoveryTab::Remove() {
    const int row = view_.Selected();
    if (row == kNoRow) return;
    const Removal removal = settings_->list.Remove(row);
    settings_->currentRow = removal.select;
    ShowList(removal.select);
    SetFocus(view_.Window());
    Changed();
}

// Without a place to go the list only takes the focus.
void RecoveryTab::Move(int from, std::optional<int> to) {
    SetFocus(view_.Window());
    if (!to) return;
    view_.Redraw(std::min(from, *to), std::max(from, *to));
    SelectRow(*to);
    Changed();
}

void RecoveryTab::Toggle(int row) {
    if (!settings_->list.Has(row)) return;
    settings_->list.SetEnabled(row, !settings_->list.Items()[row].enabled);
    view_.Redraw(row, row);
    Changed();
}

void RecoveryTab::Properties() {
    const int row = view_.Selected();
    if (row == kNoRow) return;
    ShowProperties(rack_.Get(), settings_->list.Items()[row]);
    if (Window()) SetFocus(view_.Window());
}

void RecoveryTab::SetAsDefault() {
    if (settings_->SetAsDefault()) return UpdateDefaultButton();
    ui::ShowMessage(Window(), IDS_DEFAULT_FAILED, MB_OK | MB_ICONERROR);
}

void RecoveryTab::ChooseActivation() {
    const LRESULT place = SendMessageW(Item(IDC_RECOVERY_ACTIVATION), CB_GETCURSEL, 0, 0);
    const auto chosen = static_cast<model::ActivationItem>(place);
    if (place == CB_ERR || chosen == settings_->activation) return;
    settings_->activation = chosen;
    Changed();
}

}  // namespace recoveryui::settings

#pragma once

#include <array>
#include <functional>
#include <memory>

#include "settings/AssociationView.h"
#include "settings/RecoverySettings.h"
#include "ui/Anchors.h"
#include "ui/ChildDialog.h"
#include "ui/IconButton.h"

namespace recoveryui::settings {

// The window of the Recovery tab. Shows and changes the settings that the page keeps. The page may take the
// window down while one of its commands shows another window.
class RecoveryTab final : public ui::ChildDialog, public std::enable_shared_from_this<RecoveryTab> {
public:
    // `changed` is called after every change; not once the window has gone.
    RecoveryTab(IObjectRack* rack, std::shared_ptr<RecoverySettings> settings, std::function<void()> changed);

    void OnHelp() override;
    void OnDpiChanged() override;

private:
    void OnInit() override;
    bool OnCommand(const ui::Command& command) override;
    bool OnNotify(NMHDR& header, LRESULT& answer) override;
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer) override;

    void PrepareButtons();
    void PrepareLayout();
    void FillActivation();
    void Run(int command);
    bool OnListNotify(NMHDR& header, LRESULT& answer);

    void Add();
    void TellAbout(AddResult result, const std::wstring& name) const;
    void Remove();
    void Move(int from, std::optional<int> to);
    void Toggle(int row);
    void Properties();
    void SetAsDefault();
    void ChooseActivation();

    // The list as it is now, with this row selected.
    void ShowList(int row);
    void SelectRow(int row);
    // Buttons and description follow the selected row.
    void UpdateSelection();
    void UpdateDefaultButton();
    // The settings have changed.
    void Changed();

    com::Ptr<IObjectRack> rack_;
    std::shared_ptr<RecoverySettings> settings_;
    std::function<void()> changed_;
    ScenarioLooks looks_;
    AssociationView view_;
    std::array<ui::IconButton, 5> buttons_;
    ui::Anchors anchors_;
};

}  // namespace recoveryui::settings

// The Recovery Scenario Manager: opens, edits and saves one recovery file at a time.
#pragma once

#include <array>
#include <string>

#include "RecoveryUI.h"
#include "manager/AddedScenarios.h"
#include "manager/CommandStates.h"
#include "manager/RecoveryFile.h"
#include "manager/ScenarioList.h"
#include "model/RecentFiles.h"
#include "model/TestOptions.h"
#include "support/ScopedFlag.h"
#include "ui/Anchors.h"
#include "ui/Dialog.h"
#include "ui/IconButton.h"

namespace recoveryui::manager {

class ManagerDlg final : public ui::Dialog {
public:
    explicit ManagerDlg(IObjectRack* rack);

private:
    void OnInit() override;
    bool OnCommand(const ui::Command& command) override;
    bool OnNotify(NMHDR& header, LRESULT& answer) override;
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer) override;
    void OnHelp() override;
    void OnDpiChanged() override;

    // The window.
    void ShowIcon();
    void PrepareButtons();
    void PrepareLayout();
    ManagerState State() const;
    void UpdateFile();
    void UpdateStates();
    void UpdateSelection();
    void Refill();
    void SelectRow(int row);
    int ImageOf(const std::wstring& name) const;

    // Menus and keys.
    void ListenToKeys();
    static LRESULT CALLBACK KeyProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                         DWORD_PTR object) noexcept;
    bool OnKey(HWND control, UINT message, WPARAM key) const noexcept;
    void ShowOpenMenu();
    void ShowSaveMenu();
    void ShowContextMenu(POINT point);
    void OnActivateRow();
    void Post(int control) const noexcept;

    // Commands: one at a time, and only what the state allows.
    void Run(Command command);
    template <class Body>
    void Exclusively(Body&& body);

    bool MayLeave();
    void NewFile();
    void Open();
    void OpenKnown(const std::wstring& path);
    void OpenDropped(const std::vector<std::wstring>& paths);
    void Load(const std::wstring& path);
    bool Save();
    bool SaveAs();
    bool Saved(HRESULT result, const std::wstring& path);
    void Close();
    void WriteSettings() const;

    void NewScenario();
    void Edit();
    void CallWizard(const NamedScenario& edited);
    void Properties();
    void Copy();
    void Paste();
    void Delete();
    // The selected scenario; no object when there is none.
    NamedScenario SelectedScenario() const;

    com::Ptr<IObjectRack> rack_;
    RecoveryFile file_;
    NamedScenario clipboard_;
    AddedScenarios added_;
    model::RecentFiles recent_;
    bool busy_ = false;

    ScenarioList list_;
    std::array<ui::IconButton, 9> buttons_;
    ui::Anchors anchors_;
    ui::Icon icon_;
};

template <class Body>
void ManagerDlg::Exclusively(Body&& body) {
    if (busy_) return;
    const support::ScopedFlag busy(busy_);
    body();
}

}  // namespace recoveryui::manager

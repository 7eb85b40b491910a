#pragma once

#include <string>
#include <vector>

#include "RecoveryUI.h"
#include "com/Ptr.h"
#include "model/CMRUComboBox.h"
#include "settings/AddDialog.h"
#include "settings/ScenarioCalls.h"
#include "ui/Dialog.h"
#include "ui/ListView.h"

namespace recoveryui::settings {

// Lets the user pick a recovery file and some of its scenarios.
class AddScenarioDlg final : public ui::Dialog {
public:
    explicit AddScenarioDlg(IObjectRack* rack);

    // What was chosen, once the dialog was left with OK. The path is the one typed or picked.
    const ChosenScenarios& Chosen() const { return chosen_; }

private:
    void OnInit() override;
    bool OnCommand(const ui::Command& command) override;
    bool OnNotify(NMHDR& header, LRESULT& answer) override;
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer) override;
    void OnHelp() override;

    void OnFileCommand(int code);
    void OnLeftFile(bool byTab);
    void Browse();
    void ShowAsRecent(const std::wstring& path);
    // Shows the scenarios of the combo's file.
    void LoadFile();
    bool ReadNames(const std::wstring& path, std::vector<std::wstring>& names) const;
    void FillList(const std::vector<std::wstring>& names) const;
    void Accept();

    com::Ptr<IObjectRack> rack_;
    model::CMRUComboBox file_;
    bool isBound_ = false;  // to the list that is remembered
    bool isPickPending_ = false;
    ui::ListView list_{nullptr};
    std::vector<std::wstring> names_;  // of the list, row by row
    std::wstring loadedPath_;          // their file, as typed or picked
    std::wstring triedPath_;           // the file that was last asked for
    ChosenScenarios chosen_;
};

}  // namespace recoveryui::settings

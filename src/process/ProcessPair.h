#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "com/SafeArray.h"
#include "process/ProcessNames.h"
#include "ui/DialogBase.h"
#include "ui/ListView.h"

namespace recoveryui::process {

// The list of running processes beside the list of chosen names, on a page that has the pair's controls and
// passes its messages on. The rules for names are EndEdit and NamesToAppend.
class ProcessPair {
public:
    // Called whenever the page's Next is to follow the chosen list.
    explicit ProcessPair(std::function<void(bool ready)> onReady) : onReady_(std::move(onReady)) {}

    // Once, when the controls exist.
    void Attach(HWND page);
    // Each time the page is shown.
    void FillRunning() const;

    // True when the message was the pair's.
    bool OnCommand(const ui::Command& command);
    bool OnNotify(NMHDR& header, LRESULT& answer);
    bool OnMessage(UINT message);

    // Shows stored names as they are, empty ones left out; ready even if none was left.
    void Load(const std::vector<std::wstring>& names);
    // Empties the chosen list.
    void Clear();
    // The chosen names in row order; null while there is none, or one is still being typed. The pair keeps
    // the array until it is asked again.
    SAFEARRAY* BuildResult();

private:
    struct UnsettledEdit {
        int row;
        EditEnd end;
    };

    ui::ListView Chosen() const;
    HWND Running() const;
    std::vector<std::wstring> Names() const;
    std::vector<std::wstring> SelectedRunning() const;

    void AddSelected();
    void AddNew();
    void Remove();
    void Edit(int row);
    void Reopen(int row, const std::wstring& text);
    void EndOfEdit(int row);
    bool FinishEditing();
    void Settle();
    void RowsChanged();

    static LRESULT CALLBACK EditProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                          UINT_PTR id, DWORD_PTR object) noexcept;

    std::function<void(bool ready)> onReady_;
    HWND page_ = nullptr;
    bool escaped_ = false;  // the edit that is open, or has just ended, was given up
    std::optional<UnsettledEdit> unsettled_;
    com::CVtlSafeArray<BSTR> result_;
};

}  // namespace recoveryui::process

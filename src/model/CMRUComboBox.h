#pragma once

#include <windows.h>

#include <string>

#include "model/MruList.h"
#include "ui/RegistryKey.h"

namespace recoveryui::model {

// A drop-down combo box that remembers its entries in a value of the registry. The value is written when
// the control is destroyed, whatever became of its dialog.
class CMRUComboBox {
public:
    CMRUComboBox() noexcept = default;
    virtual ~CMRUComboBox();
    CMRUComboBox(const CMRUComboBox&) = delete;
    CMRUComboBox& operator=(const CMRUComboBox&) = delete;

    // Takes over a combo box; until LoadMRU succeeds it is a plain one.
    void Attach(HWND combo);
    HWND Window() const noexcept { return combo_; }

    // Adds the text as the most recent entry; gives its position. The rules are PlanAddString's.
    virtual int AddString(const std::wstring& text);
    // Puts the text at a position; CB_ERR where that is refused. The rules are PlanInsertString's.
    virtual int InsertString(int index, const std::wstring& text);
    // Binds the control to a value below a key that exists, and shows the value's entries.
    virtual bool LoadMRU(HKEY parent, const std::wstring& keyPath, const std::wstring& valueName,
                         int maximum);

private:
    MruState StateFor(const std::wstring& text) const;
    int CarryOut(const MruPlan& plan, const std::wstring& text) const;
    void Save() const;
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR object) noexcept;

    HWND combo_ = nullptr;
    std::wstring valueName_;
    int maximum_ = 0;
    ui::RegistryKey key_;
    bool bound_ = false;
};

}  // namespace recoveryui::model

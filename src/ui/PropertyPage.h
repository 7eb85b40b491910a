// A page of a property sheet. The sheet owns the object; the system owns the page handle.
#pragma once

#include <windows.h>

#include <prsht.h>

#include <string>

#include "ui/DialogBase.h"

namespace recoveryui::ui {

class PropertyPage : public DialogBase {
public:
    // The page's description for a sheet. The title may be empty: the template's caption is used.
    HPROPSHEETPAGE CreateHandle();

protected:
    explicit PropertyPage(int templateId, std::wstring title = {}) noexcept
        : DialogBase(templateId), title_(std::move(title)) {}

    HWND Sheet() const noexcept { return GetParent(Window()); }

    // One virtual per PSN_ notification; the answers are the sheet's DWLP_MSGRESULT values.
    virtual LRESULT OnSetActive() { return 0; }
    virtual LRESULT OnWizardNext() { return 0; }
    virtual LRESULT OnWizardBack() { return 0; }
    virtual LRESULT OnWizardFinish() { return 0; }
    // What a page answers to Next, Back or Finish when the attempt ended in an exception.
    static constexpr LRESULT kStay = -1;

    bool OnNotify(NMHDR& header, LRESULT& answer) override;

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

    std::wstring title_;
};

}  // namespace recoveryui::ui

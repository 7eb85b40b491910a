// A page of a property sheet. The sheet owns the object; the system owns the page handle.
#pragma once

#include <windows.h>

#include <prsht.h>

#include <string>

#include "ui/DialogBase.h"

namespace recoveryui::ui {

class PropertyPage : public DialogBase {
public:
    // Goes with a page's DM_SETDEFID to its sheet, for the sheet sends itself the same message.
    static constexpr LPARAM kSaidByPage = 1;

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

    // Looks after the message under way whether the control with the focus was disabled or hidden, and hands
    // the focus on; and whether Enter still presses the right button. A page that is shown does so by itself.
    void KeepFocusLater() const { PostMessageW(Window(), kKeepFocus, 0, 0); }
    virtual HWND NextFocus() const;
    // Where a user begins when the page is shown, if not at its first control.
    virtual HWND FirstFocus() const { return nullptr; }
    // The sheet's button that Enter is to press, 0 where that is the sheet's own business.
    virtual int EnterButton() const { return 0; }

    // Pages that override them ask them for the rest.
    bool OnNotify(NMHDR& header, LRESULT& answer) override;
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer) override;

private:
    HWND FirstControl() const { return GetNextDlgTabItem(Window(), nullptr, FALSE); }
    static constexpr UINT kKeepFocus = WM_APP;
    static constexpr WPARAM kShown = 1;
    void KeepEnter() const;
    void KeepFocus(bool shown) const;
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

    std::wstring title_;
};

}  // namespace recoveryui::ui

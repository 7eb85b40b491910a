// What dialogs and property pages share: messages in, virtual functions out, no exception past the
// window procedure.
#pragma once

#include <windows.h>

#include "com/Module.h"
#include "ui/ToolTips.h"

namespace recoveryui::ui {

struct Command {
    int id;
    int code;
    HWND control;  // null for a menu or an accelerator
};

class DialogBase {
public:
    DialogBase(const DialogBase&) = delete;
    DialogBase& operator=(const DialogBase&) = delete;

protected:
    explicit DialogBase(int templateId) noexcept : templateId_(templateId) {}
    virtual ~DialogBase() = default;

    int TemplateId() const noexcept { return templateId_; }
    HWND Window() const noexcept { return window_; }
    int Dpi() const noexcept { return dpi_; }
    HWND Item(int id) const noexcept { return GetDlgItem(window_, id); }
    // A text of the string table that tells what a control is for when the mouse rests on it.
    void AddTip(int control, int stringId) noexcept { tips_.Add(control, stringId); }

    // Once, when the controls exist. Notifications are muted meanwhile.
    virtual void OnInit() {}
    virtual bool OnCommand(const Command&) { return false; }
    // The answer is what the control gets back.
    virtual bool OnNotify(NMHDR&, LRESULT&) { return false; }
    // Every message that the base does not handle itself.
    virtual bool OnMessage(UINT, WPARAM, LPARAM, LRESULT&) { return false; }
    virtual void OnHelp() {}
    // The window came to a monitor of another resolution: Windows has scaled fonts and places, and the
    // columns of its list views have followed. Pictures are left.
    virtual void OnDpiChanged() {}
    // An exception ended OnInit; called inside the catch block.
    virtual void OnInitFailed() noexcept {}

    // While one lives, the controls' change notifications are dropped: the program is filling them.
    class Muted {
    public:
        explicit Muted(DialogBase& dialog) noexcept : dialog_(dialog) { ++dialog_.muted_; }
        ~Muted() { --dialog_.muted_; }
        Muted(const Muted&) = delete;
        Muted& operator=(const Muted&) = delete;

    private:
        DialogBase& dialog_;
    };

    // The dialog procedure of every window; the object travels in WM_INITDIALOG's parameter.
    INT_PTR Dispatch(UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    void Attach(HWND window) noexcept { window_ = window; }

private:
    bool Handle(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer);
    void FollowDpi();

    int templateId_;
    int muted_ = 0;
    int dpi_ = 0;
    HWND window_ = nullptr;
    ToolTips tips_;
    com::LiveObject live_;
};

}  // namespace recoveryui::ui

// A modal dialog from a template of this module.
#pragma once

#include <exception>
#include <utility>

#include "ui/DialogBase.h"

namespace recoveryui::ui {

class Dialog : public DialogBase {
public:
    // Runs until End; gives its code. Rethrows what ended the initialisation.
    INT_PTR ShowModal(HWND owner);

protected:
    using DialogBase::DialogBase;

    void End(INT_PTR code) noexcept;
    // OK, Cancel (Escape, close box) and Help; a dialog that overrides it asks it for the rest.
    bool OnCommand(const Command& command) override;
    void OnInitFailed() noexcept override;

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

    std::exception_ptr failure_;
};

}  // namespace recoveryui::ui

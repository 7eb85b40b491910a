// A dialog of this module inside a window that somebody else owns.
#pragma once

#include <exception>

#include "ui/DialogBase.h"

namespace recoveryui::ui {

class ChildDialog : public DialogBase {
public:
    ~ChildDialog() override { Destroy(); }

    // Creates the window, hidden. Rethrows what ended the initialisation.
    void Create(HWND parent);
    void Destroy() noexcept;
    // Null before Create and as soon as the window has gone, whoever destroyed it.
    using DialogBase::Window;

    // The size that a template asks for, in pixels.
    static SIZE SizeOf(int templateId);

protected:
    using DialogBase::DialogBase;
    void OnInitFailed() noexcept override;

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

    std::exception_ptr failure_;
};

}  // namespace recoveryui::ui

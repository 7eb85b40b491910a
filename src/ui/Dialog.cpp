#include "ui/Dialog.h"

#include "com/Guard.h"

namespace recoveryui::ui {

INT_PTR Dialog::ShowModal(HWND owner) {
    const INT_PTR result = DialogBoxParamW(com::Module::Instance(), MAKEINTRESOURCEW(TemplateId()), owner,
                                           &Dialog::Procedure, reinterpret_cast<LPARAM>(this));
    Attach(nullptr);
    if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
    if (result == -1) throw com::HResultError(HRESULT_FROM_WIN32(GetLastError()));
    return result;
}

void Dialog::End(INT_PTR code) noexcept {
    EndDialog(Window(), code);
}

bool Dialog::OnCommand(const Command& command) {
    switch (command.id) {
        case IDOK:
        case IDCANCEL: End(command.id); return true;
        case IDHELP: OnHelp(); return true;
        default: return false;
    }
}

void Dialog::OnInitFailed() noexcept {
    failure_ = std::current_exception();
    End(IDABORT);
}

INT_PTR CALLBACK Dialog::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(window, DWLP_USER, lParam);
        reinterpret_cast<Dialog*>(lParam)->Attach(window);
    }
    auto* dialog = reinterpret_cast<Dialog*>(GetWindowLongPtrW(window, DWLP_USER));
    return dialog ? dialog->Dispatch(message, wParam, lParam) : FALSE;
}

}  // namespace recoveryui::ui

#include "ui/ChildDialog.h"

#include <utility>

#include "com/Guard.h"

namespace recoveryui::ui {
namespace {

INT_PTR CALLBACK Idle(HWND, UINT, WPARAM, LPARAM) noexcept {
    return FALSE;
}

HWND CreateFrom(int templateId, HWND parent, DLGPROC procedure, LPARAM parameter) {
    const HWND window = CreateDialogParamW(com::Module::Instance(), MAKEINTRESOURCEW(templateId), parent,
                                           procedure, parameter);
    if (!window) throw com::HResultError(HRESULT_FROM_WIN32(GetLastError()));
    return window;
}

}  // namespace

void ChildDialog::Create(HWND parent) {
    CreateFrom(TemplateId(), parent, &ChildDialog::Procedure, reinterpret_cast<LPARAM>(this));
    if (!failure_) return;
    Destroy();
    std::rethrow_exception(std::exchange(failure_, nullptr));
}

void ChildDialog::Destroy() noexcept {
    if (Window()) DestroyWindow(Window());
}

void ChildDialog::OnInitFailed() noexcept {
    failure_ = std::current_exception();
}

// Only the dialog manager knows what the template's font makes of its units.
SIZE ChildDialog::SizeOf(int templateId) {
    const HWND sample = CreateFrom(templateId, HWND_MESSAGE, &Idle, 0);
    RECT place{};
    GetWindowRect(sample, &place);
    DestroyWindow(sample);
    return {place.right - place.left, place.bottom - place.top};
}

INT_PTR CALLBACK ChildDialog::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(window, DWLP_USER, lParam);
        reinterpret_cast<ChildDialog*>(lParam)->Attach(window);
    }
    auto* dialog = reinterpret_cast<ChildDialog*>(GetWindowLongPtrW(window, DWLP_USER));
    if (!dialog) return FALSE;
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(window, DWLP_USER, 0);
        dialog->Attach(nullptr);
        return FALSE;
    }
    return dialog->Dispatch(message, wParam, lParam);
}

}  // namespace recoveryui::ui

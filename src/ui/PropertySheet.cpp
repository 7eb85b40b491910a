#include "ui/PropertySheet.h"

#include "com/Guard.h"
#include "ui/Dpi.h"
#include "ui/Subclass.h"

namespace recoveryui::ui {
namespace {

// F1 on a button of the sheet's own asks the sheet, which leaves it to nobody: it is to do what Help does.
LRESULT CALLBACK SheetProcedure(HWND sheet, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_DPICHANGED) RememberDpi(sheet, HIWORD(wParam));
    if (message == WM_NCDESTROY) ForgetDpi(sheet);
    if (message != WM_HELP) return CallOwn(sheet, message, wParam, lParam);
    SendMessageW(sheet, WM_COMMAND, IDHELP, 0);
    return TRUE;
}

// Its pages say which button Enter presses. Where Next is disabled a wizard would take Back, which leaves the
// page; and it would draw two buttons anew each time that it enables them.
LRESULT CALLBACK WizardProcedure(HWND sheet, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    const bool isDefault = message == DM_SETDEFID && lParam != PropertyPage::kSaidByPage;
    return isDefault ? TRUE : SheetProcedure(sheet, message, wParam, lParam);
}

template <WNDPROC procedure>
int CALLBACK OnSheet(HWND sheet, UINT event, LPARAM) noexcept {
    if (event == PSCB_INITIALIZED) PutBefore(sheet, procedure);
    return 0;
}

}  // namespace

bool PropertySheet::ShowModal(HWND owner) {
    std::vector<HPROPSHEETPAGE> handles;
    handles.reserve(pages_.size());
    for (const auto& page : pages_) {
        const HPROPSHEETPAGE handle = page->CreateHandle();
        if (!handle) {
            for (HPROPSHEETPAGE made : handles) DestroyPropertySheetPage(made);
            throw com::HResultError(E_OUTOFMEMORY);
        }
        handles.push_back(handle);
    }

    PROPSHEETHEADERW header{};
    header.dwSize = sizeof header;
    header.dwFlags = PSH_HASHELP | PSH_NOCONTEXTHELP | PSH_USECALLBACK;
    header.pfnCallback = kind_ == Kind::Wizard ? &OnSheet<&WizardProcedure> : &OnSheet<&SheetProcedure>;
    // With HASFINISH the three buttons stay visible and each can be disabled on its own.
    header.dwFlags |= kind_ == Kind::Wizard ? PSH_WIZARD | PSH_WIZARDHASFINISH : PSH_NOAPPLYNOW;
    header.hwndParent = owner;
    header.hInstance = com::Module::Instance();
    header.pszCaption = title_.c_str();
    header.nPages = static_cast<UINT>(handles.size());
    header.phpage = handles.data();

    const INT_PTR result = PropertySheetW(&header);
    if (result < 0) throw com::HResultError(E_FAIL);
    return result > 0;
}

}  // namespace recoveryui::ui

#include "ui/Messages.h"

#include "com/Module.h"
#include "resources/ids.h"

namespace recoveryui::ui {
namespace {

// A text of the string table that needs no heap: a question is asked even when nothing is left of that.
struct FixedText {
    wchar_t text[512] = L"";
    explicit FixedText(int id) noexcept {
        LoadStringW(com::Module::Instance(), static_cast<UINT>(id), text, static_cast<int>(std::size(text)));
    }
};

int Show(HWND owner, const wchar_t* text, UINT flags) {
    return MessageBoxW(owner, text, FixedText(IDS_PRODUCT_NAME).text, flags);
}

}  // namespace

int ShowMessage(HWND owner, const std::wstring& text, UINT flags) {
    return Show(owner, text.c_str(), flags);
}
int ShowMessage(HWND owner, int stringId, UINT flags) {
    return Show(owner, FixedText(stringId).text, flags);
}

}  // namespace recoveryui::ui

#include "ui/Strings.h"

#include <windows.h>

#include "com/Module.h"
#include "support/Text.h"

namespace recoveryui::ui {

std::wstring LoadText(int id) {
    const wchar_t* text = nullptr;
    // Length 0 gives the resource itself, which is not terminated.
    const int length =
        LoadStringW(com::Module::Instance(), static_cast<UINT>(id), reinterpret_cast<LPWSTR>(&text), 0);
    return length > 0 ? std::wstring(text, static_cast<size_t>(length)) : std::wstring();
}

std::wstring FormatText(int id, std::initializer_list<std::wstring_view> arguments) {
    return support::Fill(LoadText(id), arguments);
}

}  // namespace recoveryui::ui

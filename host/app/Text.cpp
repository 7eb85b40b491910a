#include "app/Text.h"

#include "app/ids.h"
#include "com/Guard.h"
#include "com/Module.h"
#include "objects/Describe.h"

namespace tovarin {
namespace com = recoveryui::com;

std::wstring LoadText(int id) {
    const wchar_t* text = nullptr;
    const int length =
        LoadStringW(com::Module::Instance(), static_cast<UINT>(id), reinterpret_cast<LPWSTR>(&text), 0);
    return length > 0 ? std::wstring(text, static_cast<size_t>(length)) : std::wstring();
}

std::wstring FormatText(int id, std::initializer_list<std::wstring_view> arguments) {
    std::wstring text = LoadText(id);
    size_t from = 0;
    for (const std::wstring_view argument : arguments) {
        const size_t place = text.find(L"%s", from);
        if (place == std::wstring::npos) break;
        text.replace(place, 2, argument);
        from = place + argument.size();
    }
    return text;
}

std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window)), L'\0');
    if (!text.empty())
        text.resize(
            static_cast<size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size() + 1))));
    return text;
}

int ShowMessage(HWND owner, const std::wstring& text, UINT flags) {
    return MessageBoxW(owner, text.c_str(), LoadText(IDS_PRODUCT).c_str(), flags);
}

void ReportException(HWND owner) noexcept {
    const HRESULT code = com::CurrentExceptionCode();
    static_cast<void>(com::Guarded([&] {
        ShowMessage(owner, FormatText(IDS_UNHANDLED, {DescribeResult(code)}), MB_OK | MB_ICONERROR);
    }));
}

}  // namespace tovarin

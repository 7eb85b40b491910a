#include "wizard/WindowButtons.h"

#include <algorithm>
#include <exception>
#include <optional>
#include <utility>

namespace recoveryui::wizard {
namespace {

constexpr UINT kPatienceMilliseconds = 500;
constexpr size_t kLongestCaption = 4096;

std::optional<DWORD_PTR> Ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DWORD_PTR answer = 0;
    if (!SendMessageTimeoutW(window, message, wParam, lParam, SMTO_ABORTIFHUNG, kPatienceMilliseconds,
                             &answer))
        return std::nullopt;
    return answer;
}

bool IsOwnerDrawn(HWND window) {
    wchar_t name[8] = {};
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return lstrcmpiW(name, L"Button") == 0 &&
           (GetWindowLongW(window, GWL_STYLE) & BS_TYPEMASK) == BS_OWNERDRAW;
}

// A control says so itself, whatever its class; one that is drawn by its owner does not.
bool IsPushButton(HWND window, DWORD_PTR dialogCode) {
    return (dialogCode & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0 || IsOwnerDrawn(window);
}

// GetWindowText does not read controls of other processes. What those answer may be any number.
std::wstring CaptionOf(HWND window) {
    const size_t length = std::min<size_t>(Ask(window, WM_GETTEXTLENGTH, 0, 0).value_or(0), kLongestCaption);
    std::wstring text(length + 1, L'\0');
    const size_t given =
        Ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data())).value_or(0);
    text.resize(given <= length ? given : 0);
    return text;
}

struct Found {
    std::vector<std::wstring> captions;
    std::exception_ptr failure;
};

BOOL CALLBACK Collect(HWND window, LPARAM parameter) {
    auto& found = *reinterpret_cast<Found*>(parameter);
    try {
        if (!IsWindowVisible(window)) return TRUE;
        const auto dialogCode = Ask(window, WM_GETDLGCODE, 0, 0);
        if (!dialogCode) return FALSE;
        if (IsPushButton(window, *dialogCode)) found.captions.push_back(CaptionOf(window));
        return TRUE;
    } catch (...) {
        found.failure = std::current_exception();
        return FALSE;
    }
}

}  // namespace

std::vector<std::wstring> ButtonCaptions(HWND window) {
    Found found;
    EnumChildWindows(window, &Collect, reinterpret_cast<LPARAM>(&found));
    if (found.failure) std::rethrow_exception(found.failure);
    return std::move(found.captions);
}

}  // namespace recoveryui::wizard

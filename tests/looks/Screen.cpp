#include "looks/Screen.h"

#include <commctrl.h>

#include <stdexcept>

#include "harness/ProcessWindows.h"

namespace recoveryui::looks {
namespace {

constexpr int kTitlePoints = 10, kPoints = 8;
constexpr LONG kClosedCombo = 14;  // dialog units

Kind KindOf(const std::wstring& name, DWORD style) {
    const auto is = [&](const wchar_t* other) { return lstrcmpiW(name.c_str(), other) == 0; };
    if (is(L"Button")) {
        switch (style & BS_TYPEMASK) {
            case BS_PUSHBUTTON:
            case BS_DEFPUSHBUTTON: return style & BS_ICON ? Kind::IconButton : Kind::Push;
            case BS_OWNERDRAW: return Kind::IconButton;
            case BS_GROUPBOX: return Kind::Frame;
            case BS_RADIOBUTTON:
            case BS_AUTORADIOBUTTON: return Kind::Radio;
            default: return Kind::Check;
        }
    }
    if (is(L"Static")) {
        const DWORD look = style & SS_TYPEMASK;
        return look == SS_BITMAP || look == SS_ICON || look >= SS_OWNERDRAW ? Kind::Picture : Kind::Static;
    }
    if (is(L"Edit")) return Kind::Edit;
    if (is(L"ComboBox")) return Kind::Combo;
    if (is(L"ListBox") || is(WC_LISTVIEWW) || is(WC_TREEVIEWW)) return Kind::List;
    return is(HOTKEY_CLASSW) ? Kind::Other : Kind::Frame;  // a tab control, a page
}

// From pixels of 96 DPI back to the units of the template, of which no two are the same pixel.
RECT InUnits(const RECT& place, const RECT& base) {
    const auto across = [&](LONG pixels) { return MulDiv(pixels, 4, base.right); };
    const auto down = [&](LONG pixels) { return MulDiv(pixels, 8, base.bottom); };
    const LONG left = across(place.left), top = down(place.top);
    return {left, top, left + across(place.right - place.left), top + down(place.bottom - place.top)};
}

}  // namespace

const Control* Screen::Find(int id) const {
    for (const Control& control : controls)
        if (control.id == id) return &control;
    return nullptr;
}

Screen FromTemplate(HMODULE module, int number) {
    const HWND dialog = CreateDialogParamW(
        module, MAKEINTRESOURCEW(number), GetDesktopWindow(),
        [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; }, 0);
    if (!dialog) throw std::runtime_error("no dialog " + std::to_string(number));
    Screen screen = FromWindow(dialog);
    screen.name = std::to_wstring(number);
    RECT base{0, 0, 4, 8};
    MapDialogRect(dialog, &base);
    const RECT size = InUnits({0, 0, screen.size.cx, screen.size.cy}, base);
    screen.size = {size.right, size.bottom};
    for (Control& control : screen.controls) {
        control.place = InUnits(control.place, base);
        control.window = nullptr;
        // The list of a drop-down box counts only when it is open.
        if (control.kind == Kind::Combo) control.place.bottom = control.place.top + kClosedCombo;
    }
    DestroyWindow(dialog);
    return screen;
}

std::vector<Screen> TemplatesOf(HMODULE module) {
    std::vector<Screen> screens;
    EnumResourceNamesW(
        module, RT_DIALOG,
        [](HMODULE from, LPCWSTR, LPWSTR name, LONG_PTR found) -> BOOL {
            const auto number = static_cast<int>(reinterpret_cast<INT_PTR>(name));
            reinterpret_cast<std::vector<Screen>*>(found)->push_back(FromTemplate(from, number));
            return TRUE;
        },
        reinterpret_cast<LONG_PTR>(&screens));
    return screens;
}

Screen FromWindow(HWND dialog) {
    const DWORD style = static_cast<DWORD>(GetWindowLongW(dialog, GWL_STYLE));
    RECT client{};
    GetClientRect(dialog, &client);
    Screen screen{test::TextOf(dialog), (style & WS_CHILD) != 0, {client.right, client.bottom}, {}};
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        Control control{};
        control.window = child;
        control.style = static_cast<DWORD>(GetWindowLongW(child, GWL_STYLE));
        control.id = GetDlgCtrlID(child);
        control.kind = KindOf(test::ClassOf(child), control.style);
        control.text = test::TextOf(child);
        control.place = test::PlaceOf(child, dialog);
        if (control.style & WS_VISIBLE || control.kind == Kind::Static)
            screen.controls.push_back(std::move(control));
    }
    return screen;
}

Ruler::Ruler(int dpi) : dpi_(dpi), device_(CreateCompatibleDC(nullptr)) {
    LOGFONTW font{};
    font.lfHeight = -MulDiv(kPoints, dpi, 72);
    font.lfWeight = FW_NORMAL;
    lstrcpyW(font.lfFaceName, L"MS Shell Dlg");
    Take(font, MulDiv(kTitlePoints, dpi, 72));
    TEXTMETRICW metrics{};
    SIZE alphabet{};
    SelectObject(device_, font_);
    GetTextMetricsW(device_, &metrics);
    GetTextExtentPoint32W(device_, L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz", 52, &alphabet);
    base_ = {(alphabet.cx / 26 + 1) / 2, metrics.tmHeight};
}

Ruler::Ruler(HWND dialog) : device_(CreateCompatibleDC(nullptr)) {
    LOGFONTW font{};
    dpi_ = GetDeviceCaps(device_, LOGPIXELSY);
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(dialog, WM_GETFONT, 0, 0)), sizeof font, &font);
    Take(font, MulDiv(kTitlePoints, dpi_, 72));
}

Ruler::~Ruler() {
    DeleteDC(device_);
    DeleteObject(font_);
    DeleteObject(title_);
}

void Ruler::Take(LOGFONTW font, int titlePixels) {
    font_ = CreateFontIndirectW(&font);
    font.lfHeight = -titlePixels;
    font.lfWeight = FW_BOLD;
    title_ = CreateFontIndirectW(&font);
}

// Both ends are rounded, as the dialog manager does.
SIZE Ruler::Pixels(const RECT& place) const {
    return {MulDiv(place.right - place.left, base_.cx, 4), MulDiv(place.bottom - place.top, base_.cy, 8)};
}

SIZE Ruler::Text(const std::wstring& text, int width, UINT format, bool isTitle) const {
    RECT needed{0, 0, width, 0};
    SelectObject(device_, isTitle ? title_ : font_);
    DrawTextW(device_, text.c_str(), -1, &needed, DT_CALCRECT | format);
    return {needed.right, needed.bottom};
}

}  // namespace recoveryui::looks

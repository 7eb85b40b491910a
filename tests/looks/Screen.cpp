#include "looks/Screen.h"

#include <commctrl.h>

#include <array>
#include <cstring>

#include "harness/ProcessWindows.h"

namespace recoveryui::looks {
namespace {

constexpr int kTitlePoints = 10, kPoints = 8;
constexpr std::array kClasses = {L"Button", L"Edit", L"Static", L"ListBox", L"ScrollBar", L"ComboBox"};
constexpr WORD kFirstClass = 0x80;

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

class Reader {
public:
    explicit Reader(const void* data) : at_(static_cast<const BYTE*>(data)), start_(at_) {}
    template <class Number>
    Number Take() {
        Number number;
        std::memcpy(&number, at_, sizeof number);
        at_ += sizeof number;
        return number;
    }
    // A name, or the number of one.
    std::wstring TakeName() {
        if (Peek() == 0xFFFF) {
            Take<WORD>();
            const WORD number = Take<WORD>();
            const WORD known = static_cast<WORD>(number - kFirstClass);
            return known < kClasses.size() ? kClasses[known] : L"#" + std::to_wstring(number);
        }
        std::wstring name;
        while (const wchar_t letter = Take<wchar_t>()) name += letter;
        return name;
    }
    void Skip(size_t bytes) { at_ += bytes; }
    void Align() { at_ += (4 - (at_ - start_) % 4) % 4; }

private:
    WORD Peek() const {
        WORD value;
        std::memcpy(&value, at_, sizeof value);
        return value;
    }
    const BYTE *at_, *start_;
};

RECT TakePlace(Reader& reader) {
    RECT place{};
    place.left = reader.Take<short>();
    place.top = reader.Take<short>();
    place.right = place.left + reader.Take<short>();
    place.bottom = place.top + reader.Take<short>();
    return place;
}

void Put(std::vector<WORD>& out, std::initializer_list<DWORD> numbers) {
    for (const DWORD number : numbers) {
        out.push_back(LOWORD(number));
        out.push_back(HIWORD(number));
    }
}

void Put(std::vector<WORD>& out, const std::wstring& text) {
    out.insert(out.end(), text.c_str(), text.c_str() + text.size() + 1);
}

void Put(std::vector<WORD>& out, const RECT& place) {
    for (const LONG number : {place.left, place.top, place.right - place.left, place.bottom - place.top})
        out.push_back(static_cast<WORD>(number));
}

const wchar_t* ClassOf(Kind kind) {
    switch (kind) {
        case Kind::Static: return L"Static";
        case Kind::Edit: return L"Edit";
        case Kind::Combo: return L"ComboBox";
        case Kind::List: return L"ListBox";
        default: return L"Button";
    }
}

}  // namespace

const Control* Screen::Find(int id) const {
    for (const Control& control : controls)
        if (control.id == id) return &control;
    return nullptr;
}

Screen FromTemplate(const void* dialogTemplate, std::wstring name) {
    Reader reader(dialogTemplate);
    reader.Skip(12);  // version, signature, help id, extended style
    const auto style = reader.Take<DWORD>();
    const WORD count = reader.Take<WORD>();
    const RECT place = TakePlace(reader);
    Screen screen{
        std::move(name), (style & WS_CHILD) != 0, {place.right - place.left, place.bottom - place.top}, {}};
    for (int part = 0; part < 3; ++part) reader.TakeName();  // menu, class, caption
    if (style & DS_SETFONT) {
        reader.Skip(6);
        reader.TakeName();
    }
    for (int index = 0; index < count; ++index) {
        Control control{};
        reader.Align();
        reader.Skip(8);
        control.style = reader.Take<DWORD>();
        control.place = TakePlace(reader);
        control.id = static_cast<int>(reader.Take<DWORD>());
        control.kind = KindOf(reader.TakeName(), control.style);
        control.text = reader.TakeName();
        reader.Skip(reader.Take<WORD>());
        // The list of a drop-down box counts only when it is open.
        if (control.kind == Kind::Combo) control.place.bottom = control.place.top + 14;
        if (control.style & WS_VISIBLE || control.kind == Kind::Static)
            screen.controls.push_back(std::move(control));
    }
    return screen;
}

std::vector<Screen> TemplatesOf(HMODULE module) {
    std::vector<Screen> screens;
    EnumResourceNamesW(
        module, RT_DIALOG,
        [](HMODULE from, LPCWSTR, LPWSTR name, LONG_PTR found) -> BOOL {
            const HRSRC place = FindResourceW(from, name, RT_DIALOG);
            reinterpret_cast<std::vector<Screen>*>(found)->push_back(FromTemplate(
                LockResource(LoadResource(from, place)), std::to_wstring(reinterpret_cast<UINT_PTR>(name))));
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
        GetWindowRect(child, &control.place);
        MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&control.place), 2);
        if (control.style & WS_VISIBLE || control.kind == Kind::Static)
            screen.controls.push_back(std::move(control));
    }
    return screen;
}

std::vector<WORD> MakeTemplate(SIZE size, const std::vector<Control>& controls) {
    std::vector<WORD> out = {1, 0xFFFF};
    Put(out, {0, 0, DS_SHELLFONT | WS_POPUP});
    out.push_back(static_cast<WORD>(controls.size()));
    Put(out, RECT{0, 0, size.cx, size.cy});
    out.insert(out.end(), {0, 0, 0, 8, 400, 0x100});  // no menu, no class, no caption; the font
    Put(out, L"MS Shell Dlg");
    for (const Control& control : controls) {
        if (out.size() % 2) out.push_back(0);
        Put(out, {0, 0, control.style | WS_CHILD});
        Put(out, control.place);
        Put(out, {static_cast<DWORD>(control.id)});
        Put(out, ClassOf(control.kind));
        Put(out, control.text);
        out.push_back(0);
    }
    return out;
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

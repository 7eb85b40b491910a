// A dialog as the checks of its looks see it: from a template, at any resolution, or from an open window.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace recoveryui::looks {

enum class Kind { Static, Push, IconButton, Check, Radio, Edit, Combo, List, Other, Frame, Picture };

struct Control {
    int id;
    Kind kind;
    DWORD style;
    RECT place;
    std::wstring text;
    HWND window = nullptr;  // of an open window only

    bool IsStop() const { return kind == Kind::Radio || (style & WS_TABSTOP && kind != Kind::Frame); }
};

struct Screen {
    std::wstring name;
    bool isChild;
    SIZE size;
    std::vector<Control> controls;  // the visible ones and hidden labels, in tab order

    const Control* Find(int id) const;
};

// A dialog template of a module. Places are dialog units.
Screen FromTemplate(HMODULE module, int number);
// Every dialog template of a module.
std::vector<Screen> TemplatesOf(HMODULE module);
// Places are pixels.
Screen FromWindow(HWND dialog);

// What a dialog's font makes of its units and texts.
class Ruler {
public:
    explicit Ruler(int dpi);
    // An open window's own font, and pixels for units.
    explicit Ruler(HWND dialog);
    ~Ruler();
    Ruler(const Ruler&) = delete;
    Ruler& operator=(const Ruler&) = delete;

    SIZE Pixels(const RECT& place) const;
    int Scaled(int pixels) const { return MulDiv(pixels, dpi_, 96); }
    int Dpi() const { return dpi_; }
    // A text in lines of at most this width; a title is bold and larger.
    SIZE Text(const std::wstring& text, int width, UINT format, bool isTitle) const;

private:
    void Take(LOGFONTW font, int titlePixels);

    int dpi_;
    SIZE base_{4, 8};
    HDC device_;
    HFONT font_ = nullptr, title_ = nullptr;
};

}  // namespace recoveryui::looks

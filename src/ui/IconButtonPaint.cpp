// How an icon button looks: the theme's push button where there is a theme.
#include <windows.h>

#include <vssym32.h>

#include "ui/Dpi.h"
#include "ui/IconButton.h"
#include "ui/Theme.h"
#include "ui/Window.h"

namespace recoveryui::ui {
namespace {

constexpr BYTE kDisabledOpacity = 90;

// Draws the icon faintly over what is there.
void DrawFaint(HDC device, int x, int y, int size, HICON icon) {
    const HDC memory = CreateCompatibleDC(device);
    const Bitmap bitmap(CreateCompatibleBitmap(device, size, size));
    const HGDIOBJ before = SelectObject(memory, bitmap.Get());
    BitBlt(memory, 0, 0, size, size, device, x, y, SRCCOPY);
    DrawIconEx(memory, 0, 0, icon, size, size, 0, nullptr, DI_NORMAL);
    GdiAlphaBlend(device, x, y, size, size, memory, 0, 0, size, size, {AC_SRC_OVER, 0, kDisabledOpacity, 0});
    SelectObject(memory, before);
    DeleteDC(memory);
}

}  // namespace

void IconButton::Draw(const DRAWITEMSTRUCT& item) const {
    const int saved = SaveDC(item.hDC);
    DrawFace(item.hDC, item.rcItem, item.itemState);
    RECT picture = item.rcItem;
    if (kind_ == Kind::Split) {
        const RECT part = MenuPart(item.rcItem);
        picture.right = part.left;
        DrawMenuPart(item.hDC, part, item.itemState);
    }
    DrawPicture(item.hDC, picture, item.itemState);
    if ((item.itemState & ODS_FOCUS) && !(item.itemState & ODS_NOFOCUSRECT)) {
        RECT focus = item.rcItem;
        InflateRect(&focus, -3, -3);
        SetTextColor(item.hDC, RGB(0, 0, 0));
        SetBkColor(item.hDC, RGB(255, 255, 255));
        DrawFocusRect(item.hDC, &focus);
    }
    RestoreDC(item.hDC, saved);
}

void IconButton::DrawFace(HDC device, const RECT& place, UINT state) const {
    FillRect(device, &place, GetSysColorBrush(COLOR_3DFACE));
    const Theme theme = OpenTheme(button_, L"BUTTON");
    if (theme) {
        const int look = state & ODS_DISABLED   ? PBS_DISABLED
                         : state & ODS_SELECTED ? PBS_PRESSED
                         : hot_                 ? PBS_HOT
                         : state & ODS_FOCUS    ? PBS_DEFAULTED
                                                : PBS_NORMAL;
        DrawThemeBackground(theme.Get(), device, BP_PUSHBUTTON, look, &place, nullptr);
        return;
    }
    RECT frame = place;
    DrawFrameControl(device, &frame, DFC_BUTTON, DFCS_BUTTONPUSH | (state & ODS_SELECTED ? DFCS_PUSHED : 0u));
}

void IconButton::DrawPicture(HDC device, RECT place, UINT state) const {
    if (!icon_) {
        const auto font = reinterpret_cast<HFONT>(SendMessageW(button_, WM_GETFONT, 0, 0));
        if (font) SelectObject(device, font);
        SetBkMode(device, TRANSPARENT);
        SetTextColor(device, GetSysColor(state & ODS_DISABLED ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
        const std::wstring text = TextOf(button_);
        DrawTextW(device, text.c_str(), -1, &place, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
        return;
    }
    const int x = (place.left + place.right - size_) / 2, y = (place.top + place.bottom - size_) / 2;
    if (state & ODS_DISABLED) {
        DrawFaint(device, x, y, size_, icon_.Get());
    } else {
        DrawIconEx(device, x, y, icon_.Get(), size_, size_, 0, nullptr, DI_NORMAL);
    }
}

void IconButton::DrawMenuPart(HDC device, const RECT& part, UINT state) const {
    const int unit = ScaleForWindow(button_, 3);
    const COLORREF color = GetSysColor(state & ODS_DISABLED ? COLOR_GRAYTEXT : COLOR_BTNTEXT);
    SelectObject(device, GetStockObject(DC_PEN));
    SelectObject(device, GetStockObject(DC_BRUSH));
    SetDCPenColor(device, GetSysColor(COLOR_3DSHADOW));
    MoveToEx(device, part.left, part.top + unit + 1, nullptr);
    LineTo(device, part.left, part.bottom - unit - 1);
    SetDCPenColor(device, color);
    SetDCBrushColor(device, color);
    const LONG x = (part.left + part.right) / 2 - 1, y = (part.top + part.bottom) / 2 - unit / 2;
    const POINT arrow[] = {{x - unit, y}, {x + unit, y}, {x, y + unit}};
    Polygon(device, arrow, 3);
}

}  // namespace recoveryui::ui

#include "settings/CheckImages.h"

#include <vssym32.h>

#include "ui/Dpi.h"
#include "ui/Handles.h"
#include "ui/Theme.h"

namespace recoveryui::settings {
namespace {

constexpr int kImageSize = 16;  // at 96 DPI
constexpr int kBoxSize = 13;    // at 96 DPI, where the theme does not say

RECT Centered(int size, SIZE box) {
    const LONG left = (size - box.cx) / 2, top = (size - box.cy) / 2;
    return {left, top, left + box.cx, top + box.cy};
}

void DrawBox(HDC device, HWND window, HTHEME theme, int size, bool checked) {
    const int plain = ui::ScaleForWindow(window, kBoxSize);
    SIZE box{plain, plain};
    if (!theme) {
        RECT place = Centered(size, box);
        DrawFrameControl(device, &place, DFC_BUTTON,
                         DFCS_BUTTONCHECK | DFCS_FLAT | (checked ? DFCS_CHECKED : 0u));
        return;
    }
    const int look = checked ? CBS_CHECKEDNORMAL : CBS_UNCHECKEDNORMAL;
    GetThemePartSize(theme, device, BP_CHECKBOX, look, nullptr, TS_DRAW, &box);
    const RECT place = Centered(size, box);
    DrawThemeBackground(theme, device, BP_CHECKBOX, look, &place, nullptr);
}

}  // namespace

HIMAGELIST CheckImages(HWND window) {
    const int size = ui::ScaleForWindow(window, kImageSize);
    const HIMAGELIST images = ImageList_Create(size, size, ILC_COLOR24, 2, 0);
    // For no window: the list would draw its own border with the theme that was opened for it last.
    const ui::Theme theme = ui::OpenTheme(nullptr, L"BUTTON");
    const HDC screen = GetDC(window);
    const HDC memory = CreateCompatibleDC(screen);
    for (const bool checked : {false, true}) {
        const ui::Bitmap bitmap(CreateCompatibleBitmap(screen, size, size));
        const HGDIOBJ before = SelectObject(memory, bitmap.Get());
        const RECT whole{0, 0, size, size};
        // The list's own colour rather than a mask: the corners of a theme's box blend into it.
        FillRect(memory, &whole, GetSysColorBrush(COLOR_WINDOW));
        DrawBox(memory, window, theme.Get(), size, checked);
        SelectObject(memory, before);
        ImageList_Add(images, bitmap.Get(), nullptr);
    }
    DeleteDC(memory);
    ReleaseDC(window, screen);
    return images;
}

}  // namespace recoveryui::settings

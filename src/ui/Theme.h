// What the user's theme draws, in high contrast as everywhere without a theme: in the system's colours.
#pragma once

#include <windows.h>

#include <uxtheme.h>

#include "ui/Handles.h"

namespace recoveryui::ui {

struct ThemeCloser {
    void operator()(HTHEME theme) const noexcept { CloseThemeData(theme); }
};
using Theme = Owned<HTHEME, ThemeCloser>;

// Empty where nothing is to be drawn with a theme.
inline Theme OpenTheme(HWND window, const wchar_t* kind) {
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof contrast;
    const bool isHigh = SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) &&
                        contrast.dwFlags & HCF_HIGHCONTRASTON;
    return isHigh ? Theme() : Theme(OpenThemeData(window, kind));
}

}  // namespace recoveryui::ui

#include "ui/ToolTips.h"

#include <commctrl.h>

#include <new>
#include <string>

#include "com/Module.h"
#include "ui/Strings.h"

namespace recoveryui::ui {
namespace {

TTTOOLINFOW ToolFor(HWND dialog, HWND control) {
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = dialog;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    return tool;
}

}  // namespace

// Without memory there is no tip, but the window is made to its end.
void ToolTips::Add(HWND dialog, HWND control, int stringId) try {
    if (!window_) {
        window_ = CreateWindowExW(
            WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, CW_USEDEFAULT,
            CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, dialog, nullptr, com::Module::Instance(), nullptr);
    }
    std::wstring text = LoadText(stringId);
    TTTOOLINFOW tool = ToolFor(dialog, control);
    tool.lpszText = text.data();
    SendMessageW(window_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
} catch (const std::bad_alloc&) {
}

void ToolTips::Remove(HWND dialog, HWND control) {
    TTTOOLINFOW tool = ToolFor(dialog, control);
    SendMessageW(window_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace recoveryui::ui

#include "ui/ToolTips.h"

#include <commctrl.h>

#include <new>
#include <string>
#include <utility>

#include "com/Module.h"
#include "ui/Strings.h"

namespace recoveryui::ui {

// Without memory there is no tip, but the window is made to its end.
void ToolTips::Add(int control, int stringId) noexcept try {
    waiting_.push_back({control, stringId});
} catch (const std::bad_alloc&) {
}

void ToolTips::Show(HWND dialog) noexcept try {
    if (waiting_.empty()) return;
    const std::vector<Tip> tips = std::exchange(waiting_, {});
    const HWND window = CreateWindowExW(
        WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, CW_USEDEFAULT,
        CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, dialog, nullptr, com::Module::Instance(), nullptr);
    for (const Tip& tip : tips) {
        std::wstring text = LoadText(tip.stringId);
        TTTOOLINFOW tool{};
        tool.cbSize = sizeof tool;
        tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
        tool.hwnd = dialog;
        tool.uId = reinterpret_cast<UINT_PTR>(GetDlgItem(dialog, tip.control));
        tool.lpszText = text.data();
        SendMessageW(window, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    }
} catch (const std::bad_alloc&) {
}

}  // namespace recoveryui::ui

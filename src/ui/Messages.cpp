#include "ui/Messages.h"

#include "resources/ids.h"
#include "ui/Strings.h"

namespace recoveryui::ui {

int ShowMessage(HWND owner, const std::wstring& text, UINT flags) {
    return MessageBoxW(owner, text.c_str(), LoadText(IDS_PRODUCT_NAME).c_str(), flags);
}

int ShowMessage(HWND owner, int stringId, UINT flags) { return ShowMessage(owner, LoadText(stringId), flags); }

}  // namespace recoveryui::ui

// The owner of one open registry key.
#pragma once

#include "ui/Handles.h"

namespace recoveryui::ui {

struct RegistryKeyCloser {
    void operator()(HKEY key) const noexcept { RegCloseKey(key); }
};
using RegistryKey = Owned<HKEY, RegistryKeyCloser>;

}  // namespace recoveryui::ui

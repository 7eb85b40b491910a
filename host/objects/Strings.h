// Texts of this module's string table.
#pragma once

#include <windows.h>

#include <string>

#include "com/Module.h"

namespace tovarin {

// Empty when there is no such text.
inline std::wstring LoadText(UINT id) {
    const wchar_t* text = nullptr;
    const int length =
        LoadStringW(recoveryui::com::Module::Instance(), id, reinterpret_cast<wchar_t*>(&text), 0);
    return {text, static_cast<size_t>(length)};
}

}  // namespace tovarin

// Texts of the module's string table.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace recoveryui::ui {

// Empty when there is no such string.
std::wstring LoadText(int id);
// The string with each "%s" replaced by the next argument.
std::wstring FormatText(int id, std::initializer_list<std::wstring_view> arguments);

}  // namespace recoveryui::ui

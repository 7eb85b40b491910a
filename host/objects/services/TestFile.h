// The file of a test, as far as its settings go: JSON text in UTF-8.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace tovarin {

using SettingValue = std::variant<std::int32_t, std::wstring>;
// Value by name, and such a list by the name of its branch.
using SettingList = std::map<std::wstring, SettingValue, std::less<>>;
using Settings = std::map<std::wstring, SettingList, std::less<>>;

// The settings in a file's text; values of other kinds are left out. Nothing when the text is no test.
std::optional<Settings> ReadTestFile(std::string_view text);

// The text with these settings. What else stood in the text that was read stays as it was.
std::string WriteTestFile(const Settings& settings, std::string_view previousText);

}  // namespace tovarin

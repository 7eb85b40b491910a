// The registry script of a class: one line per key or value, with names in percent signs to fill in.
//   key [: value name] [= text]
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace recoveryui::shell {

struct Replacement {
    std::wstring_view name;  // without the percent signs
    std::wstring value;
};

struct RegistryEntry {
    std::wstring key;
    std::wstring valueName;            // empty for the key's default value
    std::optional<std::wstring> text;  // nothing: only the key itself
};

// The entries in the script's order; nothing when a line has no key or a name is not among the replacements.
std::optional<std::vector<RegistryEntry>> ParseRegistryScript(std::wstring_view script,
                                                              std::span<const Replacement> replacements);

// The topmost keys that the entries own: removing them with all below removes everything.
std::vector<std::wstring> OwnedKeys(std::span<const RegistryEntry> entries);

}  // namespace recoveryui::shell

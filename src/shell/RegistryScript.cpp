#include "shell/RegistryScript.h"

#include <algorithm>

namespace recoveryui::shell {
namespace {

std::optional<std::wstring> Expand(std::wstring_view line, std::span<const Replacement> replacements) {
    std::wstring expanded;
    for (;;) {
        const size_t begin = line.find(L'%');
        if (begin == std::wstring_view::npos) return expanded.append(line);
        const size_t end = line.find(L'%', begin + 1);
        if (end == std::wstring_view::npos) return std::nullopt;
        const std::wstring_view name = line.substr(begin + 1, end - begin - 1);
        const auto found = std::ranges::find(replacements, name, &Replacement::name);
        if (found == replacements.end()) return std::nullopt;
        expanded.append(line.substr(0, begin)).append(found->value);
        line.remove_prefix(end + 1);
    }
}

std::optional<RegistryEntry> ParseLine(std::wstring_view line, std::span<const Replacement> replacements) {
    RegistryEntry entry;
    const size_t assignment = line.find(L" = ");
    if (assignment != std::wstring_view::npos) {
        entry.text = Expand(line.substr(assignment + 3), replacements);
        if (!entry.text) return std::nullopt;
        line = line.substr(0, assignment);
    }
    const size_t colon = line.find(L" : ");
    if (colon != std::wstring_view::npos) {
        entry.valueName = line.substr(colon + 3);
        line = line.substr(0, colon);
    }
    const auto key = Expand(line, replacements);
    if (!key || key->empty()) return std::nullopt;
    entry.key = *key;
    return entry;
}

bool IsBelow(const std::wstring& key, const std::wstring& parent) {
    return key.size() > parent.size() && key.starts_with(parent) && key[parent.size()] == L'\\';
}

}  // namespace

std::optional<std::vector<RegistryEntry>> ParseRegistryScript(std::wstring_view script,
                                                              std::span<const Replacement> replacements) {
    std::vector<RegistryEntry> entries;
    while (!script.empty()) {
        const size_t end = std::min(script.find(L'\n'), script.size());
        std::wstring_view line = script.substr(0, end);
        script.remove_prefix(std::min(end + 1, script.size()));
        if (line.ends_with(L'\r')) line.remove_suffix(1);
        if (line.empty()) continue;
        auto entry = ParseLine(line, replacements);
        if (!entry) return std::nullopt;
        entries.push_back(std::move(*entry));
    }
    return entries;
}

std::vector<std::wstring> OwnedKeys(std::span<const RegistryEntry> entries) {
    std::vector<std::wstring> owned;
    for (const RegistryEntry& entry : entries) {
        const bool isTop = std::ranges::none_of(
            entries, [&](const RegistryEntry& other) { return IsBelow(entry.key, other.key); });
        if (isTop && std::ranges::find(owned, entry.key) == owned.end()) owned.push_back(entry.key);
    }
    return owned;
}

}  // namespace recoveryui::shell

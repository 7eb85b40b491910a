// The script by which classes are registered.
#include "shell/RegistryScript.h"

#include <algorithm>

#include "Fuzz.h"

namespace recoveryui::fuzz {

void Fuzz(Input input) {
    using namespace shell;
    const std::wstring value = input.Line(), script = input.Rest();
    const Replacement replacements[] = {{L"CLSID", value}, {L"A", L"%CLSID%"}};
    const auto entries = ParseRegistryScript(script, replacements);
    if (!entries) return;
    std::size_t size = 0;
    for (const RegistryEntry& entry : *entries) {
        Require(!entry.key.empty(), "an entry has a key");
        size += entry.key.size() + entry.valueName.size() + (entry.text ? entry.text->size() : 0);
    }
    Require(entries->size() <= script.size(), "every entry was in the script");
    Require(size <= script.size() * (value.size() + 8), "a name is replaced once");
    const auto owned = OwnedKeys(*entries);
    for (const RegistryEntry& entry : *entries) {
        const auto above = std::count_if(owned.begin(), owned.end(), [&](const std::wstring& key) {
            return entry.key == key || entry.key.starts_with(key + L'\\');
        });
        Require(above == 1, "every key is removed with one of those at the top");
    }
}

}  // namespace recoveryui::fuzz

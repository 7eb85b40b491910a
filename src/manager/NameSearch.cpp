#include "manager/NameSearch.h"

#include <algorithm>

#include "support/Text.h"

namespace recoveryui::manager {

int FindName(std::span<const std::wstring> names, std::wstring_view text, int start, NameSearch how) {
    const auto matches = [&](std::wstring_view name) {
        if (how.prefix) name = name.substr(0, text.size());
        return support::EqualIgnoringCase(name, text);
    };
    const auto count = static_cast<int>(names.size());
    const int first = std::clamp(start, 0, count);
    const auto from = names.begin() + first;
    auto found = std::find_if(from, names.end(), matches);
    if (found != names.end()) return static_cast<int>(found - names.begin());
    if (!how.wrap) return -1;
    found = std::find_if(names.begin(), from, matches);
    return found == from ? -1 : static_cast<int>(found - names.begin());
}

}  // namespace recoveryui::manager

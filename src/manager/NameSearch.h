#pragma once

#include <span>
#include <string>
#include <string_view>

namespace recoveryui::manager {

struct NameSearch {
    bool prefix = true;  // else the whole name
    bool wrap = true;    // go on at the first row
};

// The first row from `start` on with that name, ignoring case; -1 for none.
int FindName(std::span<const std::wstring> names, std::wstring_view text, int start, NameSearch how);

}  // namespace recoveryui::manager

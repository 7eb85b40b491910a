#pragma once

#include <functional>
#include <string_view>

namespace recoveryui::model {

struct NameSearch {
    bool prefix = true;  // else the whole name
    bool wrap = true;    // go on at the first row
};

// The first of `count` rows from `start` on with that name, ignoring case; -1 for none. A start that is no
// row means the first one.
int FindName(int count, const std::function<std::wstring_view(int)>& nameAt, std::wstring_view text,
             int start, NameSearch how);

}  // namespace recoveryui::model

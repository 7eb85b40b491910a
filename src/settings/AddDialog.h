#pragma once

#include <span>
#include <string>
#include <vector>

#include "model/RowRules.h"

namespace recoveryui::settings {

// How the Add dialog stands after its file was loaded.
struct AfterLoad {
    bool addEnabled = false;
    int select = model::kNoRow;  // with a row to select the list takes the focus
    int message = 0;             // a string id, 0 for none

    bool operator==(const AfterLoad&) const = default;
};

// `path` is the combo's text; `rows` are those of the list, meaningful for a successful load.
AfterLoad AfterLoading(const std::wstring& path, bool loaded, int rows);

// The names of the selected rows in list order, in whatever order the rows come.
std::vector<std::wstring> ChosenNames(std::span<const std::wstring> names, std::span<const int> selectedRows);

}  // namespace recoveryui::settings

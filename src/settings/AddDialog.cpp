#include "settings/AddDialog.h"

#include <set>

#include "resources/ids.h"

namespace recoveryui::settings {

AfterLoad AfterLoading(const std::wstring& path, bool loaded, int rows) {
    if (path.empty()) return {};
    if (!loaded) return {.message = IDS_FILE_NOT_FOUND};
    return rows > 0 ? AfterLoad{.addEnabled = true, .select = 0} : AfterLoad{};
}

std::vector<std::wstring> ChosenNames(std::span<const std::wstring> names,
                                      std::span<const int> selectedRows) {
    std::vector<std::wstring> chosen;
    for (const int row : std::set<int>(selectedRows.begin(), selectedRows.end()))
        if (row >= 0 && static_cast<std::size_t>(row) < names.size()) chosen.push_back(names[row]);
    return chosen;
}

}  // namespace recoveryui::settings

#include "process/ProcessNames.h"

#include <algorithm>

#include "resources/ids.h"
#include "support/Text.h"

namespace recoveryui::process {
namespace {

constexpr std::wstring_view kIllegal = L"\\/:*?\"<>|";

bool Holds(const std::vector<std::wstring>& names, std::wstring_view name) {
    return std::any_of(names.begin(), names.end(),
                       [&](const std::wstring& each) { return support::EqualIgnoringCase(each, name); });
}

// The string id of what is wrong with a trimmed name, or 0.
int Refusal(const std::vector<std::wstring>& rows, std::size_t row, const std::wstring& name) {
    if (name.empty()) return IDS_PROCESS_REQUIRED;
    if (name.find_first_of(kIllegal) != std::wstring::npos) return IDS_PROCESS_ILLEGAL;
    for (std::size_t other = 0; other < rows.size(); ++other) {
        if (other != row && support::EqualIgnoringCase(rows[other], name)) return IDS_PROCESS_EXISTS;
    }
    return 0;
}

}  // namespace

std::wstring FileNameOf(std::wstring_view path) {
    return std::wstring(path.substr(path.rfind(L'\\') + 1));
}

EditEnd EndEdit(const std::vector<std::wstring>& rows, std::size_t row,
                const std::optional<std::wstring>& typed) {
    using enum EditEnd::Action;
    const std::wstring& current = rows.at(row);
    if (!typed) return {current.empty() ? Delete : Keep, {}, 0};
    if (!current.empty() && current == *typed) return {};
    std::wstring name = support::TrimBlanks(*typed);
    const int refusal = Refusal(rows, row, name);
    return {refusal == 0 ? Store : Reopen, std::move(name), refusal};
}

std::vector<std::wstring> NamesToAppend(const std::vector<std::wstring>& rows,
                                        const std::vector<std::wstring>& selected) {
    std::vector<std::wstring> added;
    for (const std::wstring& name : selected) {
        if (!Holds(rows, name) && !Holds(added, name)) added.push_back(name);
    }
    return added;
}

}  // namespace recoveryui::process

#include "model/MruList.h"

namespace recoveryui::model {
namespace {

constexpr wchar_t kBetweenEntries = L';';

}  // namespace

MruPlan PlanAddString(const MruState& list, std::wstring_view text) {
    if (!text.empty() && list.match == 0) return {.result = 0};
    return PlanInsertString(list, 0, text);
}

MruPlan PlanInsertString(const MruState& list, int index, std::wstring_view text) {
    if (text.empty() || index < 0 || index >= list.maximum) return {};
    const bool matched = list.match >= 0;
    if (matched && list.match == index) return {.result = index};
    const int withoutMatch = list.count - (matched ? 1 : 0);
    const bool full = withoutMatch >= list.maximum;
    if (index > withoutMatch - (full ? 1 : 0)) return {};
    return {.result = index,
            .deleteMatch = matched ? list.match : kNoEntry,
            .deleteLast = full ? withoutMatch - 1 : kNoEntry,
            .insertAt = index};
}

std::vector<std::wstring> SplitEntries(std::wstring_view value, int maximum) {
    std::vector<std::wstring> entries;
    while (!value.empty() && static_cast<int>(entries.size()) < maximum) {
        const std::wstring_view entry = value.substr(0, value.find(kBetweenEntries));
        if (!entry.empty()) entries.emplace_back(entry);
        value.remove_prefix(entry.size() < value.size() ? entry.size() + 1 : entry.size());
    }
    return entries;
}

std::wstring JoinEntries(std::span<const std::wstring> entries) {
    std::wstring value;
    for (const std::wstring& entry : entries) {
        if (entry.empty()) continue;
        if (!value.empty()) value += kBetweenEntries;
        value += entry;
    }
    return value;
}

}  // namespace recoveryui::model

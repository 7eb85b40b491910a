#include "manager/TestLists.h"

#include <unordered_set>

namespace recoveryui::manager {

std::optional<std::wstring> WithScenarios(std::wstring_view stored, const std::wstring& file,
                                          std::span<const std::wstring> names,
                                          const model::PathConversion& toFull,
                                          const model::PathConversion& toStored) {
    model::Texts paths;
    std::vector<model::ScenarioAssociation> records = model::ReadRecords(stored, toFull, paths);
    const std::int32_t mode = records.empty() ? model::kModeEveryStep : records.front().ActivationMode;
    std::unordered_set<std::wstring_view> present;
    for (const model::ScenarioAssociation& record : records)
        if (record.file == file) present.insert(record.name);
    const std::size_t before = records.size();
    for (const std::wstring& name : names)
        if (present.insert(name).second) records.push_back({file, name, true, mode});
    if (records.size() == before) return std::nullopt;
    return model::WriteRecords(records, std::nullopt, toStored);
}

}  // namespace recoveryui::manager

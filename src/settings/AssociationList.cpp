#include "settings/AssociationList.h"

#include <utility>

namespace recoveryui::settings {

AssociationList::AssociationList(std::vector<ScenarioAssociation> items) : items_(std::move(items)) {
    for (const ScenarioAssociation& item : items_) Remember(item);
}

AddResult AssociationList::Add(const std::wstring& file, const std::wstring& name) {
    const auto known = filesByName_.find(name);
    const bool nameKnown = known != filesByName_.end();
    if (nameKnown && known->second.contains(file)) return AddResult::AlreadyAssociated;
    items_.push_back({file, name});
    Remember(items_.back());
    return nameKnown ? AddResult::AddedFromOtherFile : AddResult::Added;
}

Removal AssociationList::Remove(int row) {
    if (!Has(row)) return {{}, row};
    const ScenarioAssociation removed = items_[row];
    Removal removal;
    for (int i = Size() - 1; i >= 0; --i)
        if (items_[i].name == removed.name && items_[i].file == removed.file) removal.rows.push_back(i);
    std::erase_if(items_, [&](const ScenarioAssociation& item) {
        return item.name == removed.name && item.file == removed.file;
    });
    const auto known = filesByName_.find(removed.name);
    known->second.erase(removed.file);
    if (known->second.empty()) filesByName_.erase(known);
    removal.select = model::RowAfterRemoval(row, Size());
    return removal;
}

std::optional<int> AssociationList::MoveUp(int row) {
    if (!Has(row) || row == 0) return std::nullopt;
    std::swap(items_[row], items_[row - 1]);
    return row - 1;
}

std::optional<int> AssociationList::MoveDown(int row) {
    if (!Has(row) || row == Size() - 1) return std::nullopt;
    std::swap(items_[row], items_[row + 1]);
    return row + 1;
}

void AssociationList::SetEnabled(int row, bool enabled) {
    if (Has(row)) items_[row].enabled = enabled;
}

}  // namespace recoveryui::settings

#include "settings/AssociationList.h"

#include <algorithm>
#include <utility>

namespace recoveryui::settings {

AssociationList::AssociationList(std::vector<ScenarioAssociation> items, model::Texts texts)
    : items_(std::move(items)), texts_(std::move(texts)) {
    for (const ScenarioAssociation& item : items_) names_.insert(item.name);
}

AddResult AssociationList::Add(const std::wstring& file, const std::wstring& name) {
    const bool nameKnown = names_.contains(name);
    const auto same = [&](const ScenarioAssociation& item) { return item.name == name && item.file == file; };
    if (nameKnown && std::any_of(items_.begin(), items_.end(), same)) return AddResult::AlreadyAssociated;
    items_.push_back({texts_.emplace_front(file), texts_.emplace_front(name)});
    names_.insert(items_.back().name);
    return nameKnown ? AddResult::AddedFromOtherFile : AddResult::Added;
}

Removal AssociationList::Remove(int row) {
    if (!Has(row)) return {{}, row};
    const ScenarioAssociation removed = items_[row];
    const auto same = [&](const ScenarioAssociation& item) {
        return item.name == removed.name && item.file == removed.file;
    };
    Removal removal;
    for (int i = Size() - 1; i >= 0; --i)
        if (same(items_[i])) removal.rows.push_back(i);
    std::erase_if(items_, same);
    const auto sameName = [&](const ScenarioAssociation& item) { return item.name == removed.name; };
    if (std::none_of(items_.begin(), items_.end(), sameName)) names_.erase(removed.name);
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

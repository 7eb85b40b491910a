#pragma once

#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "model/RecordString.h"
#include "model/RowRules.h"
#include "model/ScenarioAssociation.h"

namespace recoveryui::settings {

using model::kNoRow;
using model::ScenarioAssociation;

enum class AddResult { Added, AlreadyAssociated, AddedFromOtherFile };

// What to delete from the list view, the highest row first, and what to select then.
struct Removal {
    std::vector<int> rows;
    int select = kNoRow;
};

// The scenarios of the Recovery tab in display order; row numbers are those of the list view.
class AssociationList {
public:
    AssociationList() = default;
    // Takes the items and the texts that they are parts of.
    explicit AssociationList(std::vector<ScenarioAssociation> items, model::Texts texts = {});
    AssociationList& operator=(AssociationList&&) = default;

    // Appends an enabled association unless this file's scenario is there already.
    AddResult Add(const std::wstring& file, const std::wstring& name);

    // Removes every association that equals the one at `row` in file and name.
    Removal Remove(int row);

    // The row where the association is afterwards; absent when there is nowhere to go.
    std::optional<int> MoveUp(int row);
    std::optional<int> MoveDown(int row);

    void SetEnabled(int row, bool enabled);

    const std::vector<ScenarioAssociation>& Items() const { return items_; }
    int Size() const { return static_cast<int>(items_.size()); }
    bool Has(int row) const { return row >= 0 && row < Size(); }

private:
    std::vector<ScenarioAssociation> items_;
    model::Texts texts_;
    std::unordered_set<std::wstring_view> names_;
};

}  // namespace recoveryui::settings

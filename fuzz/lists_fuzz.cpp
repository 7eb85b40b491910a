// Lists under any sequence of commands: the Recovery tab's, and the scenarios to add of the Manager.
#include <algorithm>

#include "Fuzz.h"
#include "manager/AddedScenarios.h"
#include "model/OperationOrder.h"
#include "settings/AssociationList.h"

namespace recoveryui::fuzz {
namespace {

void Associations(Input input) {
    settings::AssociationList list;
    while (!input.Empty()) {
        const std::size_t command = input.Below(5);
        const int row = static_cast<int>(input.Below(static_cast<std::size_t>(list.Size()) + 2)) - 1;
        const auto before = list.Items();
        const auto same = [&](const auto& each) {
            return list.Has(row) && each.file == before[static_cast<std::size_t>(row)].file &&
                   each.name == before[static_cast<std::size_t>(row)].name;
        };
        if (command == 0) {
            const std::wstring file = input.Line(), name = input.Line();
            const bool known = std::any_of(before.begin(), before.end(), [&](const auto& each) {
                return each.file == file && each.name == name;
            });
            const auto result = list.Add(file, name);
            Require((result == settings::AddResult::AlreadyAssociated) == known, "each association once");
            Require(list.Items().size() == before.size() + (known ? 0 : 1), "and no other is lost");
        } else if (command == 1) {
            const auto gone = static_cast<std::size_t>(std::count_if(before.begin(), before.end(), same));
            const auto removal = list.Remove(row);
            Require(removal.rows.size() == gone && list.Items().size() + gone == before.size(),
                    "the association is removed, and it alone");
            Require(gone == 0 || removal.select < list.Size(), "the selected row exists");
        } else if (command == 4) {
            list.SetEnabled(row, input.Byte() % 2 != 0);
        } else {
            const auto to = command == 2 ? list.MoveUp(row) : list.MoveDown(row);
            Require(!to || list.Items().at(static_cast<std::size_t>(*to)) ==
                               before.at(static_cast<std::size_t>(row)),
                    "the moved row is where it was said to be");
            Require(
                std::is_permutation(before.begin(), before.end(), list.Items().begin(), list.Items().end()),
                "moving loses nothing");
        }
    }
}

void Added(Input input) {
    manager::AddedScenarios added;
    while (!input.Empty()) {
        const std::size_t command = input.Below(5);
        const std::wstring name = input.Line();
        const auto current = added.ForCurrent();
        if (command == 0) added.Add(name, true, input.Byte() % 2 != 0);
        if (command == 1) added.Rename(name, input.Line());
        if (command == 2) added.Remove(name);
        if (command == 3) added.FileSaved(name);
        Require(command == 4 || added.ForCurrent() == current, "only leaving a file adds");
        if (command == 4) added.FileLeft();
        for (const auto& file : added.ForCurrent()) {
            auto names = file.names;
            std::sort(names.begin(), names.end());
            Require(!names.empty() && std::adjacent_find(names.begin(), names.end()) == names.end(),
                    "a file is named for something, each scenario once");
        }
    }
}

void Operations(Input input) {
    const model::OperationList list{input.Below(8), input.Byte() % 2 != 0};
    for (std::size_t row = 0; row < 10; ++row) {
        const auto up = SwapUp(list, row), down = SwapDown(list, row);
        Require(!up || (*up + 1 == row && SwapDown(list, *up) == row), "up and down again");
        Require(!down || (*down < list.operations && SwapUp(list, *down) == row), "down and up again");
        Require((DeletionOf(list, row) != model::Deletion::None) == (row < list.Rows()),
                "every row can be deleted");
    }
}

}  // namespace

void Fuzz(Input input) {
    Associations(input);
    Added(input);
    Operations(input);
}

}  // namespace recoveryui::fuzz

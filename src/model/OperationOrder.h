// Moving and deleting rows of the list of operations. The restart, when there is one, is the row behind
// the last operation and stays there.
#pragma once

#include <cstddef>
#include <optional>

namespace recoveryui::model {

struct OperationList {
    std::size_t operations;
    bool restart;

    std::size_t Rows() const { return operations + (restart ? 1 : 0); }
};

// The operation that the selected one changes places with; nothing when it stays where it is.
std::optional<std::size_t> SwapUp(const OperationList& list, std::size_t selected);
std::optional<std::size_t> SwapDown(const OperationList& list, std::size_t selected);

// What Delete takes away.
enum class Deletion { None, Operation, Restart };
Deletion DeletionOf(const OperationList& list, std::size_t selected);

}  // namespace recoveryui::model

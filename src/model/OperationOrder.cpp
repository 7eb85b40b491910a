#include "model/OperationOrder.h"

namespace recoveryui::model {

std::optional<std::size_t> SwapUp(const OperationList& list, std::size_t selected) {
    if (selected == 0 || selected >= list.operations) return std::nullopt;
    return selected - 1;
}

std::optional<std::size_t> SwapDown(const OperationList& list, std::size_t selected) {
    if (selected >= list.operations || selected + 1 == list.operations) return std::nullopt;
    return selected + 1;
}

Deletion DeletionOf(const OperationList& list, std::size_t selected) {
    if (selected < list.operations) return Deletion::Operation;
    return list.restart && selected == list.operations ? Deletion::Restart : Deletion::None;
}

}  // namespace recoveryui::model

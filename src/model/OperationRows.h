// The rows of a list of operations, the same in the wizard and in the properties sheet.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "support/Text.h"

namespace recoveryui::model {

// What an operation object says about itself; only the fields of its kind are filled.
struct OperationDescription {
    std::int32_t kind = 0;
    std::optional<std::wstring> label{};  // of a button; nothing when the object holds no text for it
    std::wstring library{};
    std::wstring function{};
    std::vector<std::wstring> processes{};
    std::wstring keyNames{};
};

struct OperationRow {
    std::wstring type;
    std::wstring details;
};

// One row per operation and a last one for the restart. An operation of an unknown kind ends the list: it
// and all that would follow are left out.
std::vector<OperationRow> OperationRows(std::span<const OperationDescription> operations, bool restart,
                                        const support::Strings& strings);

}  // namespace recoveryui::model

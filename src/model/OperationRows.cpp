#include "model/OperationRows.h"

#include "model/Words.h"
#include "resources/ids.h"

namespace recoveryui::model {
namespace {

std::wstring JoinProcesses(const std::vector<std::wstring>& names) {
    std::wstring joined;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (i > 0) joined += L';';
        joined += names[i];
    }
    return joined;
}

std::wstring Details(const OperationDescription& operation, OperationKind kind,
                     const support::Strings& strings) {
    switch (kind) {
        case OperationKind::ClickButton:
            return operation.label ? support::Fill(strings(IDS_LIST_BUTTON_LABEL), {*operation.label})
                                   : std::wstring();
        case OperationKind::FunctionCall:
            return support::Fill(strings(IDS_LIST_FUNCTION), {operation.library, operation.function});
        case OperationKind::CloseProcesses: return JoinProcesses(operation.processes);
        case OperationKind::PressKeys: break;
    }
    return operation.keyNames;
}

}  // namespace

std::vector<OperationRow> OperationRows(std::span<const OperationDescription> operations, bool restart,
                                        const support::Strings& strings) {
    std::vector<OperationRow> rows;
    for (const OperationDescription& operation : operations) {
        const std::optional<OperationKind> kind = OperationKindFrom(operation.kind);
        if (!kind) return rows;
        rows.push_back({strings(OperationListWord(*kind)), Details(operation, *kind, strings)});
    }
    if (restart) rows.push_back({strings(IDS_OPERATION_RESTART), {}});
    return rows;
}

}  // namespace recoveryui::model

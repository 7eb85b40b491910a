#include "wizard/Summary.h"

#include "model/Words.h"
#include "resources/ids.h"

namespace recoveryui::wizard {
namespace {

constexpr const wchar_t* kLineEnd = L"\r\n";

}  // namespace

std::optional<std::wstring> BuildSummary(const SummaryContent& content, const support::Strings& strings) {
    std::wstring text = strings(IDS_SUMMARY_TRIGGER);
    if (content.trigger) {
        const auto kind = model::TriggerKindFrom(*content.trigger);
        if (!kind) return std::nullopt;
        text += strings(model::TriggerWord(*kind));
    }
    text += kLineEnd + strings(IDS_SUMMARY_OPERATIONS);
    for (const std::int32_t operation : content.operations) {
        const auto kind = model::OperationKindFrom(operation);
        if (!kind) return std::nullopt;
        text += L'\t' + strings(model::OperationWord(*kind)) + kLineEnd;
    }
    if (content.restart) text += L'\t' + strings(IDS_OPERATION_RESTART) + kLineEnd;
    const auto option = model::PostRecoveryOptionFrom(content.option);
    if (!option) return std::nullopt;
    return text + strings(IDS_SUMMARY_OPTION) + strings(model::OptionWord(*option));
}

}  // namespace recoveryui::wizard

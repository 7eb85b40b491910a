#include "settings/PropertiesPages.h"

#include "model/Kinds.h"
#include "model/Words.h"

namespace recoveryui::settings {

std::optional<SheetPage> TriggerPage(std::int32_t triggerKind) {
    const auto kind = model::TriggerKindFrom(triggerKind);
    if (!kind) return std::nullopt;
    switch (*kind) {
        case model::TriggerKind::ObjectState: return SheetPage::ObjectState;
        case model::TriggerKind::PopUp: return SheetPage::Popup;
        case model::TriggerKind::Error: return SheetPage::Error;
        case model::TriggerKind::Crash: return SheetPage::Crash;
    }
    return std::nullopt;
}

std::vector<SheetPage> PagesOf(std::optional<std::int32_t> triggerKind, bool operationsRead) {
    std::vector<SheetPage> pages{SheetPage::General};
    if (triggerKind)
        if (const auto page = TriggerPage(*triggerKind)) pages.push_back(*page);
    if (operationsRead) pages.insert(pages.end(), {SheetPage::Actions, SheetPage::PostRecovery});
    return pages;
}

const support::ReplayError* ErrorToShow(std::int32_t code) {
    return code == support::kAnyError ? nullptr : support::FindReplayError(code);
}

int TextOfOption(std::int32_t option) {
    const auto known = model::PostRecoveryOptionFrom(option);
    return known ? model::OptionWord(*known) : 0;
}

bool ShowsRestart(std::int32_t option) {
    const auto known = model::PostRecoveryOptionFrom(option);
    return known && model::IncludesRestart(*known);
}

}  // namespace recoveryui::settings

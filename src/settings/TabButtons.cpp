#include "settings/TabButtons.h"

#include "model/Kinds.h"

namespace recoveryui::settings {

int IconOf(std::optional<std::int32_t> triggerKind) {
    return triggerKind && model::TriggerKindFrom(*triggerKind) ? *triggerKind : kIconUnreadable;
}

TabButtons ButtonsFor(int rows, int selectedRow, int icon) {
    const bool onRow = selectedRow >= 0 && selectedRow < rows;
    return {.add = true,
            .remove = onRow,
            .up = onRow,
            .down = onRow,
            .properties = onRow && icon != kIconUnreadable};
}

}  // namespace recoveryui::settings

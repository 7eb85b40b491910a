#include "settings/TabButtons.h"

namespace recoveryui::settings {

TabButtons ButtonsFor(int rows, int selectedRow, int icon) {
    const bool onRow = selectedRow >= 0 && selectedRow < rows;
    return {.add = true,
            .remove = onRow,
            .up = onRow,
            .down = onRow,
            .properties = onRow && icon != kIconUnreadable};
}

}  // namespace recoveryui::settings

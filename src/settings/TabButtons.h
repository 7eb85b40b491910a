#pragma once

namespace recoveryui::settings {

// The icon of a scenario that could not be read; the trigger kinds 0 to 3 number the others.
inline constexpr int kIconUnreadable = 4;

struct TabButtons {
    bool add = true;
    bool remove = false;
    bool up = false;
    bool down = false;
    bool properties = false;

    bool operator==(const TabButtons&) const = default;
};

// The buttons above the scenario list; `icon` is the selected row's.
TabButtons ButtonsFor(int rows, int selectedRow, int icon);

}  // namespace recoveryui::settings

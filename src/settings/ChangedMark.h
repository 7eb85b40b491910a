#pragma once

#include <cstdint>
#include <optional>

namespace recoveryui::settings {

// What marking the page does, in this order.
struct ChangedMark {
    std::int32_t dirty;                      // write `g_bDirty`
    bool disableApplyAndOk;                  // in the frame
    std::optional<std::int32_t> allowApply;  // write `g_bAllowApply`

    bool operator==(const ChangedMark&) const = default;
};

// `siteSaysReadOnly` is the page site's yes/no answer; a missing site says no.
inline ChangedMark MarkPage(bool changed, bool siteSaysReadOnly, bool windowExists) {
    return {changed ? 1 : 0, siteSaysReadOnly && windowExists,
            changed ? std::optional<std::int32_t>(0) : std::nullopt};
}

}  // namespace recoveryui::settings

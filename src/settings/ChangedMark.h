#pragma once

#include <cstdint>
#include <optional>

namespace recoveryui::settings {

// What marking the page does once `g_bDirty` has been written, in this order.
struct ChangedMark {
    bool disableApplyAndOk;                  // in the frame
    std::optional<std::int32_t> allowApply;  // write `g_bAllowApply`

    bool operator==(const ChangedMark&) const = default;
};

// `siteSaysReadOnly` is the page site's yes/no answer; a missing site says no.
inline ChangedMark MarkPage(bool changed, bool siteSaysReadOnly, bool windowExists) {
    return {siteSaysReadOnly && windowExists, changed ? std::optional<std::int32_t>(0) : std::nullopt};
}

}  // namespace recoveryui::settings

#pragma once

#include <cstdint>
#include <optional>

namespace recoveryui::settings {

// The frame's shared values as booleans: true is a VT_I4 that is not 0, everything else is false.
// `g_bAlreadyInit` is read along with them and decides nothing.
struct FrameFlags {
    bool dirty = false;
    bool readOnlyMode = false;
    bool forceSORConfiguration = false;
    bool wasSORConfigured = false;
    bool isSORTabActive = false;
};

// What reaches the settings frame. ClosingCancel is the IDCANCEL that a close which was let through
// produces itself: its question has been answered.
enum class FrameEvent { TabChange, Ok, Apply, Cancel, Close, ClosingCancel, FinalDestroy, Other };

enum class FrameBox { None, RefuseApply, AskCancel };

// What to do, in the order of the fields; an absent value leaves things as they are.
struct FrameDecision {
    std::optional<std::int32_t> allowApply = {};  // write `g_bAllowApply`
    FrameBox box = FrameBox::None;
    bool swallow = false;                   // for AskCancel: unless the user answers OK
    std::optional<bool> applyEnabled = {};  // once the frame has handled the event itself
    std::optional<bool> okEnabled = {};
    bool release = false;  // let go of the settings object and write `g_bAlreadyInit` = 0

    bool operator==(const FrameDecision&) const = default;
};

FrameDecision Decide(FrameEvent event, const FrameFlags& flags);

// Whether the event ends here, given the answer to the question (if there was one).
inline bool IsSwallowed(const FrameDecision& decision, bool answeredOk) {
    return decision.swallow && !(decision.box == FrameBox::AskCancel && answeredOk);
}

}  // namespace recoveryui::settings

// What the settings frame does with its commands, without a window.
#include <gtest/gtest.h>

#include "settings/FrameProtocol.h"

namespace recoveryui::settings {
namespace {

// In the eight states of the forced configuration; the frame asks or refuses only where it is not done.
TEST(SettingsFrame, AMissingConfigurationRefusesAnApplyAndQuestionsALeave) {
    for (int bits = 0; bits < 8; ++bits) {
        const FrameFlags flags{.forceSORConfiguration = (bits & 1) != 0,
                               .wasSORConfigured = (bits & 2) != 0,
                               .isSORTabActive = (bits & 4) != 0};
        const bool asks = bits == 1 || bits == 5, refuses = bits == 1;
        const FrameDecision passes{.allowApply = 1},
            refused{.allowApply = 1, .box = FrameBox::RefuseApply, .swallow = true},
            asked{.box = FrameBox::AskCancel, .swallow = true};
        FrameDecision cancelled = asks ? asked : FrameDecision{};
        cancelled.allowApply = 0;
        const std::pair<FrameEvent, FrameDecision> rows[] = {
            {FrameEvent::Ok, refuses ? refused : passes},
            {FrameEvent::Apply, refuses ? refused : passes},
            {FrameEvent::Cancel, cancelled},
            {FrameEvent::Close, asks ? asked : FrameDecision{}},
            {FrameEvent::ClosingCancel, {}},  // the Cancel of an answered Close
            {FrameEvent::Other, {}},
        };
        for (const auto& [event, decision] : rows) EXPECT_EQ(Decide(event, flags), decision) << bits;
        EXPECT_EQ(IsSwallowed(cancelled, false), asks);
        EXPECT_FALSE(IsSwallowed(cancelled, true));
        EXPECT_EQ(IsSwallowed(refuses ? refused : passes, true), refuses);
    }
}

TEST(SettingsFrame, ATabChangeSetsTheButtonsAndItsEndReleasesTheSettings) {
    const auto after = [](bool dirty, bool readOnly) {
        return Decide(FrameEvent::TabChange, {.dirty = dirty, .readOnlyMode = readOnly});
    };
    const FrameDecision readOnly{.applyEnabled = false, .okEnabled = false};
    EXPECT_EQ(after(false, false), FrameDecision{});
    EXPECT_EQ(after(true, false), (FrameDecision{.applyEnabled = true}));
    EXPECT_EQ(after(false, true), readOnly);
    EXPECT_EQ(after(true, true), readOnly);
    EXPECT_EQ(Decide(FrameEvent::FinalDestroy, {.forceSORConfiguration = true}),
              (FrameDecision{.release = true}));
}

}  // namespace
}  // namespace recoveryui::settings

#include "settings/FrameProtocol.h"

#include <gtest/gtest.h>

namespace recoveryui::settings {
namespace {

// The eight states of the forced configuration; the frame asks or refuses only where it is not done.
std::vector<FrameFlags> ConfigurationStates() {
    std::vector<FrameFlags> states;
    for (int bits = 0; bits < 8; ++bits)
        states.push_back({.forceSORConfiguration = (bits & 1) != 0,
                          .wasSORConfigured = (bits & 2) != 0,
                          .isSORTabActive = (bits & 4) != 0});
    return states;
}

TEST(SettingsFrame, OkAndApplyAreRefusedWhileTheConfigurationIsMissing) {
    const FrameDecision passes{.allowApply = 1};
    const FrameDecision refused{.allowApply = 1, .box = FrameBox::RefuseApply, .swallow = true};
    const bool refusedFor[] = {false, true, false, false, false, false, false, false};
    for (const FrameEvent event : {FrameEvent::Ok, FrameEvent::Apply})
        for (int i = 0; i < 8; ++i)
            EXPECT_EQ(Decide(event, ConfigurationStates()[i]), refusedFor[i] ? refused : passes) << i;
    EXPECT_TRUE(IsSwallowed(refused, true));
    EXPECT_FALSE(IsSwallowed(passes, false));
}

TEST(SettingsFrame, CancelAndCloseAskWhileTheConfigurationIsMissing) {
    const bool asksFor[] = {false, true, false, false, false, true, false, false};
    for (const FrameEvent event : {FrameEvent::Cancel, FrameEvent::Close})
        for (int i = 0; i < 8; ++i) {
            FrameDecision expected;
            if (event == FrameEvent::Cancel) expected.allowApply = 0;
            if (asksFor[i]) {
                expected.box = FrameBox::AskCancel;
                expected.swallow = true;
            }
            const FrameDecision decision = Decide(event, ConfigurationStates()[i]);
            EXPECT_EQ(decision, expected) << i;
            EXPECT_EQ(IsSwallowed(decision, false), asksFor[i]);
            EXPECT_FALSE(IsSwallowed(decision, true));
        }
}

TEST(SettingsFrame, TheCancelOfAnAnsweredCloseAndAllElsePass) {
    for (const FrameFlags& flags : ConfigurationStates())
        for (const FrameEvent event : {FrameEvent::ClosingCancel, FrameEvent::Other})
            EXPECT_EQ(Decide(event, flags), FrameDecision{});
}

TEST(SettingsFrame, ATabChangeSetsTheButtons) {
    const auto after = [](bool dirty, bool readOnly) {
        return Decide(FrameEvent::TabChange, {.dirty = dirty, .readOnlyMode = readOnly});
    };
    EXPECT_EQ(after(false, false), FrameDecision{});
    EXPECT_EQ(after(true, false), (FrameDecision{.applyEnabled = true}));
    EXPECT_EQ(after(false, true), (FrameDecision{.applyEnabled = false, .okEnabled = false}));
    EXPECT_EQ(after(true, true), (FrameDecision{.applyEnabled = false, .okEnabled = false}));
}

TEST(SettingsFrame, ItsEndReleasesTheSettings) {
    EXPECT_EQ(Decide(FrameEvent::FinalDestroy, {.forceSORConfiguration = true}),
              (FrameDecision{.release = true}));
}

}  // namespace
}  // namespace recoveryui::settings

// What the Recovery tab and its frame decide, without a window.
#include <gtest/gtest.h>

#include "settings/AssociationList.h"
#include "settings/ChangedMark.h"
#include "settings/FrameProtocol.h"
#include "settings/TabButtons.h"

namespace recoveryui::settings {
namespace {

TEST(RecoveryTab, TheSameScenarioOfTheSameFileIsAddedOnce) {
    AssociationList list({{L"f", L"A", true, 1}, {L"f", L"B", false, -1}, {L"g", L"A", true, 1}});
    const struct {
        const wchar_t *file, *name;
        AddResult result;
    } added[] = {
        {L"f", L"A", AddResult::AlreadyAssociated},  {L"f", L"a", AddResult::Added},
        {L"F", L"A", AddResult::AddedFromOtherFile}, {L"g", L"B", AddResult::AddedFromOtherFile},
        {L"f", L"a", AddResult::AlreadyAssociated},
    };
    for (const auto& a : added) EXPECT_EQ(list.Add(a.file, a.name), a.result) << &a - added;
    std::wstring shown;
    for (const auto& item : list.Items()) shown.append(item.file).append(L"/").append(item.name).append(L" ");
    EXPECT_EQ(shown, L"f/A f/B g/A f/a F/A g/B ");
    list.Remove(0);
    EXPECT_EQ(list.Add(L"f", L"A"), AddResult::AddedFromOtherFile) << "removed, it can be added again";
}

TEST(RecoveryTab, ButtonsFollowTheSelectedRowAndAMarkTellsTheFrame) {
    const TabButtons onlyAdd, all{true, true, true, true, true}, unreadable{true, true, true, true, false};
    const struct {
        int rows, selected;
        std::optional<std::int32_t> kind;
        TabButtons buttons;
    } cases[] = {
        {0, kNoRow, 0, onlyAdd}, {0, 0, 0, onlyAdd},     {2, kNoRow, 0, onlyAdd},
        {2, 2, 0, onlyAdd},      {2, 0, 0, all},         {2, 1, 3, all},
        {2, 1, 4, unreadable},   {2, 1, -1, unreadable}, {2, 1, std::nullopt, unreadable},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ButtonsFor(c.rows, c.selected, IconOf(c.kind)), c.buttons) << &c - cases;
    EXPECT_EQ(MarkPage(true, false, true), (ChangedMark{false, 0}));
    EXPECT_EQ(MarkPage(true, true, true), (ChangedMark{true, 0}));
    EXPECT_EQ(MarkPage(true, true, false), (ChangedMark{false, 0}));
    EXPECT_EQ(MarkPage(false, true, true), (ChangedMark{true, std::nullopt}));
}

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

// What the Recovery tab, its frame, the Add dialog and the properties sheet decide, without a window.
#include <gtest/gtest.h>

#include "resources/ids.h"
#include "settings/AddDialog.h"
#include "settings/AssociationList.h"
#include "settings/ChangedMark.h"
#include "settings/FrameProtocol.h"
#include "settings/PropertiesPages.h"
#include "settings/TabButtons.h"

namespace recoveryui::settings {
namespace {

// Each association as "file/name", with "-" in front when it is not enabled.
std::wstring Shown(const AssociationList& list) {
    std::wstring text;
    for (const auto& item : list.Items())
        text += (item.enabled ? L"" : L"-") + item.file + L"/" + item.name + L" ";
    return text;
}

AssociationList ThreeScenarios() {
    return AssociationList({{L"f", L"A", true, 1}, {L"f", L"B", false, -1}, {L"g", L"A", true, 1}});
}

TEST(RecoveryTab, TheSameScenarioOfTheSameFileIsAddedOnce) {
    AssociationList list = ThreeScenarios();
    const struct {
        const wchar_t *file, *name;
        AddResult result;
    } added[] = {
        {L"f", L"A", AddResult::AlreadyAssociated},  {L"f", L"a", AddResult::Added},
        {L"F", L"A", AddResult::AddedFromOtherFile}, {L"g", L"B", AddResult::AddedFromOtherFile},
        {L"f", L"a", AddResult::AlreadyAssociated},
    };
    for (const auto& a : added) EXPECT_EQ(list.Add(a.file, a.name), a.result);
    EXPECT_EQ(Shown(list), L"f/A -f/B g/A f/a F/A g/B ");
    list.Remove(0);
    EXPECT_EQ(list.Add(L"f", L"A"), AddResult::AddedFromOtherFile) << "removed, it can be added again";
}

TEST(RecoveryTab, RemoveTakesEveryEqualRowAndSelectsTheNext) {
    const ScenarioAssociation a{L"f", L"A", true, 1}, b{L"f", L"B", true, 1}, off{L"f", L"A", false, -1};
    const struct {
        std::vector<ScenarioAssociation> items;
        int row;
        std::vector<int> rows;
        int select;
        const wchar_t* left;
    } cases[] = {
        {{a, b}, 0, {0}, 0, L"f/B "},
        {{a, b}, 1, {1}, 0, L"f/A "},
        {{a}, 0, {0}, kNoRow, L""},
        {{a, b, off}, 2, {2, 0}, 0, L"f/B "},
        {{a, b}, kNoRow, {}, kNoRow, L"f/A f/B "},
        {{a, b}, 2, {}, 2, L"f/A f/B "},
    };
    for (const auto& c : cases) {
        AssociationList list(c.items);
        const Removal removal = list.Remove(c.row);
        EXPECT_EQ(removal.rows, c.rows);
        EXPECT_EQ(removal.select, c.select);
        EXPECT_EQ(Shown(list), c.left);
    }
}

TEST(RecoveryTab, MovingStopsAtBothEnds) {
    AssociationList list = ThreeScenarios();
    for (const int row : {0, kNoRow}) EXPECT_EQ(list.MoveUp(row), std::nullopt);
    for (const int row : {2, kNoRow}) EXPECT_EQ(list.MoveDown(row), std::nullopt);
    EXPECT_EQ(list.MoveUp(1), 0);
    EXPECT_EQ(list.MoveDown(1), 2);
    list.SetEnabled(1, false);
    list.SetEnabled(9, true);
    EXPECT_EQ(Shown(list), L"-f/B -g/A f/A ");
    EXPECT_EQ(list.Items()[0].ActivationMode, -1);
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
    for (const auto& c : cases) EXPECT_EQ(ButtonsFor(c.rows, c.selected, IconOf(c.kind)), c.buttons);
    EXPECT_EQ(MarkPage(true, false, true), (ChangedMark{false, 0}));
    EXPECT_EQ(MarkPage(true, true, true), (ChangedMark{true, 0}));
    EXPECT_EQ(MarkPage(true, true, false), (ChangedMark{false, 0}));
    EXPECT_EQ(MarkPage(false, true, true), (ChangedMark{true, std::nullopt}));
}

TEST(AddDialog, IsReadyOnceAFileShowsScenariosAndGivesTheChosenInListOrder) {
    EXPECT_EQ(AfterLoading(L"f", true, 3), (AfterLoad{.addEnabled = true, .select = 0}));
    EXPECT_EQ(AfterLoading(L"f", true, 0), AfterLoad{});
    EXPECT_EQ(AfterLoading(L"f", false, 3), (AfterLoad{.message = IDS_FILE_NOT_FOUND}));
    EXPECT_EQ(AfterLoading(L"", false, 3), AfterLoad{});
    using Names = std::vector<std::wstring>;
    const Names names{L"A", L"B", L"C", L"D"};
    EXPECT_EQ(ChosenNames(names, std::vector<int>{3, 0, 2, 0}), (Names{L"A", L"C", L"D"}));
    EXPECT_EQ(ChosenNames(names, std::vector<int>{-1, 4}), Names{});
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

TEST(PropertiesSheet, ShowsThePagesThatItCouldRead) {
    using enum SheetPage;
    const struct {
        std::optional<std::int32_t> kind;
        bool operationsRead;
        std::vector<SheetPage> pages;
    } cases[] = {
        {0, true, {General, ObjectState, Actions, PostRecovery}},
        {1, true, {General, Popup, Actions, PostRecovery}},
        {2, true, {General, Error, Actions, PostRecovery}},
        {3, false, {General, Crash}},
        {4, true, {General, Actions, PostRecovery}},
        {std::nullopt, false, {General}},
    };
    for (const auto& c : cases) EXPECT_EQ(PagesOf(c.kind, c.operationsRead), c.pages);
}

TEST(PropertiesSheet, ExplainsTheErrorsItKnowsAndSaysWhatHappensAfterRecovery) {
    const struct {
        std::uint32_t code;
        int label, description;
    } known[] = {
        {0x80040202, IDS_ERROR_OBJECT_NOT_FOUND, IDS_DESCRIBE_OBJECT_NOT_FOUND},
        {0x80040203, IDS_REPLAY_OBJECT_NOT_UNIQUE, IDS_DESCRIBE_OBJECT_NOT_UNIQUE},
        {0x80040205, IDS_REPLAY_OBJECT_NOT_VISIBLE, IDS_DESCRIBE_OBJECT_NOT_VISIBLE},
        {0x80040208, IDS_REPLAY_OBJECT_DISABLED, IDS_DESCRIBE_OBJECT_DISABLED},
        {0x80040209, IDS_REPLAY_ITEM_NOT_FOUND, IDS_DESCRIBE_ITEM_NOT_FOUND},
        {0x8004020A, IDS_REPLAY_ITEM_NOT_UNIQUE, IDS_DESCRIBE_ITEM_NOT_UNIQUE},
    };
    for (const auto& k : known) {
        const auto* error = ErrorToShow(static_cast<std::int32_t>(k.code));
        ASSERT_NE(error, nullptr) << std::hex << k.code;
        EXPECT_EQ(error->labelId, k.label);
        EXPECT_EQ(error->descriptionId, k.description);
    }
    for (const std::uint32_t code : {0u, 1u, 0x80040201u, 0x80040204u, 0x8004020Bu, 0x80004005u})
        EXPECT_EQ(ErrorToShow(static_cast<std::int32_t>(code)), nullptr) << std::hex << code;

    const int texts[] = {0,
                         IDS_OPTION_REPEAT_STEP,
                         IDS_OPTION_NEXT_STEP,
                         IDS_OPTION_NEXT_ACTION,
                         IDS_OPTION_NEXT_ITERATION,
                         IDS_OPTION_RESTART_RUN,
                         IDS_OPTION_STOP_RUN,
                         IDS_OPTION_RESTART_RUN,
                         IDS_OPTION_STOP_RUN,
                         0};
    for (int option = 0; option < 10; ++option) {
        EXPECT_EQ(TextOfOption(option), texts[option]) << option;
        EXPECT_EQ(ShowsRestart(option), option == 7 || option == 8) << option;
    }
}

}  // namespace
}  // namespace recoveryui::settings

#include <gtest/gtest.h>

#include "resources/ids.h"
#include "settings/AddDialog.h"
#include "settings/AssociationList.h"
#include "settings/ChangedMark.h"
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
}

TEST(RecoveryTab, RemoveTakesEveryEqualRowAndSelectsTheNext) {
    using Rows = std::vector<int>;
    const ScenarioAssociation a{L"f", L"A", true, 1}, b{L"f", L"B", true, 1}, off{L"f", L"A", false, -1};
    const struct {
        std::vector<ScenarioAssociation> items;
        int row;
        Rows rows;
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

TEST(RecoveryTab, ARemovedScenarioCanBeAddedAgain) {
    AssociationList list = ThreeScenarios();
    list.Remove(0);
    EXPECT_EQ(list.Add(L"f", L"A"), AddResult::AddedFromOtherFile);
    list.Remove(0);
    EXPECT_EQ(list.Add(L"f", L"B"), AddResult::Added);
}

TEST(RecoveryTab, MovingStopsAtBothEnds) {
    AssociationList list = ThreeScenarios();
    EXPECT_EQ(list.MoveUp(0), std::nullopt);
    EXPECT_EQ(list.MoveDown(2), std::nullopt);
    EXPECT_EQ(list.MoveUp(kNoRow), std::nullopt);
    EXPECT_EQ(list.MoveDown(kNoRow), std::nullopt);
    EXPECT_EQ(list.MoveUp(1), 0);
    EXPECT_EQ(list.MoveDown(1), 2);
    list.SetEnabled(1, false);
    list.SetEnabled(9, true);
    EXPECT_EQ(Shown(list), L"-f/B -g/A f/A ");
    EXPECT_EQ(list.Items()[0].ActivationMode, -1);
}

TEST(RecoveryTab, ThousandsOfScenariosAreAddedWithoutDelay) {
    AssociationList list;
    for (int pass = 0; pass < 2; ++pass)
        for (int i = 0; i < 20'000; ++i) list.Add(L"f" + std::to_wstring(i % 2), std::to_wstring(i));
    EXPECT_EQ(list.Size(), 20'000);
}

TEST(RecoveryTab, ButtonsFollowTheSelectedRow) {
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
}

TEST(RecoveryTab, MarkingTellsTheFrame) {
    EXPECT_EQ(MarkPage(true, false, true), (ChangedMark{false, 0}));
    EXPECT_EQ(MarkPage(true, true, true), (ChangedMark{true, 0}));
    EXPECT_EQ(MarkPage(true, true, false), (ChangedMark{false, 0}));
    EXPECT_EQ(MarkPage(false, true, true), (ChangedMark{true, std::nullopt}));
}

TEST(AddDialog, IsReadyOnceAFileShowsScenarios) {
    EXPECT_EQ(AfterLoading(L"f", true, 3), (AfterLoad{.addEnabled = true, .select = 0}));
    EXPECT_EQ(AfterLoading(L"f", true, 0), AfterLoad{});
    EXPECT_EQ(AfterLoading(L"f", false, 3), (AfterLoad{.message = IDS_FILE_NOT_FOUND}));
    EXPECT_EQ(AfterLoading(L"", false, 3), AfterLoad{});
}

TEST(AddDialog, GivesTheChosenNamesInListOrder) {
    using Names = std::vector<std::wstring>;
    const Names names{L"A", L"B", L"C", L"D"};
    EXPECT_EQ(ChosenNames(names, std::vector<int>{3, 0, 2, 0}), (Names{L"A", L"C", L"D"}));
    EXPECT_EQ(ChosenNames(names, std::vector<int>{-1, 4}), Names{});
}

}  // namespace
}  // namespace recoveryui::settings

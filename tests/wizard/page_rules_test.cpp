#include <gtest/gtest.h>

#include "harness/FakeStrings.h"
#include "wizard/ClickChoice.h"
#include "wizard/PopupConditions.h"
#include "wizard/ScenarioName.h"
#include "wizard/Summary.h"

namespace recoveryui::wizard {
namespace {

TEST(PopupConditionsTest, NextNeedsACheckedConditionAndAValueInEveryCheckedOne) {
    struct {
        PopupCondition title, text;
        bool complete;
    } const rows[] = {
        {{false, L"t"}, {false, L"x"}, false}, {{true, L"  "}, {false, L""}, true},
        {{true, L"t"}, {true, L""}, false},    {{true, L""}, {true, L"x"}, false},
        {{false, L""}, {true, L"x"}, true},    {{true, L"t"}, {true, L"x"}, true},
    };
    for (const auto& row : rows) EXPECT_EQ((PopupConditions{row.title, row.text}.Complete()), row.complete);
    EXPECT_TRUE(FreshConditions().title.checked);
    EXPECT_FALSE(FreshConditions().Complete());
}

TEST(PopupConditionsTest, ATriggerShowsWhatItHoldsAndOnlyItsTextChangesLineEnds) {
    const PopupConditions read{TitleOfTrigger(L"", true), TextOfTrigger(L"a\nb", true)};
    EXPECT_FALSE(read.title.checked);
    EXPECT_TRUE(read.text.checked && read.text.isRegex && read.Complete());
    EXPECT_EQ(read.text.value, L"a\r\nb");
    EXPECT_EQ(read.StoredText(), L"a\nb");
    EXPECT_EQ(TitleOfTrigger(L"a\nb", false).value, L"a\nb");

    const PopupConditions captured = CapturedConditions(L"Title", L"");
    EXPECT_TRUE(captured.title.checked && !captured.title.isRegex);
    EXPECT_FALSE(captured.text.checked);
}

TEST(SummaryTest, SaysWhatTheScenarioDoes) {
    const auto strings = test::FakeStrings();
    EXPECT_EQ(BuildSummary({.trigger = 1, .operations = {3, 0, 1, 2}, .restart = true, .option = 7}, strings),
              L"Trigger Event:\r\n\tPop-up window\r\n"
              L"Recovery Operations:\r\n"
              L"\tKeyboard or mouse operation\r\n\tKeyboard or mouse operation\r\n\tFunction call\r\n"
              L"\tClose process\r\n\tRestart Microsoft Windows\r\n"
              L"Post-Recovery Test Run Options:\r\n\tRestart current test run");
    EXPECT_EQ(BuildSummary({.trigger = {}, .operations = {}, .restart = false, .option = 1}, strings),
              L"Trigger Event:\r\n\t\r\nRecovery Operations:\r\n"
              L"Post-Recovery Test Run Options:\r\n\tRepeat current step and continue");
    EXPECT_FALSE(BuildSummary({.trigger = 4, .operations = {}, .restart = false, .option = 1}, strings));
    EXPECT_FALSE(BuildSummary({.trigger = 0, .operations = {2, -1}, .restart = false, .option = 1}, strings));
    EXPECT_FALSE(BuildSummary({.trigger = 0, .operations = {2}, .restart = true, .option = 9}, strings));
}

TEST(ScenarioNameTest, AnyTextIsANameAndItsOwnNameNeedsNoCheck) {
    EXPECT_FALSE(IsScenarioName(L""));
    EXPECT_TRUE(IsScenarioName(L" "));
    EXPECT_FALSE(NeedsCheck(L"\u00DCBUNG", L"\u00FCbung"));
    EXPECT_TRUE(NeedsCheck(L"Name ", L"Name"));
    EXPECT_TRUE(NeedsCheck(L"Name", L""));
}

TEST(ClickChoiceTest, EachChoiceEnablesItsOwnFields) {
    struct {
        ClickChoice choice;
        bool hasLabels, labelList, hand, hotKey, next;
    } const rows[] = {
        {ClickChoice::Enter, true, false, false, false, true},
        {ClickChoice::Escape, false, false, false, false, true},
        {ClickChoice::ButtonLabel, false, false, true, false, false},
        {ClickChoice::ButtonLabel, true, true, true, false, true},
        {ClickChoice::Keys, true, false, false, true, true},
    };
    for (const auto& row : rows) {
        const ClickControls controls = ControlsFor(row.choice, row.hasLabels);
        EXPECT_EQ(controls.labelList, row.labelList);
        EXPECT_EQ(controls.pointingHand, row.hand);
        EXPECT_EQ(controls.hotKey, row.hotKey);
        EXPECT_EQ(controls.canAdvance, row.next);
    }
    EXPECT_EQ(ButtonLabels({L"&OK", L"", L"Save && &Close", L"&", L"Cancel"}),
              (std::vector<std::wstring>{L"OK", L"Save & Close", L"Cancel"}));
}

}  // namespace
}  // namespace recoveryui::wizard

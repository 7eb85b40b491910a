// What the wizard's pages decide, without a window.
#include <gtest/gtest.h>

#include <string>

#include "harness/FakeStrings.h"
#include "wizard/ClickChoice.h"
#include "wizard/FunctionText.h"
#include "wizard/Summary.h"

namespace recoveryui::wizard {
namespace {

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

TEST(FunctionTextTest, TheTriggerDecidesThePrototype) {
    const std::pair<std::int32_t, const wchar_t*> rows[] = {{1, L"(Object)"},
                                                            {1, L"(Object)"},
                                                            {0, L"(Object, Method, Arguments, retVal)"},
                                                            {2, L"(ProcessName, ProcessID)"}};
    for (int kind = 0; kind < 4; ++kind) {
        const auto prototype = PrototypeFor(kind);
        ASSERT_TRUE(prototype) << kind;
        EXPECT_EQ(prototype->mode, rows[kind].first) << kind;
        EXPECT_EQ(prototype->head, L"Function RecoveryFunction1" + std::wstring(rows[kind].second)) << kind;
        EXPECT_EQ(FunctionTemplate(*prototype), prototype->head + L"\r\n\r\nEnd Function\r\n");
    }
    for (const int none : {-1, 4}) EXPECT_FALSE(PrototypeFor(none));
}

TEST(FunctionTextTest, TheNameInTheTextFollowsTheNameTyped) {
    struct {
        std::wstring text, name, renamed;
    } const rows[] = {
        {L"Function A(x)\r\nB (1)\r\nEnd Function", L"Fix", L"Function Fix(x)\r\nB (1)\r\nEnd Function"},
        {L"  fUNCTION  A (x, y)", L"Fix", L"Function Fix(x, y)"},
        {L"Function (x)", L"Fix", L"Function Fix(x)"},
        {L"Function A(x)", L"", L"Function (x)"},
        {L"Function A(x)", L" Fix It ", L"Function  Fix It (x)"},
        {L"Function A(", L"Fix", L"Function Fix("},
        {L"Function A", L"Fix", L"Function A"},
        {L"Function", L"Fix", L"Function"},
        {L"function(x)", L"Fix", L"function(x)"},
        {L"Function\tA(x)", L"Fix", L"Function\tA(x)"},
        {L"Public Function A(x)", L"Fix", L"Public Function A(x)"},
        {L"", L"Fix", L""},
    };
    for (const auto& row : rows) EXPECT_EQ(RenameFunction(row.text, row.name), row.renamed);
}

}  // namespace
}  // namespace recoveryui::wizard

// What the wizard's pages decide, without a window.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "harness/FakeStrings.h"
#include "resources/ids.h"
#include "wizard/ClickChoice.h"
#include "wizard/FunctionControls.h"
#include "wizard/FunctionName.h"
#include "wizard/FunctionText.h"
#include "wizard/NewFunctions.h"
#include "wizard/PageFlow.h"
#include "wizard/PopupConditions.h"
#include "wizard/ScenarioName.h"
#include "wizard/Summary.h"
#include "wizard/TriggerChoice.h"
#include "wizard/WizardButtons.h"

namespace recoveryui::wizard {
namespace {

using enum model::TriggerKind;

TEST(PageFlowTest, EveryTriggerLeadsThroughItsPagesToTheListAndBack) {
    struct {
        model::TriggerKind kind;
        std::vector<int> pages;
    } const rows[] = {
        {PopUp, {IDD_POPUP}},
        {ObjectState, {IDD_SELECT_OBJECT, IDD_OBJECT_PROPS}},
        {Error, {IDD_SELECT_ERROR}},
        {Crash, {IDD_CRASH}},
    };
    for (const auto& row : rows) {
        int page = FirstTriggerPage(row.kind);
        for (const int expected : row.pages) {
            EXPECT_EQ(page, expected);
            page = PageOf(page).next;
        }
        EXPECT_EQ(page, IDD_OPERATION_LIST);
        page = LastTriggerPage(row.kind);
        for (auto expected = row.pages.rbegin(); expected != row.pages.rend(); ++expected) {
            EXPECT_EQ(page, *expected);
            page = PageOf(page).previous;
        }
        EXPECT_EQ(page, IDD_SELECT_TRIGGER);
    }
}

TEST(PageFlowTest, TheListLoopsThroughOperationsAndLeavesForTheFinish) {
    EXPECT_EQ(PageAfterOperationList(true, true), IDD_SELECT_OPERATION);
    EXPECT_EQ(PageAfterOperationList(true, false), IDD_SELECT_OPERATION);
    EXPECT_EQ(PageAfterOperationList(false, true), IDD_SELECT_OPERATION);
    const int ways[] = {IDD_OPERATION_CLICK, IDD_CLOSE_PROCESSES, IDD_OPERATION_FUNC};
    for (int choice = 0; choice < 3; ++choice) {
        const int page = PageAfterOperationChoice(static_cast<OperationChoice>(choice));
        EXPECT_EQ(page, ways[choice]);
        EXPECT_EQ(PageOf(page).previous, IDD_SELECT_OPERATION);
        EXPECT_EQ(PageOf(page).next, IDD_OPERATION_LIST);
    }
    EXPECT_EQ(PageAfterOperationChoice(OperationChoice::RestartWindows), IDD_OPERATION_LIST);

    int page = PageAfterOperationList(false, false);
    for (const int expected : {IDD_TEST_FLOW, IDD_SCEN_DESCRIPTION, IDD_SUMMARY, kNoPage}) {
        EXPECT_EQ(page, expected);
        if (page != kNoPage) page = PageOf(page).next;
    }
}

TEST(PageFlowTest, FifteenPagesEachWithItsPictureAndTopic) {
    const int bitmaps[] = {162, 163, 163, 163, 163, 163, 163, 164, 164, 164, 164, 164, 165, 166, 167};
    ASSERT_EQ(Pages().size(), std::size(bitmaps));
    std::set<std::wstring> topics;
    std::set<int> templates;
    for (std::size_t i = 0; i < std::size(bitmaps); ++i) {
        const Page& page = Pages()[i];
        EXPECT_EQ(page.bitmapId, bitmaps[i]);
        EXPECT_EQ(page.position, i == 0 ? Position::First : i == 14 ? Position::Last : Position::Middle);
        topics.insert(page.helpTopic);
        templates.insert(page.templateId);
    }
    EXPECT_EQ(topics.size() + templates.size(), 2 * std::size(bitmaps)) << "no two pages share one";
    EXPECT_THROW(PageOf(kNoPage), std::invalid_argument);
}

TEST(WizardButtonsTest, PositionAndReadinessDecideTheButtons) {
    EXPECT_EQ(WizardButtons(Position::First, true), 0x0Au);
    EXPECT_EQ(WizardButtons(Position::First, false), 0x08u);
    EXPECT_EQ(WizardButtons(Position::Middle, true), 0x0Bu);
    EXPECT_EQ(WizardButtons(Position::Middle, false), 0x09u);
    EXPECT_EQ(WizardButtons(Position::Last, true), 0x05u);
    EXPECT_EQ(WizardButtons(Position::Last, false), 0x09u);
    EXPECT_FALSE(WizardButtons(static_cast<Position>(3), true));
}

TEST(TriggerChoiceTest, TheFirstTwoRadioButtonsStandTheOtherWayRoundThanTheirKinds) {
    const model::TriggerKind kinds[] = {PopUp, ObjectState, Error, Crash};
    for (int radio = 0; radio < 4; ++radio) {
        EXPECT_EQ(TriggerKindAt(radio), kinds[radio]);
        EXPECT_EQ(RadioOfTriggerKind(static_cast<std::int32_t>(kinds[radio])), radio);
    }
    EXPECT_FALSE(TriggerKindAt(kNoRadio));
    EXPECT_FALSE(TriggerKindAt(4));
    EXPECT_EQ(InitialTriggerRadio(false, std::nullopt), 0);
    EXPECT_EQ(InitialTriggerRadio(true, 0), 1);
    EXPECT_EQ(InitialTriggerRadio(true, 4), kNoRadio);
    EXPECT_EQ(InitialTriggerRadio(true, std::nullopt), kNoRadio);
}

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

TEST(FunctionTextTest, TheTriggerDecidesThePrototype) {
    struct {
        std::int32_t kind, mode;
        std::wstring head;
    } const rows[] = {
        {0, 1, L"Function RecoveryFunction1(Object)"},
        {1, 1, L"Function RecoveryFunction1(Object)"},
        {2, 0, L"Function RecoveryFunction1(Object, Method, Arguments, retVal)"},
        {3, 2, L"Function RecoveryFunction1(ProcessName, ProcessID)"},
    };
    for (const auto& row : rows) {
        const auto prototype = PrototypeFor(row.kind);
        ASSERT_TRUE(prototype) << row.kind;
        EXPECT_EQ(prototype->mode, row.mode);
        EXPECT_EQ(prototype->head, row.head);
        EXPECT_EQ(FunctionTemplate(*prototype), row.head + L"\r\n\r\nEnd Function\r\n");
    }
    EXPECT_FALSE(PrototypeFor(-1));
    EXPECT_FALSE(PrototypeFor(4));
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
        {L"Sub A(x)", L"Fix", L"Sub A(x)"},
        {L"   ", L"Fix", L"   "},
        {L"", L"Fix", L""},
    };
    for (const auto& row : rows) EXPECT_EQ(RenameFunction(row.text, row.name), row.renamed);
}

TEST(NewFunctionsTest, KeepOneFunctionPerLibraryAndNameInTheOrderOfDefinition) {
    NewFunctionList list;
    EXPECT_TRUE(list.Add({L"lib.vbs", L"C:\\t\\lib.vbs", L"Beta", L"b"}));
    EXPECT_TRUE(list.Add({L"lib.vbs", L"C:\\t\\lib.vbs", L"Alpha", L"a"}));
    EXPECT_TRUE(list.Add({L"other.vbs", L"C:\\t\\other.vbs", L"Beta", L"o"}));
    EXPECT_FALSE(list.Add({L"C:\\T\\LIB.vbs", L"C:\\T\\LIB.vbs", L"BETA", L"again"}));
    EXPECT_EQ(list.NamesIn(L"c:\\t\\Lib.vbs"), (std::vector<std::wstring>{L"Beta", L"Alpha"}));
    ASSERT_NE(list.Find(L"c:\\t\\lib.vbs", L"beta"), nullptr);
    EXPECT_EQ(list.Find(L"c:\\t\\lib.vbs", L"beta")->text, L"b");
    EXPECT_EQ(list.Find(L"lib.vbs", L"Beta"), nullptr);  // the typed form alone names no library

    EXPECT_TRUE(list.Drop(L"C:\\t\\LIB.VBS", L"beta"));
    EXPECT_FALSE(list.Drop(L"C:\\t\\lib.vbs", L"Beta"));
    ASSERT_EQ(list.All().size(), 2U);
    EXPECT_EQ(list.All()[0].name, L"Alpha");
    EXPECT_EQ(list.All()[1].typedPath, L"other.vbs");
}

TEST(FunctionNameTest, ANameIsRefusedWhenItIsNoNameOrTaken) {
    using enum FunctionNameVerdict;
    NewFunctionList pending;
    pending.Add({L"lib.vbs", L"C:\\lib.vbs", L"Waiting", L"w"});
    const std::vector<std::wstring> library = {L"RecoveryFunction1"};
    struct {
        std::wstring name, path;
        FunctionNameVerdict verdict;
    } const rows[] = {
        {L"Fix", L"C:\\lib.vbs", Accepted},
        {L"Fix\tIt", L"C:\\lib.vbs", Accepted},
        {L"", L"C:\\lib.vbs", Empty},
        {L"Fix Dialog", L"C:\\lib.vbs", ContainsBlank},
        {L"recoveryfunction1", L"C:\\lib.vbs", InLibrary},
        {L"WAITING", L"c:\\LIB.vbs", Pending},
        {L"Waiting", L"C:\\other.vbs", Accepted},
    };
    for (const auto& row : rows)
        EXPECT_EQ(JudgeFunctionName(row.name, library, pending, row.path), row.verdict);
}

TEST(FunctionControlsTest, TheModeAndTheLibraryDecideWhatCanBeUsed) {
    using enum FunctionMode;
    struct {
        FunctionPageState state;
        FunctionControls controls;
    } const rows[] = {
        {{.mode = Define, .newName = L"F", .newText = L"t"}, {}},
        {{.libraryLoaded = true, .hasFunctions = true, .functionSelected = true},
         {true, true, true, true, false, true}},
        {{.libraryLoaded = true, .hasFunctions = true}, {true, true, true, true, false, false}},
        {{.libraryLoaded = true, .hasFunctions = true, .mode = Define, .newName = L"F", .newText = L"t"},
         {true, true, false, true, true, true}},
        {{.libraryLoaded = true, .mode = Define, .newName = L"", .newText = L"t"},
         {false, true, false, true, true, false}},
        {{.libraryLoaded = true, .mode = Define, .newName = L"F", .newText = L""},
         {false, true, false, true, true, false}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << "case " << &row - rows);
        EXPECT_EQ(ControlsFor(row.state), row.controls);
    }
    EXPECT_EQ(ModeAfterLoading(true), Select);
    EXPECT_EQ(ModeAfterLoading(false), Define);
}

}  // namespace
}  // namespace recoveryui::wizard

// What a scenario is made of, without an object.
#include <gtest/gtest.h>

#include "harness/FakeStrings.h"
#include "model/KeyNames.h"
#include "model/KeySequence.h"
#include "model/Kinds.h"
#include "model/ObjectHierarchy.h"
#include "model/OperationOrder.h"
#include "model/OperationRows.h"
#include "model/PostRecovery.h"
#include "model/Words.h"
#include "resources/ids.h"

namespace recoveryui::model {
namespace {

TEST(KindsTest, EveryKindHasItsWordAndOtherNumbersMeanNothing) {
    const int triggers[] = {IDS_TRIGGER_OBJECT_STATE, IDS_TRIGGER_POPUP, IDS_TRIGGER_ERROR,
                            IDS_TRIGGER_CRASH};
    const int summary[] = {IDS_OPERATION_KEYBOARD_OR_MOUSE, IDS_OPERATION_FUNCTION,
                           IDS_OPERATION_CLOSE_PROCESS, IDS_OPERATION_KEYBOARD_OR_MOUSE};
    const int listed[] = {IDS_LIST_KEYBOARD_CLICK, IDS_OPERATION_FUNCTION, IDS_OPERATION_CLOSE_PROCESS,
                          IDS_LIST_KEYBOARD_CLICK};
    for (int kind = 0; kind < 4; ++kind) {
        EXPECT_EQ(TriggerWord(TriggerKindFrom(kind).value()), triggers[kind]);
        EXPECT_EQ(OperationWord(OperationKindFrom(kind).value()), summary[kind]);
        EXPECT_EQ(OperationListWord(OperationKindFrom(kind).value()), listed[kind]);
    }
    for (const std::int32_t kind : {-1, 4, INT32_MIN, INT32_MAX}) {
        EXPECT_FALSE(TriggerKindFrom(kind)) << kind;
        EXPECT_FALSE(OperationKindFrom(kind)) << kind;
    }
}

TEST(KindsTest, SevenAndEightIncludeARestartUnderTheWordsOfFiveAndSix) {
    const int words[] = {IDS_OPTION_REPEAT_STEP,    IDS_OPTION_NEXT_STEP,   IDS_OPTION_NEXT_ACTION,
                         IDS_OPTION_NEXT_ITERATION, IDS_OPTION_RESTART_RUN, IDS_OPTION_STOP_RUN,
                         IDS_OPTION_RESTART_RUN,    IDS_OPTION_STOP_RUN};
    for (int option = 1; option <= 8; ++option) {
        EXPECT_EQ(OptionWord(PostRecoveryOptionFrom(option).value()), words[option - 1]);
        EXPECT_EQ(IncludesRestart(PostRecoveryOptionFrom(option).value()), option >= 7);
    }
    EXPECT_FALSE(PostRecoveryOptionFrom(0));
    EXPECT_FALSE(PostRecoveryOptionFrom(9));
}

using Sequence = std::vector<std::uint32_t>;

wchar_t CharacterOf(std::uint16_t key) {
    return key >= 'A' && key <= 'Z' ? static_cast<wchar_t>(key)
           : key == 0x20            ? L' '
           : key == 0x09            ? L'\t'
                                    : L'\0';
}

TEST(KeysTest, ASequenceHasItsStoredFormAndReadsAsTheKeysPressed) {
    struct {
        Sequence sequence, stored;
        std::wstring names;
    } const rows[] = {
        {Press(kKeyEnter), {0x0001000D, 0x0003000D}, L"Enter"},
        {Press(kKeyEscape), {0x0001001B, 0x0003001B}, L"Esc"},
        {PressCombination('D', kWithControl | kWithAlt),
         {0x00010011, 0x00010012, 0x00010044, 0x00030012, 0x00030011},
         L"Control + Alt + D"},
        {PressCombination(0x71, kWithShift | kWithControl | kWithAlt),  // F2, which has no character
         {0x00010011, 0x00010010, 0x00010012, 0x00010071, 0x00030012, 0x00030011, 0x00030010},
         L"Control + Shift + Alt"},
        {PressCombination('A', kWithControl | 8), {0x00010011, 0x00010041, 0x00030011}, L"Control + A"},
        {PressCombination(0x20, 0), {0x00010020}, L""},
        {PressCombination(0x09, kWithAlt), {0x00010012, 0x00010009, 0x00030012}, L"Alt"},
        {{}, {}, L""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.sequence, row.stored);
        EXPECT_EQ(KeyNames(row.sequence, test::FakeStrings(), CharacterOf), row.names);
    }
}

TEST(KeysTest, OnlyTheReleaseBitOfAnEventHidesAKey) {
    EXPECT_EQ(PressedKeys(Sequence{0x00000041, 0x00010042, 0x00020043, 0x00030044, 0xFFFD0045}),
              (std::vector<std::uint16_t>{0x41, 0x42, 0x45}));
}

TEST(ObjectHierarchyTest, RunsFromTheOutermostParentDownToTheObject) {
    const auto parent = [](int object) {
        return object == 0 ? std::nullopt : std::optional<int>(object - 1);
    };
    EXPECT_EQ(HierarchyOf(3, parent), (std::vector<int>{0, 1, 2, 3}));
    EXPECT_EQ(HierarchyOf(0, parent), std::vector<int>{0});
    EXPECT_EQ(HierarchyOf(static_cast<int>(kDeepestHierarchy) - 1, parent).size(), kDeepestHierarchy);
    EXPECT_TRUE(HierarchyOf(1, [](int object) { return std::optional<int>(object); }).empty());

    EXPECT_EQ(FirstUnidentified(std::vector<std::size_t>{2, 1}), std::nullopt);
    EXPECT_EQ(FirstUnidentified(std::vector<std::size_t>{2, 0, 0}), 1U);
}

using Row = std::optional<std::size_t>;

OperationDescription Button(std::optional<std::wstring> label) {
    return {.kind = 0, .label = std::move(label)};
}

std::wstring Written(const std::vector<OperationRow>& rows) {
    std::wstring text;
    for (const OperationRow& row : rows) text += row.type + L"|" + row.details + L"\n";
    return text;
}

TEST(OperationListTest, ListsEveryKindWithItsDetailsAndTheRestartLast) {
    const std::vector<OperationDescription> operations = {
        Button(L"50%s"),
        Button(std::nullopt),
        {.kind = 1, .library = L"C:\\lib\\%s.vbs", .function = L"Fix"},
        {.kind = 2, .processes = {L"a.exe", L"b.exe"}},
        {.kind = 2},
        {.kind = 3, .keyNames = L"Control + A"},
    };
    const std::wstring listed =
        L"Keyboard click|Click button with label: 50%s \n"
        L"Keyboard click|\n"
        L"Function call|C:\\lib\\%s.vbs::Fix\n"
        L"Close process|a.exe;b.exe\n"
        L"Close process|\n"
        L"Keyboard click|Control + A\n";
    EXPECT_EQ(Written(OperationRows(operations, false, test::FakeStrings())), listed);
    EXPECT_EQ(Written(OperationRows(operations, true, test::FakeStrings())),
              listed + L"Restart Microsoft Windows|\n");
    EXPECT_EQ(Written(OperationRows({}, true, test::FakeStrings())), L"Restart Microsoft Windows|\n");
}

TEST(OperationListTest, AnUnknownKindEndsTheListBeforeTheRestart) {
    const std::vector<OperationDescription> operations = {
        {.kind = 3, .keyNames = L"A"}, {.kind = 4}, {.kind = 2}};
    EXPECT_EQ(Written(OperationRows(operations, true, test::FakeStrings())), L"Keyboard click|A\n");
}

TEST(OperationListTest, TheRestartStaysLastWhateverIsMoved) {
    struct {
        OperationList list;
        std::size_t selected;
        Row up, down;
        Deletion deletion;
    } const rows[] = {
        {{0, false}, 0, {}, {}, Deletion::None},      {{0, true}, 0, {}, {}, Deletion::Restart},
        {{1, false}, 0, {}, {}, Deletion::Operation}, {{3, false}, 0, {}, 1, Deletion::Operation},
        {{3, false}, 2, 1, {}, Deletion::Operation},  {{3, true}, 1, 0, 2, Deletion::Operation},
        {{3, true}, 2, 1, {}, Deletion::Operation},   {{3, true}, 3, {}, {}, Deletion::Restart},
        {{3, false}, 3, {}, {}, Deletion::None},      {{3, true}, SIZE_MAX, {}, {}, Deletion::None},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.list.Rows() << " rows, selected " << row.selected);
        EXPECT_EQ(SwapUp(row.list, row.selected), row.up);
        EXPECT_EQ(SwapDown(row.list, row.selected), row.down);
        EXPECT_EQ(DeletionOf(row.list, row.selected), row.deletion);
    }
}

int Written(int choice, bool restart) {
    const auto option = OptionOf(choice, restart);
    return option ? static_cast<int>(*option) : 0;
}

TEST(PostRecoveryTest, AChoiceWritesTheOptionThatTheRestartDecides) {
    struct {
        int choice, plain, withRestart;
    } const rows[] = {{-1, 0, 0}, {0, 1, 0}, {1, 2, 0}, {2, 3, 0},
                      {3, 4, 0},  {4, 5, 7}, {5, 6, 8}, {6, 0, 0}};
    for (const auto& row : rows) {
        EXPECT_EQ(Written(row.choice, false), row.plain) << row.choice;
        EXPECT_EQ(Written(row.choice, true), row.withRestart) << row.choice;
        EXPECT_EQ(IsOffered(row.choice, true), row.withRestart != 0) << row.choice;
    }
    EXPECT_EQ(CaptionOf(0), IDS_OPTION_REPEAT_STEP);
    EXPECT_EQ(CaptionOf(5), IDS_OPTION_STOP_RUN);
}

TEST(PostRecoveryTest, AnExistingScenarioShowsItsOptionAndANewOneTheFirstOffered) {
    const int choices[] = {kNoChoice, 0, 1, 2, 3, 4, 5, 4, 5, kNoChoice};  // by option 0 to 9
    for (int option = 0; option <= 9; ++option)
        EXPECT_EQ(InitialChoice(option, false), choices[option]) << option;
    EXPECT_EQ(InitialChoice(2, true), 1);
    EXPECT_EQ(InitialChoice(std::nullopt, false), 0);
    EXPECT_EQ(InitialChoice(std::nullopt, true), 4);
}

TEST(PostRecoveryTest, AHiddenChoiceGivesWayToRestartingTheRun) {
    for (int choice = kNoChoice; choice < kChoiceCount; ++choice) {
        EXPECT_EQ(ChoiceOnActivation(choice, true), choice == 5 ? 5 : 4);
        EXPECT_EQ(ChoiceOnActivation(choice, false), choice);
    }
}

}  // namespace
}  // namespace recoveryui::model

// What a scenario is made of, without an object.
#include <gtest/gtest.h>

#include "harness/FakeStrings.h"
#include "model/KeyNames.h"
#include "model/KeySequence.h"
#include "model/Kinds.h"
#include "model/ObjectHierarchy.h"
#include "model/OperationRows.h"
#include "model/PostRecovery.h"
#include "model/Words.h"
#include "resources/ids.h"

namespace recoveryui::model {
namespace {

TEST(KindsTest, EveryKindHasItsWordAndOtherNumbersMeanNothing) {
    const int triggers[] = {IDS_TRIGGER_OBJECT_STATE, IDS_TRIGGER_POPUP, IDS_TRIGGER_ERROR,
                            IDS_TRIGGER_CRASH};
    const int options[] = {IDS_OPTION_REPEAT_STEP,    IDS_OPTION_NEXT_STEP,   IDS_OPTION_NEXT_ACTION,
                           IDS_OPTION_NEXT_ITERATION, IDS_OPTION_RESTART_RUN, IDS_OPTION_STOP_RUN,
                           IDS_OPTION_RESTART_RUN,    IDS_OPTION_STOP_RUN};
    for (int kind = 0; kind < 4; ++kind)
        EXPECT_EQ(TriggerWord(TriggerKindFrom(kind).value()), triggers[kind]) << kind;
    for (const std::int32_t kind : {-1, 4, INT32_MIN, INT32_MAX})
        EXPECT_FALSE(TriggerKindFrom(kind) || OperationKindFrom(kind)) << kind;
    for (int option = 1; option <= 8; ++option) {
        EXPECT_EQ(OptionWord(PostRecoveryOptionFrom(option).value()), options[option - 1]) << option;
        EXPECT_EQ(IncludesRestart(PostRecoveryOptionFrom(option).value()), option >= 7) << option;
    }
    for (const int none : {0, 9}) EXPECT_FALSE(PostRecoveryOptionFrom(none)) << none;
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
    EXPECT_EQ(PressedKeys(Sequence{0x00000041, 0x00010042, 0x00020043, 0x00030044, 0xFFFD0045}),
              (std::vector<std::uint16_t>{0x41, 0x42, 0x45}))
        << "only the release bit of an event hides a key";
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
    // An unknown kind ends the list, before the restart.
    const std::vector<OperationDescription> foreign = {
        {.kind = 3, .keyNames = L"A"}, {.kind = 4}, {.kind = 2}};
    EXPECT_EQ(Written(OperationRows(foreign, true, test::FakeStrings())), L"Keyboard click|A\n");
}

TEST(PostRecoveryTest, AChoiceWritesTheOptionThatTheRestartDecides) {
    const int written[][2] = {{1, 0}, {2, 0}, {3, 0}, {4, 0}, {5, 7}, {6, 8}};  // without, with a restart
    for (int choice = -1; choice <= kChoiceCount; ++choice) {
        const bool exists = choice >= 0 && choice < kChoiceCount;
        for (const bool restart : {false, true}) {
            SCOPED_TRACE(testing::Message() << "choice " << choice << ", restart " << restart);
            const auto option = OptionOf(choice, restart);
            EXPECT_EQ(option ? static_cast<int>(*option) : 0, exists ? written[choice][restart] : 0);
            EXPECT_EQ(IsOffered(choice, restart), option.has_value());
            // A hidden choice gives way to restarting the run.
            EXPECT_EQ(ChoiceOnActivation(choice, restart), !restart || choice == 5 ? choice : 4);
        }
    }
    const int choices[] = {kNoChoice, 0, 1, 2, 3, 4, 5, 4, 5, kNoChoice};  // by option 0 to 9
    for (int option = 0; option <= 9; ++option)
        for (const bool restart : {false, true})
            EXPECT_EQ(InitialChoice(option, restart), choices[option]) << option << restart;
    EXPECT_EQ(InitialChoice(std::nullopt, false), 0) << "a new one: the first offered";
    EXPECT_EQ(InitialChoice(std::nullopt, true), 4);
    EXPECT_EQ(CaptionOf(0), IDS_OPTION_REPEAT_STEP);
    EXPECT_EQ(CaptionOf(5), IDS_OPTION_STOP_RUN);
}

}  // namespace
}  // namespace recoveryui::model

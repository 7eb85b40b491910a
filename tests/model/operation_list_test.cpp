#include <gtest/gtest.h>

#include "harness/FakeStrings.h"
#include "model/OperationOrder.h"
#include "model/OperationRows.h"

namespace recoveryui::model {
namespace {

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

}  // namespace
}  // namespace recoveryui::model

#include "process/ProcessNames.h"

#include <gtest/gtest.h>

#include "resources/ids.h"

namespace recoveryui::process {
namespace {

using Names = std::vector<std::wstring>;
using enum EditEnd::Action;

TEST(ProcessNamesTest, AnEditEndsWithANameOrWithTheReasonWhyNot) {
    const Names rows = {L"notepad.exe", L"", L"Calc.exe"};
    struct {
        std::size_t row;
        std::optional<std::wstring> typed;
        EditEnd::Action action;
        std::wstring text;
        int message;
    } const cases[] = {
        {1, std::nullopt, Delete, L"", 0},
        {0, std::nullopt, Keep, L"", 0},
        {0, L"notepad.exe", Keep, L"", 0},
        {1, L"", Reopen, L"", IDS_PROCESS_REQUIRED},
        {0, L"   ", Reopen, L"", IDS_PROCESS_REQUIRED},
        {1, L"  a b.exe ", Store, L"a b.exe", 0},
        {1, L"\t", Store, L"\t", 0},
        {1, L" a?.exe", Reopen, L"a?.exe", IDS_PROCESS_ILLEGAL},
        {1, L"NOTEPAD.EXE", Reopen, L"NOTEPAD.EXE", IDS_PROCESS_EXISTS},
        {2, L" Notepad.exe ", Reopen, L"Notepad.exe", IDS_PROCESS_EXISTS},
        {0, L"NotePad.exe", Store, L"NotePad.exe", 0},
        {0, L"notepad.exe ", Store, L"notepad.exe", 0},
    };
    for (const auto& each : cases) {
        const EditEnd end = EndEdit(rows, each.row, each.typed);
        SCOPED_TRACE(testing::Message() << "case " << &each - cases);
        EXPECT_EQ(end.action, each.action);
        EXPECT_EQ(end.text, each.text);
        EXPECT_EQ(end.messageId, each.message);
    }
    for (const wchar_t illegal : std::wstring(L"\\/:*?\"<>|")) {
        EXPECT_EQ(EndEdit(rows, 1, std::wstring(L"x") + illegal).messageId, IDS_PROCESS_ILLEGAL);
    }
    EXPECT_EQ(EndEdit({L"a"}, 0, L"B").action, Store);
}

TEST(ProcessNamesTest, AddingRunningProcessesTakesEachNameOnce) {
    EXPECT_EQ(NamesToAppend({L"a.exe"}, {L"b.exe", L"A.EXE", L"B.exe", L"c.exe"}),
              (Names{L"b.exe", L"c.exe"}));
    EXPECT_EQ(NamesToAppend({}, {}), Names{});
}

}  // namespace
}  // namespace recoveryui::process

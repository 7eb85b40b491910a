// What the host's window decides without a window.
#include <gtest/gtest.h>

#include "app/JournalRows.h"

namespace tovarin {
namespace {

JournalRow Row(const std::wstring& operation, const std::wstring& result = L"S_OK") {
    return {{L"12:00:00.000", L"TestOptions", operation, L"\"a\nb\"", result}};
}

TEST(JournalRowsTest, AFullJournalDropsItsOldestCallsInBlocks) {
    JournalRows rows(20);
    std::vector<JournalRow> calls;
    for (int call = 0; call < 20; ++call) calls.push_back(Row(std::to_wstring(call)));
    EXPECT_EQ(rows.Add(calls), 0u);
    EXPECT_EQ(rows.Add({Row(L"20")}), 3u);
    EXPECT_EQ(rows.Count(), 18u);
    EXPECT_EQ(rows.At(0).cells[2], L"3");
    EXPECT_EQ(rows.Add({Row(L"21"), Row(L"22")}), 0u);
    EXPECT_EQ(rows.At(19).cells[2], L"22");
}

TEST(JournalRowsTest, ChosenCallsAreCopiedAsLinesOfCells) {
    JournalRows rows;
    rows.Add({Row(L"GetItem"), Row(L"SetItem"), Row(L"GetItem", L"E_FAIL")});
    EXPECT_EQ(rows.TextOf({0, 2}),
              L"12:00:00.000\tTestOptions\tGetItem\t\"a b\"\tS_OK\r\n"
              L"12:00:00.000\tTestOptions\tGetItem\t\"a b\"\tE_FAIL\r\n");
}

TEST(MenuTextTest, ThePromptFollowsTheFirstSemicolon) {
    struct {
        const wchar_t *text, *caption, *prompt;
    } const kTexts[] = {
        {L"&Manager...;Shows it; and more", L"&Manager...", L"Shows it; and more"},
        {L"&Manager...", L"&Manager...", L""},
        {L";prompt", L"", L"prompt"},
        {L"", L"", L""},
    };
    for (const auto& [text, caption, prompt] : kTexts) {
        EXPECT_EQ(MenuText(text).caption, caption);
        EXPECT_EQ(MenuText(text).prompt, prompt);
    }
}

}  // namespace
}  // namespace tovarin

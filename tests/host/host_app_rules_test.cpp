// What the host's window decides without a window.
#include <gtest/gtest.h>

#include "app/JournalRows.h"

namespace tovarin {
namespace {

JournalRow Row(const std::wstring& operation) {
    return {{L"12:00:00.000", L"TestOptions", operation, L"\"a\nb\"", L"S_OK"}};
}

TEST(JournalRowsTest, AFullJournalDropsItsOldestCallsInBlocksAndTheLatestAreCopiedAsLines) {
    JournalRows rows(20);
    std::vector<JournalRow> calls;
    for (int call = 0; call < 20; ++call) calls.push_back(Row(std::to_wstring(call)));
    EXPECT_EQ(rows.Add(calls), 0u);
    EXPECT_EQ(rows.Add({Row(L"20")}), 3u);
    EXPECT_EQ(rows.Count(), 18u);
    EXPECT_EQ(rows.At(0).cells[2], L"3");
    EXPECT_EQ(rows.Add({Row(L"21"), Row(L"22")}), 0u);
    EXPECT_EQ(rows.TextOf({18, 19}),
              L"12:00:00.000\tTestOptions\t21\t\"a b\"\tS_OK\r\n"
              L"12:00:00.000\tTestOptions\t22\t\"a b\"\tS_OK\r\n");
}

TEST(MenuTextTest, ThePromptFollowsTheFirstSemicolon) {
    const std::pair<const wchar_t*, std::pair<const wchar_t*, const wchar_t*>> texts[] = {
        {L"&Manager...;Shows it; and more", {L"&Manager...", L"Shows it; and more"}},
        {L"&Manager...", {L"&Manager...", L""}},
        {L";prompt", {L"", L"prompt"}},
    };
    for (const auto& [text, parts] : texts) {
        EXPECT_EQ(MenuText(text).caption, parts.first);
        EXPECT_EQ(MenuText(text).prompt, parts.second);
    }
}

}  // namespace
}  // namespace tovarin

#include <gtest/gtest.h>

#include "resources/ids.h"
#include "support/ReplayErrors.h"
#include "support/RepositoryPath.h"

namespace recoveryui::support {
namespace {

TEST(RepositoryPathTest, OnlyOnePrefixNeedsTheBlankBehindItsBracket) {
    struct {
        std::wstring path;
        bool repository;
    } const rows[] = {
        {L"[Ondrafel] Subject\\a.vbs", true},
        {L"[Ondrafel]Subject", true},
        {L" \t\r\n[ONDRAFEL]", true},
        {L"[Brevalon] Resources\\a.vbs", true},
        {L"[Brevalon]Resources\\a.vbs", false},
        {L"\v[brevalon] ", true},
        {L"[Brevalon]\tResources", false},
        {L"C:\\[Ondrafel] \\a.vbs", false},
        {L"", false},
        {L"[Ondrafel", false},
    };
    for (const auto& row : rows) EXPECT_EQ(IsRepositoryPath(row.path), row.repository) << row.path.size();
}

TEST(ReplayErrorsTest, TheListIsFilledInItsOrderAndEveryErrorHasItsTexts) {
    struct {
        std::uint32_t code;
        int label, description;
    } const rows[] = {
        {0, 109, 110},
        {0x80040202, 26, 89},
        {0x80040203, IDS_REPLAY_OBJECT_NOT_UNIQUE, 87},
        {0x80040208, IDS_REPLAY_OBJECT_DISABLED, 88},
        {0x80040209, IDS_REPLAY_ITEM_NOT_FOUND, 86},
        {0x8004020A, IDS_REPLAY_ITEM_NOT_UNIQUE, 85},
        {0x80040205, IDS_REPLAY_OBJECT_NOT_VISIBLE, 90},
    };
    ASSERT_EQ(ReplayErrors().size(), std::size(rows));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        const auto code = static_cast<std::int32_t>(rows[i].code);
        EXPECT_EQ(ReplayErrors()[i].code, code);
        ASSERT_NE(FindReplayError(code), nullptr);
        EXPECT_EQ(FindReplayError(code)->labelId, rows[i].label);
        EXPECT_EQ(FindReplayError(code)->descriptionId, rows[i].description);
    }
    EXPECT_EQ(FindReplayError(static_cast<std::int32_t>(0x80040204)), nullptr);
}

}  // namespace
}  // namespace recoveryui::support

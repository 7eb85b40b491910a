#include "settings/PropertiesPages.h"

#include <gtest/gtest.h>

#include "resources/ids.h"

namespace recoveryui::settings {
namespace {

using Page = SheetPage;
using Pages = std::vector<SheetPage>;

TEST(PropertiesSheet, ShowsThePagesThatItCouldRead) {
    const struct {
        std::optional<std::int32_t> kind;
        bool operationsRead;
        Pages pages;
    } cases[] = {
        {0, true, {Page::General, Page::ObjectState, Page::Actions, Page::PostRecovery}},
        {1, true, {Page::General, Page::Popup, Page::Actions, Page::PostRecovery}},
        {2, true, {Page::General, Page::Error, Page::Actions, Page::PostRecovery}},
        {3, false, {Page::General, Page::Crash}},
        {4, true, {Page::General, Page::Actions, Page::PostRecovery}},
        {std::nullopt, false, {Page::General}},
    };
    for (const auto& c : cases) EXPECT_EQ(PagesOf(c.kind, c.operationsRead), c.pages);
}

TEST(PropertiesSheet, ExplainsTheErrorsItKnowsAndNoOther) {
    const struct {
        std::uint32_t code;
        int label, description;
    } known[] = {
        {0x80040202, IDS_ERROR_OBJECT_NOT_FOUND, IDS_DESCRIBE_OBJECT_NOT_FOUND},
        {0x80040203, IDS_REPLAY_OBJECT_NOT_UNIQUE, IDS_DESCRIBE_OBJECT_NOT_UNIQUE},
        {0x80040205, IDS_REPLAY_OBJECT_NOT_VISIBLE, IDS_DESCRIBE_OBJECT_NOT_VISIBLE},
        {0x80040208, IDS_REPLAY_OBJECT_DISABLED, IDS_DESCRIBE_OBJECT_DISABLED},
        {0x80040209, IDS_REPLAY_ITEM_NOT_FOUND, IDS_DESCRIBE_ITEM_NOT_FOUND},
        {0x8004020A, IDS_REPLAY_ITEM_NOT_UNIQUE, IDS_DESCRIBE_ITEM_NOT_UNIQUE},
    };
    for (const auto& k : known) {
        const auto* error = ErrorToShow(static_cast<std::int32_t>(k.code));
        ASSERT_NE(error, nullptr) << std::hex << k.code;
        EXPECT_EQ(error->labelId, k.label);
        EXPECT_EQ(error->descriptionId, k.description);
    }
    for (const std::uint32_t code : {0u, 1u, 0x80040201u, 0x80040204u, 0x8004020Bu, 0x80004005u})
        EXPECT_EQ(ErrorToShow(static_cast<std::int32_t>(code)), nullptr) << std::hex << code;
}

TEST(PropertiesSheet, SaysWhatHappensAfterRecovery) {
    const struct {
        int option, text;
        bool restart;
    } cases[] = {
        {0, 0, false},
        {1, IDS_OPTION_REPEAT_STEP, false},
        {2, IDS_OPTION_NEXT_STEP, false},
        {3, IDS_OPTION_NEXT_ACTION, false},
        {4, IDS_OPTION_NEXT_ITERATION, false},
        {5, IDS_OPTION_RESTART_RUN, false},
        {6, IDS_OPTION_STOP_RUN, false},
        {7, IDS_OPTION_RESTART_RUN, true},
        {8, IDS_OPTION_STOP_RUN, true},
        {9, 0, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(TextOfOption(c.option), c.text) << c.option;
        EXPECT_EQ(ShowsRestart(c.option), c.restart) << c.option;
    }
}

}  // namespace
}  // namespace recoveryui::settings

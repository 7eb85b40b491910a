#include "model/PostRecovery.h"

#include <gtest/gtest.h>

#include "resources/ids.h"

namespace recoveryui::model {
namespace {

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

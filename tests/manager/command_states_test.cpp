#include "manager/CommandStates.h"

#include <gtest/gtest.h>

#include "manager/SaveQuestion.h"

namespace recoveryui::manager {
namespace {

// One letter per command that is enabled, in the order of Command.
std::string Enabled(const ManagerState& state) {
    const std::string letters = "NOSAnEPCVDX";
    std::string enabled;
    for (int i = 0; i < kCommands; ++i)
        if (IsEnabled(static_cast<Command>(i), state)) enabled += letters[i];
    return enabled;
}

TEST(CommandStates, FollowFileSelectionAndClipboard) {
    const struct {
        const char* why;
        ManagerState state;
        const char* enabled;
    } cases[] = {
        {"just opened", {}, "NOSAnX"},
        {"a row selected", {.rowSelected = true}, "NOSAnEPCDX"},
        {"something copied, no row", {.clipboardFull = true}, "NOSAnVX"},
        {"a row and a copy", {.rowSelected = true, .clipboardFull = true}, "NOSAnEPCVDX"},
        {"a saved file", {.untitled = false}, "NOAnX"},
        {"a changed file", {.untitled = false, .dirty = true}, "NOSAnX"},
        {"read-only", {.readOnly = true, .clipboardFull = true, .untitled = false}, "NOAX"},
        {"read-only, a row",
         {.readOnly = true, .rowSelected = true, .clipboardFull = true, .untitled = false},
         "NOAPX"},
        {"no repository", {.hasRepository = false}, "NOnX"},
    };
    for (const auto& c : cases) EXPECT_EQ(Enabled(c.state), c.enabled) << c.why;
}

TEST(Saving, DoesOnlyWhatIsNeeded) {
    EXPECT_EQ(StepOfSave({.hasRepository = false, .dirty = true}), SaveStep::Nothing);
    EXPECT_EQ(StepOfSave({.untitled = true}), SaveStep::AskForPath);
    EXPECT_EQ(StepOfSave({.untitled = false}), SaveStep::Nothing);
    EXPECT_EQ(StepOfSave({.untitled = false, .dirty = true}), SaveStep::Write);
    EXPECT_EQ(StepOfSave({.readOnly = true, .untitled = false, .dirty = true}), SaveStep::Nothing);
}

TEST(Saving, TheQuestionDecidesWhetherTheFileIsLeft) {
    const struct {
        bool dirty;
        SaveAnswer answer;
        bool saves;
        bool leaves;
        const char* calls;
    } cases[] = {
        {false, SaveAnswer::Cancel, false, true, ""},       {true, SaveAnswer::Cancel, true, false, "ask "},
        {true, SaveAnswer::No, false, true, "ask "},        {true, SaveAnswer::Yes, true, true, "ask save "},
        {true, SaveAnswer::Yes, false, false, "ask save "},
    };
    for (const auto& c : cases) {
        std::string calls;
        const auto ask = [&] { return calls += "ask ", c.answer; };
        const auto save = [&] { return calls += "save ", c.saves; };
        EXPECT_EQ(MayLeaveFile(c.dirty, ask, save), c.leaves);
        EXPECT_EQ(calls, c.calls);
    }
}

}  // namespace
}  // namespace recoveryui::manager

// What the Manager decides, without a window.
#include <gtest/gtest.h>

#include "manager/AddedScenarios.h"
#include "manager/StorePlan.h"

namespace recoveryui::manager {
namespace {

TEST(StoringTheWizardsScenario, ARenameInOtherLettersAloneTakesTheOldOneOutFirst) {
    EXPECT_EQ(PlanStore(L"A", L"a"), (StorePlan{.removeOldFirst = true, .replace = true}));
}

using Files = std::vector<AddedScenarios::File>;

TEST(AddedScenarios, FollowTheScenarioUntilItsFileIsSavedAndLeft) {
    AddedScenarios added;
    added.Add(L"popup", true, false);
    added.Add(L"crash", true, true);
    added.Add(L"popup", false, true);  // edited again, the other box checked
    added.Add(L"error", false, false);
    added.Add(L"gone", true, true);
    added.Remove(L"gone");
    added.Rename(L"crash", L"Crash of the browser");
    added.FileSaved(L"C:\\a.trs");
    added.FileSaved(L"C:\\b.trs");
    added.Add(L"discarded", true, true);
    EXPECT_TRUE(added.ForCurrent().empty());
    added.FileLeft();
    EXPECT_EQ(added.ForCurrent(), (Files{{L"C:\\b.trs", {L"popup", L"Crash of the browser"}}}));
    EXPECT_EQ(added.ForDefault(), added.ForCurrent());

    added.Add(L"never saved", true, true);
    added.FileLeft();
    EXPECT_EQ(added.ForCurrent().size(), 1u);

    added.Add(L"second", true, false);
    added.FileSaved(L"C:\\c.trs");
    added.Remove(L"second");  // deleted, and that discarded: the file still holds it
    added.FileLeft();
    ASSERT_EQ(added.ForCurrent().size(), 2u);
    EXPECT_EQ(added.ForCurrent()[1], (AddedScenarios::File{L"C:\\c.trs", {L"second"}}));
    EXPECT_EQ(added.ForDefault().size(), 1u);
}

}  // namespace
}  // namespace recoveryui::manager

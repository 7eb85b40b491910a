#include <gtest/gtest.h>

#include "manager/AddedScenarios.h"
#include "manager/NameSearch.h"

namespace recoveryui::manager {
namespace {

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

TEST(NameSearch, FindsWhatIsTypedFromARowOn) {
    const std::wstring names[] = {L"Popup", L"crash", L"Crashed", L"popup 2"};
    const struct {
        const wchar_t* text;
        int start;
        NameSearch how;
        int row;
    } cases[] = {
        {L"c", 0, {}, 1},
        {L"C", 2, {}, 2},
        {L"c", 3, {}, 1},
        {L"c", 3, {.wrap = false}, -1},
        {L"crashed", 0, {}, 2},
        {L"POPUP", 1, {.prefix = false}, 0},
        {L"pop", 0, {.prefix = false}, -1},
        {L"p", -1, {}, 0},
        {L"p", 99, {}, 0},
        {L"x", 2, {}, -1},
        {L"popup 22", 0, {}, -1},
    };
    for (const auto& c : cases)
        EXPECT_EQ(FindName(names, c.text, c.start, c.how), c.row) << c.text << c.start;
}

}  // namespace
}  // namespace recoveryui::manager

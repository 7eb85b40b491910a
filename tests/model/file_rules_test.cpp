// Names of files, and the lists of those that were used.
#include <gtest/gtest.h>

#include "model/FileNames.h"
#include "model/MruList.h"
#include "model/RecentFiles.h"

namespace recoveryui::model {
namespace {

TEST(FileNames, SavingAddsTheExtensionToAPathWithoutADot) {
    const struct {
        const wchar_t* chosen;
        const wchar_t* saved;
    } cases[] = {
        {L"C:\\data\\scenarios", L"C:\\data\\scenarios.trs"},
        {L"C:\\data.v2\\scenarios", L"C:\\data.v2\\scenarios"},
        {L"C:\\data\\scenarios.", L"C:\\data\\scenarios."},
        {L"C:\\data\\scenarios.json", L"C:\\data\\scenarios.json"},
        {L"[Ondrafel] Subject\\scenarios", L"[Ondrafel] Subject\\scenarios"},
        {L"[Brevalon] Subject\\scenarios", L"[Brevalon] Subject\\scenarios"},
        {L"[Brevalon]Subject\\scenarios", L"[Brevalon]Subject\\scenarios.trs"},
    };
    for (const auto& c : cases) EXPECT_EQ(PathToSave(c.chosen, L".trs"), c.saved) << &c - cases;
    for (const wchar_t* path : {L"", L" ", L"\t \r\n"}) EXPECT_TRUE(IsCancelledPath(path));
    EXPECT_FALSE(IsCancelledPath(L" a "));
}

TEST(FileNames, PartsOfAPath) {
    const struct {
        std::wstring path;
        const wchar_t* name;
        const wchar_t* drive;
    } cases[] = {
        {L"C:\\data\\a.trs", L"a.trs", L"C:"},
        {L"c:/data/a.trs", L"a.trs", L"c:"},
        {L"a.trs", L"a.trs", L""},
        {L"C:\\data\\", L"", L"C:"},
        {L"\\\\server\\share\\a.trs", L"a.trs", L"\\\\server\\share"},
        {L"\\\\server", L"server", L"\\\\server"},
        {L"\\\\?\\D:\\a.trs", L"a.trs", L"D:"},
        {L"1:\\a.trs", L"a.trs", L""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(FileNamePart(c.path), c.name);
        EXPECT_EQ(DrivePart(c.path), c.drive) << testing::PrintToString(c.path);
    }
}

TEST(FileNames, LongPathsGetTheExtendedForm) {
    const std::wstring tail(300, L'x');
    const struct {
        std::wstring path, extended;
    } cases[] = {
        {L"C:\\" + tail, L"\\\\?\\C:\\" + tail},
        {L"C:/d/" + tail, L"\\\\?\\C:\\d\\" + tail},
        {L"\\\\server\\share\\" + tail, L"\\\\?\\UNC\\server\\share\\" + tail},
        {L"\\\\?\\C:\\" + tail, L"\\\\?\\C:\\" + tail},
        {L"\\\\.\\pipe\\" + tail, L"\\\\.\\pipe\\" + tail},
        {tail, tail},
        {L"C:\\" + tail.substr(56), L"C:\\" + tail.substr(56)},
        {L"C:\\" + tail.substr(55), L"\\\\?\\C:\\" + tail.substr(55)},
    };
    for (const auto& c : cases) EXPECT_EQ(ExtendedLengthPath(c.path), c.extended) << &c - cases;
}

TEST(RecentFiles, KeepsFourDifferentFilesTheLatestFirst) {
    const struct {
        std::wstring stored;
        std::vector<std::wstring> opened;
        std::wstring joined;
    } cases[] = {
        {L"", {}, L""},
        {L"a;;b", {}, L"a;b"},
        {L";a;b;a;a;c;d;e", {}, L"a;b;c;d"},
        {L"a;A", {}, L"a;A"},
        {L"a;b;c;d", {L"e"}, L"e;a;b;c"},
        {L"a;b;c;d", {L"c"}, L"c;a;b;d"},
        {L"a;b;c;d", {L"a"}, L"a;b;c;d"},
        {L"a;b;c;d", {L"D", L""}, L"D;a;b;c"},
    };
    for (const auto& c : cases) {
        RecentFiles files(c.stored);
        for (const auto& path : c.opened) files.Add(path);
        EXPECT_EQ(files.Joined(), c.joined) << testing::PrintToString(c.stored);
    }
}

TEST(MruList, AnEntryMovesToItsPlaceAndTheOldestIsDropped) {
    constexpr int kAdd = -2;
    const struct {
        const char* why;
        MruState list;
        int index;
        MruPlan plan;
    } cases[] = {
        {"first of all", {0, 4, -1}, kAdd, {.result = 0, .insertAt = 0}},
        {"a new one in a full list", {4, 4, -1}, kAdd, {.result = 0, .deleteLast = 3, .insertAt = 0}},
        {"already first", {4, 4, 0}, kAdd, {.result = 0}},
        {"the third to the front", {4, 4, 2}, kAdd, {.result = 0, .deleteMatch = 2, .insertAt = 0}},
        {"overfull", {5, 4, 2}, kAdd, {.result = 0, .deleteMatch = 2, .deleteLast = 3, .insertAt = 0}},
        {"room for none", {0, 0, -1}, kAdd, {}},
        {"before the first", {2, 4, -1}, -1, {}},
        {"at the maximum", {4, 4, -1}, 4, {}},
        {"at the end", {2, 4, -1}, 2, {.result = 2, .insertAt = 2}},
        {"beyond the end", {2, 4, -1}, 3, {}},
        {"beyond the end once the match is gone", {2, 4, 0}, 2, {}},
        {"the match elsewhere moves", {3, 4, 0}, 2, {.result = 2, .deleteMatch = 0, .insertAt = 2}},
        {"the match is there already", {3, 4, 1}, 1, {.result = 1}},
        {"last of a full list", {4, 4, -1}, 3, {.result = 3, .deleteLast = 3, .insertAt = 3}},
    };
    for (const auto& [why, list, index, plan] : cases)
        EXPECT_EQ(index == kAdd ? PlanAddString(list, L"a") : PlanInsertString(list, index, L"a"), plan)
            << why;
    EXPECT_EQ(PlanAddString({4, 4, -1}, L""), MruPlan{}) << "no text";
}

TEST(MruList, TheStoredValueHasNoEmptyEntries) {
    using List = std::vector<std::wstring>;
    EXPECT_EQ(SplitEntries(L";a;;b;c;d;e;", 4), (List{L"a", L"b", L"c", L"d"}));
    EXPECT_EQ(SplitEntries(L"a;a", 4), (List{L"a", L"a"}));
    EXPECT_EQ(SplitEntries(L";;;", 4), List{});
    EXPECT_EQ(JoinEntries(List{L"", L"a", L"", L"b", L""}), L"a;b");
    EXPECT_EQ(JoinEntries(List{}), L"");
}

}  // namespace
}  // namespace recoveryui::model

// What a scenario is made of, how a test's settings hold it, and names of files, without an object.
#include <gtest/gtest.h>

#include "model/FileNames.h"
#include "model/KeyNames.h"
#include "model/KeySequence.h"
#include "model/ObjectHierarchy.h"
#include "model/PostRecovery.h"
#include "model/RecordString.h"
#include "resources/ids.h"

namespace recoveryui::model {
namespace {

using Records = std::vector<ScenarioAssociation>;

TEST(RecordString, ReadsCompleteRecordsAndStopsAtTheFirstBrokenOne) {
    const Records one{{L"f", L"P", true, 1}};
    const std::pair<std::wstring, Records> cases[] = {
        {L"", {}},
        {L"f;P;1;ffffffff*g;Q;0;1*", {{L"f", L"P", true, -1}, {L"g", L"Q", false, 1}}},
        {L"f;P;1;1", one},        // a last record needs no terminator
        {L"f;P;1;1*g;Q;1", one},  // three tokens are not a record
        {L"f;P;1;1*g;Q;1;*", one},
        {L";;;***", {}},
        {L";;f;;P;;;1;1*", one},                     // empty fields are skipped
        {L"f;P*Q;1;1*", {{L"f", L"P*Q", true, 1}}},  // a star is an ordinary letter before the mode
        {L"f;P;1;1**g;Q;0;1*", {{L"f", L"P", true, 1}, {L"*g", L"Q", false, 1}}},
        {L"f;P;2;1*", {{L"f", L"P", false, 1}}},  // only the number 1 enables
        {L"f;P;1x;1;zz*", one},                   // numbers are prefixes
        {L"f;P;x;g*", {{L"f", L"P", false, 0}}},  // no digits are 0
        {L"f;P; +1;0XFFffFFff*", {{L"f", L"P", true, -1}}},
        {L"f;P;01;0x*", {{L"f", L"P", true, 0}}},
        {L"f;P;4294967297;1ffffffff*", {{L"f", L"P", false, -1}}},  // 32 bits, then the limit
        {L"f;P;-1;-1*", {{L"f", L"P", false, -1}}},
    };
    for (const auto& [text, records] : cases)
        EXPECT_TRUE(ReadRecords(text) == records) << testing::PrintToString(text);
}

TEST(RecordString, APathIsConvertedOncePerRunOfRecords) {
    const Records many(100'000, {L"C:\\Tests\\common.trs", L"Popup", true, -1});
    int asked = 0;
    const auto count = [&asked](const std::wstring& path) { return ++asked, path; };
    Texts paths;
    EXPECT_EQ(ReadRecords(WriteRecords(many, -1, count), count, paths).size(), many.size());
    EXPECT_EQ(asked, 2);
}

TEST(FileNames, APathHasItsPartsAndIsSavedWithAnExtension) {
    const struct {
        std::wstring path, name, drive, saved;
    } cases[] = {
        {L"C:\\data\\a", L"a", L"C:", L"C:\\data\\a.trs"},
        {L"c:/data.v2/a", L"a", L"c:", L"c:/data.v2/a"},
        {L"a.", L"a.", L"", L"a."},
        {L"\\\\server\\share\\", L"", L"\\\\server\\share", L"\\\\server\\share\\.trs"},
        {L"\\\\server", L"server", L"\\\\server", L"\\\\server.trs"},
        {L"\\\\?\\D:\\a.trs", L"a.trs", L"D:", L"\\\\?\\D:\\a.trs"},
        {L"1:\\a.trs", L"a.trs", L"", L"1:\\a.trs"},
        {L"[Ondrafel] Subject\\a", L"a", L"", L"[Ondrafel] Subject\\a"},
        {L"[Brevalon]Subject\\a", L"a", L"", L"[Brevalon]Subject\\a.trs"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.path));
        EXPECT_EQ(FileNamePart(c.path), c.name);
        EXPECT_EQ(DrivePart(c.path), c.drive);
        EXPECT_EQ(PathToSave(c.path, L".trs"), c.saved);
    }
    for (const wchar_t* path : {L"", L" ", L"\t \r\n"}) EXPECT_TRUE(IsCancelledPath(path));
    EXPECT_FALSE(IsCancelledPath(L" a "));
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

using Sequence = std::vector<std::uint32_t>;

// What is stored and shown of plain keys and of a combination is seen in the wizard; here what is rare.
TEST(KeysTest, ASequenceHasItsStoredFormAndReadsAsTheKeysPressed) {
    const auto word = [](int id) { return std::wstring(1, L"sca"[id - IDS_KEY_SHIFT]); };
    const auto character = [](std::uint16_t key) { return static_cast<wchar_t>(key == 0x71 ? 0 : key); };
    const struct {
        Sequence sequence, stored;
        std::wstring names;
    } rows[] = {
        {PressCombination(0x71, kWithShift | kWithControl | kWithAlt),  // F2, which has no character
         {0x00010011, 0x00010010, 0x00010012, 0x00010071, 0x00030012, 0x00030011, 0x00030010},
         L"c + s + a"},
        {PressCombination('A', kWithControl | 8), {0x00010011, 0x00010041, 0x00030011}, L"c + A"},
        {PressCombination(0x20, 0), {0x00010020}, L""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.sequence, row.stored);
        EXPECT_EQ(KeyNames(row.sequence, word, character), row.names);
    }
    EXPECT_EQ(PressedKeys(Sequence{0x00000041, 0x00010042, 0x00020043, 0x00030044, 0xFFFD0045}),
              (std::vector<std::uint16_t>{0x41, 0x42, 0x45}))
        << "only the release bit of an event hides a key";
}

TEST(ObjectHierarchyTest, RunsFromTheOutermostParentDownToTheObject) {
    const auto parent = [](int object) {
        return object == 0 ? std::nullopt : std::optional<int>(object - 1);
    };
    EXPECT_EQ(HierarchyOf(3, parent), (std::vector<int>{0, 1, 2, 3}));
    EXPECT_EQ(HierarchyOf(0, parent), std::vector<int>{0});
    EXPECT_EQ(HierarchyOf(static_cast<int>(kDeepestHierarchy) - 1, parent).size(), kDeepestHierarchy);
    EXPECT_TRUE(HierarchyOf(1, [](int object) { return std::optional<int>(object); }).empty());

    EXPECT_EQ(FirstUnidentified(std::vector<std::size_t>{2, 1}), std::nullopt);
    EXPECT_EQ(FirstUnidentified(std::vector<std::size_t>{2, 0, 0}), 1U);
}

TEST(PostRecoveryTest, AChoiceWritesTheOptionThatTheRestartDecides) {
    const int written[][2] = {{1, 0}, {2, 0}, {3, 0}, {4, 0}, {5, 7}, {6, 8}};  // without, with a restart
    for (int choice = -1; choice <= kChoiceCount; ++choice) {
        const bool exists = choice >= 0 && choice < kChoiceCount;
        for (const bool restart : {false, true}) {
            SCOPED_TRACE(testing::Message() << "choice " << choice << ", restart " << restart);
            const auto option = OptionOf(choice, restart);
            EXPECT_EQ(option ? static_cast<int>(*option) : 0, exists ? written[choice][restart] : 0);
            EXPECT_EQ(IsOffered(choice, restart), option.has_value());
            // A hidden choice gives way to restarting the run.
            EXPECT_EQ(ChoiceOnActivation(choice, restart), !restart || choice == 5 ? choice : 4);
        }
    }
    const int choices[] = {kNoChoice, 0, 1, 2, 3, 4, 5, 4, 5, kNoChoice};  // by option 0 to 9
    for (int option = 0; option <= 9; ++option)
        for (const bool restart : {false, true})
            EXPECT_EQ(InitialChoice(option, restart), choices[option]) << option << restart;
    EXPECT_EQ(InitialChoice(std::nullopt, false), 0) << "a new one: the first offered";
    EXPECT_EQ(InitialChoice(std::nullopt, true), 4);
}

}  // namespace
}  // namespace recoveryui::model

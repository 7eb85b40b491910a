// The scenarios of a test as its settings hold them.
#include <gtest/gtest.h>

#include "model/Activation.h"
#include "model/DefaultsComparison.h"
#include "model/RecordString.h"

namespace recoveryui::model {
namespace {

using Item = ActivationItem;
using Records = std::vector<ScenarioAssociation>;

const Records kNone;
const Records kEvery{{L"f", L"P", true, -1}, {L"f", L"Q", true, 1}};
const Records kError{{L"f", L"P", true, 1}, {L"f", L"Q", true, -1}};

TEST(Activation, TheStoredPairSelectsAnItemWhichWritesAPair) {
    const struct {
        std::optional<std::int32_t> enabled;
        const Records& records;
        Item item;
        ActivationValues written;
    } cases[] = {
        {std::nullopt, kEvery, Item::None, {1, -1}},
        {std::nullopt, kNone, Item::None, {1, 1}},
        {0, kEvery, Item::Never, {0, 1}},
        {0, kNone, Item::Never, {0, 1}},
        {1, kEvery, Item::EveryStep, {1, -1}},
        {-7, kEvery, Item::EveryStep, {1, -1}},
        {1, kError, Item::OnError, {1, 1}},
        {1, kNone, Item::OnError, {1, 1}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        EXPECT_EQ(ActivationOnReading(c.enabled, c.records), c.item);
        EXPECT_EQ(ActivationToWrite(c.item, c.records), c.written);
    }
    // The item decides, whatever mode the records had.
    EXPECT_EQ(ActivationToWrite(Item::EveryStep, kError), (ActivationValues{1, -1}));
    EXPECT_EQ(ActivationToWrite(Item::OnError, kEvery), (ActivationValues{1, 1}));
}

TEST(Defaults, CanBeSetUnlessBothAreAbsentOrEqual) {
    using Stored = std::optional<std::wstring>;
    const struct {
        Stored current, defaults;
        bool can;
    } cases[] = {
        {std::nullopt, std::nullopt, false}, {L"a;b;1;1*", L"a;b;1;1*", false}, {L"", L"", false},
        {L"a;b;1;1*", std::nullopt, true},   {L"a;b;1;1*", L"A;b;1;1*", true},  {L"", std::nullopt, true},
        {std::nullopt, L"", true},
    };
    for (const auto& c : cases) EXPECT_EQ(CanSetAsDefault(c.current, c.defaults), c.can) << &c - cases;
}

TEST(RecordString, ReadsCompleteRecordsAndStopsAtTheFirstBrokenOne) {
    const struct {
        const wchar_t* why;
        std::wstring text;
        Records records;
    } cases[] = {
        {L"nothing stored", L"", {}},
        {L"two records",
         L"C:\\c.trs;Popup;1;ffffffff*C:\\c.trs;Crash;0;1*",
         {{L"C:\\c.trs", L"Popup", true, -1}, {L"C:\\c.trs", L"Crash", false, 1}}},
        {L"a last record needs no terminator", L"f;P;1;1", {{L"f", L"P", true, 1}}},
        {L"three tokens are not a record", L"f;P;1;1*g;Q;1", {{L"f", L"P", true, 1}}},
        {L"an empty mode is not a record", L"f;P;1;1*g;Q;1;*", {{L"f", L"P", true, 1}}},
        {L"separators only", L";;;***", {}},
        {L"empty fields are skipped", L";;f;;P;;;1;1*", {{L"f", L"P", true, 1}}},
        {L"a star is an ordinary letter before the mode", L"f;P*Q;1;1*", {{L"f", L"P*Q", true, 1}}},
        {L"a stray star goes to the next file",
         L"a;b;1;1**c;d;0;1*",
         {{L"a", L"b", true, 1}, {L"*c", L"d", false, 1}}},
        {L"only the number 1 enables", L"f;P;2;1*", {{L"f", L"P", false, 1}}},
        {L"numbers are prefixes", L"f;P;1x;1;zz*", {{L"f", L"P", true, 1}}},
        {L"no digits are 0", L"f;P;x;g*", {{L"f", L"P", false, 0}}},
        {L"blanks, sign and 0x as the C library has them", L"f;P; +1;0XFFffFFff*", {{L"f", L"P", true, -1}}},
        {L"a bare 0x is 0", L"f;P;01;0x*", {{L"f", L"P", true, 0}}},
        {L"32 bits, then the limit", L"f;P;4294967297;1ffffffff*", {{L"f", L"P", false, -1}}},
        {L"a negative mode", L"f;P;-1;-1*", {{L"f", L"P", false, -1}}},
    };
    for (const auto& c : cases)
        EXPECT_TRUE(ReadRecords(c.text) == c.records) << testing::PrintToString(c.why);
}

TEST(RecordString, WritesLowerCaseHexadecimalAndOneModeForAll) {
    const Records two{{L"f", L"P", true, -1}, {L"g", L"Q", false, 0xA0B}};
    EXPECT_EQ(WriteRecords({}), L"");
    EXPECT_EQ(WriteRecords(two), L"f;P;1;ffffffff*g;Q;0;a0b*");
    EXPECT_EQ(WriteRecords(two, 1), L"f;P;1;1*g;Q;0;1*");
    EXPECT_EQ(WriteRecords(two, 0), L"f;P;1;0*g;Q;0;0*");
    EXPECT_EQ(ReadRecords(WriteRecords(two)), two);
}

TEST(RecordString, TextsOfEveryLengthAndChangingModesAreWrittenWhole) {
    std::vector<std::wstring> texts;
    for (std::size_t length = 1; length < 40; ++length) texts.emplace_back(length, L'a' + length % 26);
    Records records;
    std::wstring expected;
    for (const std::wstring& file : texts) {
        for (const std::wstring& name : texts) {
            const bool enabled = name.size() % 3 == 0;
            const auto mode = static_cast<std::int32_t>(name.size() / 8);
            records.push_back({file, name, enabled, mode});
            expected += file + L";" + name + (enabled ? L";1;" : L";0;") + std::to_wstring(mode) + L"*";
        }
    }
    EXPECT_TRUE(WriteRecords(records) == expected);
    EXPECT_TRUE(ReadRecords(expected) == records);
}

TEST(RecordString, ConvertsPathsBothWaysAndKeepsThemWhereThatFails) {
    const PathConversion toFull = [](const std::wstring& path) {
        return path.starts_with(L"lost") ? std::wstring() : L"C:\\" + path;
    };
    const PathConversion toStored = [](const std::wstring& path) {
        return path.starts_with(L"C:\\") ? path.substr(3) : std::wstring();
    };
    const std::wstring text = L"a;1;1;1*lost;2;1;1*a;3;1;1*";
    Texts paths;
    const Records read = ReadRecords(text, toFull, paths);
    ASSERT_EQ(read.size(), 3u);
    EXPECT_EQ(read[0].file, L"C:\\a");
    EXPECT_EQ(read[1].file, L"lost");
    EXPECT_EQ(read[2].file, L"C:\\a");
    EXPECT_EQ(WriteRecords(read, std::nullopt, toStored), text);
}

TEST(RecordString, APathIsConvertedOncePerRunOfRecords) {
    const Records many(100'000, {L"C:\\Tests\\common.trs", L"Popup", true, -1});
    int asked = 0;
    const auto count = [&asked](const std::wstring& path) { return ++asked, path; };
    Texts paths;
    EXPECT_EQ(ReadRecords(WriteRecords(many, -1, count), count, paths).size(), many.size());
    EXPECT_EQ(asked, 2);
}

}  // namespace
}  // namespace recoveryui::model

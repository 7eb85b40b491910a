#include "objects/store/StoreFormat.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "objects/store/NamedList.h"
#include "store_samples.h"

namespace tovarin::store {
namespace {

ReadResult Read(std::string_view text) {
    std::vector<NamedScenario> read;
    return ReadStore(text, read);
}

TEST(StoreFormat, OneOfEverythingComesBackAndGivesTheSameBytesAgain) {
    const std::string text = TextOfStore(OneOfEverything());
    std::vector<NamedScenario> read;
    ASSERT_EQ(ReadResult::Read, ReadStore(text, read));
    EXPECT_EQ(OneOfEverything(), read);
    EXPECT_EQ(text, TextOfStore(read));
}

TEST(StoreFormat, TheFileReadsAsDocumented) {
    EXPECT_EQ("{\n  \"formatVersion\": 1,\n  \"scenarios\": []\n}\n", TextOfStore({}));
    const Scenario scenario{
        2, PopUpTrigger{{L"T", 1}, {}, 0}, {PressKeys{{13}}, CloseProcesses{}}, L"\x4e2d\n"};
    EXPECT_EQ(R"({
  "formatVersion": 1,
  "scenarios": [
    {
      "name": "N",
      "description": ")"
              "\xe4\xb8\xad"
              R"(\n",
      "postRecoveryOption": 2,
      "trigger": {
        "kind": "popUp",
        "windowTitle": {
          "text": "T",
          "regularExpression": 1
        },
        "windowText": {
          "text": "",
          "regularExpression": 0
        },
        "option": 0
      },
      "operations": [
        {
          "kind": "pressKeys",
          "keys": [
            13
          ]
        },
        {
          "kind": "closeProcesses",
          "processes": []
        }
      ]
    }
  ]
}
)",
              TextOfStore({{L"N", scenario}}));
}

TEST(StoreFormat, AnyTextSurvives) {
    const std::wstring high(1, wchar_t(0xd83d)), low(1, wchar_t(0xde00)), nul(1, L'\0');
    std::wstring everyUnit;
    for (unsigned unit = 0; unit < 0x10000; ++unit) everyUnit += wchar_t(unit);
    const std::wstring texts[] = {L"",
                                  L" \t\r\n\\\"/\x7f",
                                  nul + L"a" + nul,
                                  L"\x1a"
                                  L"001a",
                                  high,
                                  low,
                                  high + L"x",
                                  low + high,
                                  L"\x1a" + high,
                                  L"\U0001F600",
                                  everyUnit,
                                  high + high + low,
                                  L"\xfffe\xffff\xfeff"};
    for (const std::wstring& text : texts) {
        const std::vector<NamedScenario> scenarios = {{text, {0, CrashTrigger{0, {text}}, {}, text}}};
        std::vector<NamedScenario> read;
        ASSERT_EQ(ReadResult::Read, ReadStore(TextOfStore(scenarios), read));
        EXPECT_EQ(TextOfStore(scenarios), TextOfStore(read));
        // where characters have four bytes, two halves that met come back as one
        EXPECT_TRUE(scenarios == read || sizeof(wchar_t) == 4);
    }
}

TEST(StoreFormat, EveryKindOfValueSurvives) {
    using Limits = std::numeric_limits<std::int64_t>;
    const std::vector<Value> values = {
        {ValueType::Empty},
        {ValueType::Null},
        {ValueType::Boolean, 1},
        {ValueType::Boolean, 0},
        {ValueType::Int8, -128},
        {ValueType::UInt8, 255},
        {ValueType::Int16, -32768},
        {ValueType::UInt16, 65535},
        {ValueType::Int32, -5},
        {ValueType::UInt32, 0xffffffff},
        {ValueType::Int, -5},
        {ValueType::UInt, 0xffffffff},
        {ValueType::Int64, Limits::min()},
        {ValueType::UInt64, -1},
        {ValueType::Currency, Limits::max()},
        {ValueType::Double, 0, 0.1},
        {ValueType::Double, 0, -std::numeric_limits<double>::infinity()},
        {ValueType::Double, 0, std::numeric_limits<double>::denorm_min()},
        {ValueType::Single, 0, 0.1f},
        {ValueType::Date, 0, 45000.5},
    };
    const auto stored = [](const std::vector<Value>& arguments) {
        std::vector<NamedScenario> read;
        const Scenario scenario{0, {}, {AccessObject{0, L"", arguments}}, L""};
        EXPECT_EQ(ReadResult::Read, ReadStore(TextOfStore({{L"n", scenario}}), read));
        return std::get<AccessObject>(read.at(0).scenario.operations.at(0)).arguments;
    };
    EXPECT_EQ(values, stored(values));
    EXPECT_TRUE(std::isnan(stored({{ValueType::Double, 0, std::nan("")}}).at(0).real));
}

TEST(StoreFormat, AFileCutAnywhereIsCorruptAndChangesNothing) {
    const std::string text = TextOfStore(OneOfEverything());
    std::vector<NamedScenario> read = {{L"kept", {}}};
    const size_t end = text.size() - 1;  // the line feed after the last brace is no loss
    for (size_t length = 0; length < end; ++length)
        ASSERT_EQ(ReadResult::Corrupt, ReadStore(std::string_view(text).substr(0, length), read)) << length;
    EXPECT_EQ((std::vector<NamedScenario>{{L"kept", {}}}), read);
    EXPECT_EQ(ReadResult::Read, ReadStore(std::string_view(text).substr(0, end), read));
}

TEST(StoreFormat, ABitFlippedAnywhereNeverBreaksTheReader) {
    std::string text = TextOfStore(OneOfEverything());
    std::erase_if(text, [](char c) { return c == '\n' || c == ' '; });  // spares half of the flips
    const std::vector<NamedScenario> kept = {{L"kept", {}}};
    const size_t step = sizeof(wchar_t) == 2 ? 1 : 7;  // the sanitizers take their time
    size_t readable = 0;
    for (size_t bit = 0; bit < text.size() * 8; bit += step) {
        text[bit / 8] ^= static_cast<char>(1 << bit % 8);
        std::vector<NamedScenario> read = kept, again;
        const ReadResult result = ReadStore(text, read);
        text[bit / 8] ^= static_cast<char>(1 << bit % 8);
        if (result != ReadResult::Read) {
            ASSERT_EQ(kept, read) << bit;
            continue;
        }
        ++readable;
        ASSERT_EQ(ReadResult::Read, ReadStore(TextOfStore(read), again)) << bit;
        ASSERT_EQ(read, again) << bit;
    }
    EXPECT_GT(readable, 0u) << "a changed letter of a name is no damage";
}

TEST(StoreFormat, ForeignAndNewerFilesAreToldApart) {
    const std::string scenario = TextOfStore({{L"N", {}}});
    const auto with = [&](std::string_view old, std::string_view replacement) {
        std::string text = scenario;
        return text.replace(text.find(old), old.size(), replacement);
    };
    const std::string deep(100'000, '[');
    const std::string head = "{\"formatVersion\": 1, \"scenarios\": ";
    const auto trigger = [&](const std::string& text) { return with("null", text); };
    const std::string corrupt[] = {
        "",
        "[]",
        "1",
        "{}",
        "{\"scenarios\": []}",
        "{\"formatVersion\": 1}",
        "{\"scenarios\": [], \"formatVersion\": 1}",
        head + "{}}",
        head + "[1]}",
        head + "[[]]}",
        head + "[], \"more\": 1}",
        head + "[]} x",
        head + deep,
        "{\"formatVersion\": 0, \"scenarios\": []}",
        "{\"formatVersion\": -2, \"scenarios\": []}",
        "{\"formatVersion\": 2.5, \"scenarios\": []}",
        "{\"formatVersion\": \"2\", \"scenarios\": []}",
        "{\"formatVersion\": [2], \"scenarios\": []}",
        "{\"formatVersion\": 2, \"anything\": ",
        with("\"N\"", "\"\\u001a12\""),
        with("\"N\"", "\"\\u001a0041\""),
        with("\"N\"", "\"\\ud800\""),
        with("\"N\"", "\"\xff\""),
        with("\"N\"", "7"),
        with("\"name\"", "\"other\""),
        trigger("null, \"trigger\": null"),
        trigger("null, \"colour\": 1"),
        trigger("{\"kind\": \"flood\"}"),
        trigger("{\"kind\": \"error\", \"code\": 2147483648}"),
    };
    for (const std::string& text : corrupt) EXPECT_EQ(ReadResult::Corrupt, Read(text)) << text.substr(0, 200);
    for (const char* text : {"{\"formatVersion\": 2, \"anything\": [[[{\"at\": \"all\"}]]]}",
                             "{\"formatVersion\": 18446744073709551615}"})
        EXPECT_EQ(ReadResult::Newer, Read(text)) << text;
    EXPECT_EQ(ReadResult::Read, Read("\xef\xbb\xbf" + scenario));
    EXPECT_EQ(ReadResult::Read, Read(trigger("{\"code\": -1, \"kind\": \"error\"}")));
}

TEST(StoreFormat, WhatIsTooLargeToReadIsNotWritten) {
    const Scenario full{0, {}, {PressKeys{std::vector<std::uint32_t>(kMostItems)}}, L""};
    const Scenario overfull{0, CrashTrigger{0, std::vector<std::wstring>(kMostItems + 1)}, {}, L""};
    EXPECT_TRUE(WithinLimits(L"n", full));
    EXPECT_FALSE(WithinLimits(L"n", overfull));
    EXPECT_FALSE(WithinLimits(L"n", {0, {}, {}, std::wstring(kMostCharacters + 1, L'x')}));
    EXPECT_EQ(ReadResult::Read, Read(TextOfStore({{L"n", full}})));
    EXPECT_EQ(ReadResult::Corrupt, Read(TextOfStore({{L"n", overfull}})));
}

TEST(NamedList, AReplacedNameKeepsItsPlaceAndANewOneGoesLast) {
    NamedList<int> list([](std::wstring_view name) {
        std::wstring key(name);
        for (wchar_t& letter : key) letter = letter == L'A' ? L'a' : letter;
        return key;
    });
    EXPECT_TRUE(list.Add(L"A", 1, false));
    EXPECT_TRUE(list.Add(L"b", 2, true));
    EXPECT_FALSE(list.Add(L"a", 3, false));
    EXPECT_TRUE(list.Add(L"a", 4, true));
    EXPECT_FALSE(list.Remove(L"c"));
    std::wstring order;
    for (const auto& entry : list) order += entry.name + std::to_wstring(entry.item);
    EXPECT_EQ(L"a4b2", order);
    EXPECT_TRUE(list.Remove(L"A"));
    EXPECT_EQ(nullptr, list.Find(L"a"));
    EXPECT_EQ(2, list.Find(L"b")->item);
}

}  // namespace
}  // namespace tovarin::store

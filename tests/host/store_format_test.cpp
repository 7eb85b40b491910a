#include "objects/store/StoreFormat.h"

#include <gtest/gtest.h>

#include <cstdio>

#include "store_samples.h"

namespace tovarin::store {
namespace {

ReadResult Read(std::string_view text) {
    std::vector<NamedScenario> read;
    return ReadStore(text, read);
}

TEST(StoreFormat, TheFileReadsAsDocumented) {
    EXPECT_EQ("{\n  \"formatVersion\": 1,\n  \"scenarios\": []\n}\n", TextOfStore({}));
    const Scenario scenario{
        2, PopUpTrigger{{L"T", 1}, {}, 0}, {PressKeys{{13}}, CloseProcesses{}}, L"\x4e2d\n"};
    std::string text = TextOfStore({{L"N", scenario}});
    std::erase_if(text, [](char c) { return c == '\n' || c == ' '; });
    EXPECT_EQ(
        "{\"formatVersion\":1,\"scenarios\":[{\"name\":\"N\",\"description\":\"\xe4\xb8\xad\\n\","
        R"("postRecoveryOption":2,"trigger":{"kind":"popUp","windowTitle":{"text":"T",)"
        R"("regularExpression":1},"windowText":{"text":"","regularExpression":0},"option":0},)"
        R"("operations":[{"kind":"pressKeys","keys":[13]},{"kind":"closeProcesses","processes":[]}]}]})",
        text);
}

TEST(StoreFormat, AFileCutAnywhereIsCorruptAndABitFlippedAnywhereNeverBreaksTheReader) {
    std::string text = TextOfStore(OneOfEverything());
    const std::vector<NamedScenario> kept = {{L"kept", {}}};
    std::vector<NamedScenario> read = kept;
    const size_t end = text.size() - 1;  // the line feed after the last brace is no loss
    for (size_t length = 0; length < end; ++length)
        ASSERT_EQ(ReadResult::Corrupt, ReadStore(std::string_view(text).substr(0, length), read)) << length;
    EXPECT_EQ(kept, read);
    EXPECT_EQ(ReadResult::Read, ReadStore(std::string_view(text).substr(0, end), read));
    std::printf("PROOF hostile input: a recovery file cut at each of %zu bytes\n", end);

    std::erase_if(text, [](char c) { return c == '\n' || c == ' '; });  // spares half of the flips
    const size_t step = sizeof(wchar_t) == 2 ? 1 : 7;                   // the sanitizers take their time
    size_t readable = 0;
    for (size_t bit = 0; bit < text.size() * 8; bit += step) {
        std::string flipped = text;
        flipped[bit / 8] ^= static_cast<char>(1 << bit % 8);
        std::vector<NamedScenario> again = read = kept;
        if (ReadStore(flipped, read) == ReadResult::Read) {
            ++readable;
            ASSERT_EQ(ReadResult::Read, ReadStore(TextOfStore(read), again)) << bit;
        }
        ASSERT_EQ(again, read) << bit;
    }
    EXPECT_GT(readable, 0u) << "a changed letter of a name is no damage";
    std::printf("PROOF hostile input: %zu bits flipped, %zu files still readable\n",
                (text.size() * 8 + step - 1) / step, readable);
}

TEST(StoreFormat, ForeignAndNewerFilesAreToldApart) {
    const std::string scenario = TextOfStore({{L"N", {}}});
    const auto with = [&](std::string_view old, std::string_view replacement) {
        std::string text = scenario;
        return text.replace(text.find(old), old.size(), replacement);
    };
    const auto trigger = [&](const std::string& text) { return with("null", text); };
    const auto expectCorrupt = [](const std::string& text) {
        EXPECT_EQ(ReadResult::Corrupt, Read(text)) << text.substr(0, 200);
    };
    for (const char* text : {"", "[]", "1", "{}", "<?xml version=\"1.0\"?><a/>", R"({"scenarios": []})",
                             R"({"formatVersion": 1})", R"({"scenarios": [], "formatVersion": 1})",
                             R"({"formatVersion": 2, "anything": )"})
        expectCorrupt(text);
    for (const char* version : {"0", "-2", "2.5", "\"2\"", "[2]"})
        expectCorrupt(with("1,", version + std::string(",")));
    const std::string deep(100'000, '[');
    for (const char* list : {"{}}", "[1]}", "[[]]}", "[], \"more\": 1}", "[]} x", deep.c_str()})
        expectCorrupt("{\"formatVersion\": 1, \"scenarios\": " + std::string(list));
    for (const char* name : {"\"\\u001a12\"", "\"\\u001a0041\"", "\"\\ud800\"", "\"\xff\"", "7"})
        expectCorrupt(with("\"N\"", name));
    expectCorrupt(with("\"name\"", "\"other\""));
    for (const char* wrong : {R"(null, "trigger": null)", R"(null, "colour": 1)", R"({"kind": "flood"})",
                              R"({"kind": "error", "code": 2147483648})"})
        expectCorrupt(trigger(wrong));
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

}  // namespace
}  // namespace tovarin::store

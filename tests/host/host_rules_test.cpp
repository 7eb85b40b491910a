// What the host's window, its services and its pointing hand decide, as data.
#include <gtest/gtest.h>

#include "objects/screen/HandGesture.h"
#include "objects/screen/ObjectIdentity.h"
#include "objects/services/DialogFilter.h"
#include "objects/services/TestFile.h"

namespace tovarin {
namespace {

TEST(HostDialogFilter, TheFilterTextBecomesThePlatformsList) {
    EXPECT_EQ(PlatformFilter(L"Files (*.trs)|*.trs|All|*.*||"),
              std::wstring(L"Files (*.trs)\0*.trs\0All\0*.*\0\0", 29));
    EXPECT_EQ(PlatformFilter(L"||"), L"");
    EXPECT_EQ(FirstExtension(L"Two|*.vbs;*.txt|All|*.*||"), L".vbs");
    EXPECT_EQ(FirstExtension(L"All|*.*||"), L"");
}

TEST(HostTestFile, WhatIsForeignIsLeftOutOrStaysAndForeignFilesAreRefused) {
    const std::string text =
        WriteTestFile({}, R"({"formatVersion": 1, "steps": [1, {"a": null}], "settings": 5})");
    EXPECT_NE(text.find("\"steps\""), text.npos);
    const auto read = ReadTestFile(
        R"({"formatVersion":1,"settings":{"a":{"n":1,"f":1.5,"b":true,"l":[],"big":5000000000,"u":18446744073709551615},"c":3}})");
    EXPECT_EQ(read, (Settings{{L"a", {{L"n", 1}}}, {L"c", {}}}));
    EXPECT_EQ(ReadTestFile(R"({"formatVersion":1})"), Settings());
    for (const char* text :
         {"", "[]", "{", "{\"formatVersion\":2}", "{\"formatVersion\":\"1\"}", "{}", "\xFF"})
        EXPECT_EQ(ReadTestFile(text), std::nullopt) << text;
    std::string deep =
        R"({"formatVersion":1,"x":)" + std::string(100'000, '[') + std::string(100'000, ']') + "}";
    EXPECT_EQ(ReadTestFile(deep), std::nullopt);
}

using Outcome = HandGesture::Outcome;

// One letter per event: l/L left down/up, r/R right, m/M another button, e/E Escape, w the wheel. Gives the
// events that nobody else saw, and the outcome.
std::pair<std::string, Outcome> Play(const std::string& events) {
    const std::string letters = "lLrRmMeEw";
    HandGesture gesture;
    std::string taken;
    for (const char event : events) {
        if (gesture.Takes(static_cast<HandInput>(letters.find(event)))) taken += event;
    }
    return {taken, gesture.Result()};
}

TEST(HostHandGesture, AClickPointsAndNobodyElseSeesIt) {
    const struct {
        const char* events;
        const char* taken;
        Outcome outcome;
    } cases[] = {
        {"", "", Outcome::Pointing},          {"l", "l", Outcome::Pointing},
        {"lL", "lL", Outcome::Pointed},       {"rR", "rR", Outcome::Cancelled},
        {"eE", "eE", Outcome::Cancelled},     {"mM", "mM", Outcome::Pointing},
        {"LREM", "", Outcome::Pointing},      {"wlwL", "lL", Outcome::Pointed},
        {"leL", "leL", Outcome::Pointing},    {"leLE", "leLE", Outcome::Pointed},
        {"rlLR", "rlLR", Outcome::Cancelled}, {"eeeE", "eeeE", Outcome::Cancelled},
        {"mlL", "mlL", Outcome::Pointing},    {"mlLM", "mlLM", Outcome::Pointed},
    };
    for (const auto& [events, taken, outcome] : cases)
        EXPECT_EQ(Play(events), std::make_pair(std::string(taken), outcome)) << events;
}

// "name" and the checked properties.
std::wstring Checked(const WindowFacts& facts) {
    const store::TestObject object = Identify(facts);
    std::wstring list = object.displayName + L":";
    for (const store::Property& property : object.properties) {
        if (property.isChecked) list += L" " + property.name;
    }
    return list;
}

TEST(HostObjectIdentity, WhatALaterRunWillShowAgainIsChecked) {
    const auto window = [](const wchar_t* text, const wchar_t* name, int id, bool topLevel) {
        WindowFacts facts;
        facts.text = text;
        facts.className = name;
        facts.id = id;
        facts.topLevel = topLevel;
        return facts;
    };
    EXPECT_EQ(Checked(window(L"Save", L"#32770", 0, true)), L"#32770 \"Save\": class text");
    EXPECT_EQ(Checked(window(L"", L"Frame", 0, true)), L"Frame: class");
    EXPECT_EQ(Checked(window(L"OK", L"Button", 1, false)), L"Button \"OK\": class window id");
    EXPECT_EQ(Checked(window(L"a\r\nb", L"Static", -1, false)), L"Static \"a\": class text");
    EXPECT_EQ(Checked(window(L"a", L"Static", 0xFFFF, false)), L"Static \"a\": class text");
    EXPECT_EQ(Checked(window(L"typed", L"RichEdit20W", 0, false)), L"RichEdit20W \"typed\": class");
    EXPECT_EQ(Identify(window(std::wstring(100, L'x').c_str(), L"A", 0, true)).displayName.size(), 67u);
}

}  // namespace
}  // namespace tovarin

#include "support/Text.h"

#include <gtest/gtest.h>

#include "support/LibraryAppend.h"
#include "support/RepositoryPath.h"

namespace recoveryui::support {
namespace {

TEST(TextTest, TrimsBlanksAndWhiteSpace) {
    struct {
        std::wstring text, blanks, white, leading;
    } const rows[] = {
        {L"", L"", L"", L""},
        {L"   ", L"", L"", L""},
        {L"  a b ", L"a b", L"a b", L"a b "},
        {L"\t a\r\n", L"\t a\r\n", L"a", L"a\r\n"},
        {L"\v\fx\u00A0 ", L"\v\fx\u00A0", L"x\u00A0", L"x\u00A0 "},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        EXPECT_EQ(TrimBlanks(row.text), row.blanks);
        EXPECT_EQ(TrimWhiteSpace(row.text), row.white);
        EXPECT_EQ(TrimLeadingWhiteSpace(row.text), row.leading);
    }
}

TEST(TextTest, FillsInValuesWithoutReadingThemAsPatterns) {
    EXPECT_EQ(Fill(L"%s::%s", {L"%s.vbs", L"Fix"}), L"%s.vbs::Fix");
    EXPECT_EQ(Fill(L"100% of %s", {L"it"}), L"100% of it");
    EXPECT_EQ(Fill(L"none", {L"x"}), L"none");
    EXPECT_EQ(Fill(L"%s and %s", {L"one"}), L"one and %s");
}

TEST(TextTest, NamesCompareIgnoringCaseInEveryScript) {
    struct {
        std::wstring left, right;
        bool equal;
    } const rows[] = {
        {L"NOTEPAD.exe", L"notepad.EXE", true},
        {L"", L"", true},
        {L"a", L"ab", false},
        {L"[", L"{", false},                   // beside the letters, 0x20 apart as letters are
        {L"\u00C4RGER", L"\u00E4rger", true},  // umlaut
        {L"\u00D7", L"\u00F7", false},         // the signs in the middle of the Latin letters
        {L"\u0178", L"\u00FF", true},
        {L"\u0141\u00D3D\u0179", L"\u0142\u00F3d\u017A", true},
        {L"\u0391\u038F", L"\u03B1\u03CE", true},  // Greek
        {L"\u0416\u0401", L"\u0436\u0451", true},  // Cyrillic
        {L"\u0130", L"i", false},
        {L"\u5B57", L"\u5B57", true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        EXPECT_EQ(EqualIgnoringCase(row.left, row.right), row.equal);
        EXPECT_EQ(Lower(row.left) == Lower(row.right), row.equal);
    }
}

TEST(RepositoryPathTest, OnlyOnePrefixNeedsTheBlankBehindItsBracket) {
    struct {
        std::wstring path;
        bool repository;
    } const rows[] = {
        {L"[Ondrafel] Subject\\a.vbs", true},
        {L"[Ondrafel]Subject", true},
        {L" \t\r\n[ONDRAFEL]", true},
        {L"[Brevalon] Resources\\a.vbs", true},
        {L"[Brevalon]Resources\\a.vbs", false},
        {L"\v[brevalon] ", true},
        {L"[Brevalon]\tResources", false},
        {L"C:\\[Ondrafel] \\a.vbs", false},
        {L"", false},
        {L"[Ondrafel", false},
    };
    for (const auto& row : rows) EXPECT_EQ(IsRepositoryPath(row.path), row.repository) << &row - rows;
}

TEST(LibraryAppendTest, ALineThatGoesOnIsEndedAndOldEndMarksGoAway) {
    struct {
        std::string_view bytes;
        std::size_t marks;
        bool goesOn;
    } const rows[] = {
        {"", 0, false},          {"End Sub\r\n", 0, false},
        {"x = 1 + _", 0, true},  {"x = 1 + _ \t\xA0", 0, true},
        {"x = _\n", 0, false},   {"End Sub\x1A\x1A", 2, false},
        {"x = _ \x1A", 1, true}, {"\x1A", 1, false},
        {"'\x1A.", 0, false},
    };
    for (const auto& row : rows) {
        const LibraryEnd end = EndOfLibrary(row.bytes);
        EXPECT_EQ(end.marks, row.marks) << row.bytes;
        EXPECT_EQ(end.goesOn, row.goesOn) << row.bytes;
    }
    EXPECT_EQ(AppendedText(L"a\nb", {0, true}), L"\r\n\r\na\r\nb");
    EXPECT_EQ(AppendedText(L"\t\v a\r\r\nb\rc\f", {}), L"\r\na\r\nbc");
}

}  // namespace
}  // namespace recoveryui::support

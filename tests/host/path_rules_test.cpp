// Decisions of the file locator, the file dialog and the test file, without a disk.
#include <gtest/gtest.h>

#include "objects/services/DialogFilter.h"
#include "objects/services/PathRules.h"
#include "objects/services/TestFile.h"

namespace tovarin {
namespace {

bool Exactly(std::wstring_view first, std::wstring_view second) {
    return first == second;
}

TEST(HostPathRules, APathIsRelativeFullOrOfTheRepository) {
    for (const wchar_t* path : {L"lib.vbs", L"..\\lib.vbs", L"", L"[brevalon]a"})
        EXPECT_EQ(KindOf(path), PathKind::Relative) << path;
    for (const wchar_t* path :
         {L"C:\\lib.vbs", L"c:lib.vbs", L"\\lib.vbs", L"\\\\server\\share\\a", L"/lib.vbs"})
        EXPECT_EQ(KindOf(path), PathKind::Full) << path;
    for (const wchar_t* path : {L"[Ondrafel] a", L" \t[ONDRAFEL]a", L"[Brevalon] a"})
        EXPECT_EQ(KindOf(path), PathKind::Repository) << path;
}

TEST(HostPathRules, PathsLoseTheirDotsButNeverLeaveTheirRoot) {
    struct {
        const wchar_t* path;
        std::optional<std::wstring> normal;
    } const cases[] = {{L"C:\\a\\.\\b\\..\\c/d\\", L"C:\\a\\c\\d"},
                       {L"C:\\..", std::nullopt},
                       {L"a\\..\\b", L"b"},
                       {L"..\\b", std::nullopt},
                       {L"\\\\s\\h\\x\\..\\y", L"\\\\s\\h\\y"},
                       {L"\\\\s\\h\\..", std::nullopt},
                       {L"\\\\s\\..\\a", std::nullopt},
                       {L"a\\..\\C:b", std::nullopt},
                       {L"\\.\\:a", L"\\:a"},
                       {L"C:\\", L"C:\\"},
                       {L"C:x\\..\\y", L"C:y"}};
    for (const auto& [path, normal] : cases) EXPECT_EQ(Normalized(path), normal) << path;
    EXPECT_EQ(Below(L"C:\\tests\\a\\lib.vbs", L"C:\\tests\\", Exactly), L"a\\lib.vbs");
    EXPECT_EQ(Below(L"C:\\tests\\x\\..\\lib.vbs", L"C:\\tests", Exactly), L"lib.vbs");
    for (const wchar_t* elsewhere :
         {L"C:\\tests2\\lib.vbs", L"C:\\tests", L"C:\\tests\\..\\lib.vbs", L"D:\\tests\\a"})
        EXPECT_EQ(Below(elsewhere, L"C:\\tests", Exactly), std::nullopt) << elsewhere;
    EXPECT_EQ(Below(L"C:\\a", L"", Exactly), std::nullopt);
}

TEST(HostPathRules, RepositoryPathsAreFilesOfTheRepositoryFolder) {
    EXPECT_EQ(RepositoryFile(L" [ondrafel]Subject/a.vbs", L"R:\\"), L"R:\\Ondrafel\\Subject\\a.vbs");
    EXPECT_EQ(RepositoryFile(L"[Brevalon]  a.vbs", L"R:\\x"), L"R:\\x\\Brevalon\\a.vbs");
    for (const wchar_t* bad : {L"[Ondrafel] ..\\a", L"[Ondrafel] C:\\a", L"[Ondrafel] ", L"a.vbs"})
        EXPECT_EQ(RepositoryFile(bad, L"R:\\"), std::nullopt) << bad;
    EXPECT_EQ(RepositoryPath(L"R:\\Brevalon\\s\\a.vbs", L"R:\\", Exactly), L"[Brevalon] s\\a.vbs");
    EXPECT_EQ(RepositoryPath(L"R:\\Other\\a.vbs", L"R:\\", Exactly), std::nullopt);
    EXPECT_EQ(RepositoryPath(L"R:\\Ondrafel\\ a.vbs", L"R:\\", Exactly), std::nullopt);
    EXPECT_EQ(RepositoryPath(L"R:\\Ondrafel\\a.vbs", L"", Exactly), std::nullopt);
}

TEST(HostDialogFilter, TheFilterTextBecomesThePlatformsList) {
    EXPECT_EQ(PlatformFilter(L"Files (*.trs)|*.trs|All|*.*||"),
              std::wstring(L"Files (*.trs)\0*.trs\0All\0*.*\0\0", 29));
    EXPECT_EQ(PlatformFilter(L"||"), L"");
    const std::pair<const wchar_t*, const wchar_t*> extensions[] = {{L"Files|*.trs|All|*.*||", L".trs"},
                                                                    {L"Two|*.vbs;*.txt||", L".vbs"},
                                                                    {L"All|*.*||", L""},
                                                                    {L"Files", L""},
                                                                    {L"", L""}};
    for (const auto& [filter, extension] : extensions) EXPECT_EQ(FirstExtension(filter), extension) << filter;
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

}  // namespace
}  // namespace tovarin

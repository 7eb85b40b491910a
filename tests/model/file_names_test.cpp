#include "model/FileNames.h"

#include <gtest/gtest.h>

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
    for (const auto& c : cases) EXPECT_EQ(PathToSave(c.chosen, L".trs"), c.saved);
}

TEST(FileNames, OnlyWhiteSpaceIsACancelledDialog) {
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
    for (const auto& c : cases) EXPECT_EQ(ExtendedLengthPath(c.path), c.extended);
}

}  // namespace
}  // namespace recoveryui::model

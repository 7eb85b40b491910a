#include "objects/store/StoreFile.h"

#include <gtest/gtest.h>

#include "host/temp_folder.h"

namespace tovarin {
namespace {

class StoreFileTest : public testing::Test {
protected:
    StoreFileTest() { TempFolder::Write(path_, "old"); }

    static HRESULT Take(StoreFile& file, const std::wstring& path) {
        std::string bytes;
        return file.Open(path, false, bytes);
    }

    TempFolder folder_;
    const std::wstring path_ = folder_ / L"a.trs";
    StoreFile mine_, other_;
    std::string bytes_;
};

TEST_F(StoreFileTest, AFileIsTakenByOneEditorAndReadByAnyone) {
    ASSERT_EQ(S_OK, mine_.Open(path_, false, bytes_));
    EXPECT_EQ("old", bytes_);
    EXPECT_EQ(path_, mine_.Path());
    EXPECT_EQ(STG_E_SHAREVIOLATION, Take(other_, path_));
    EXPECT_EQ(L"", other_.Path());
    EXPECT_EQ(S_OK, other_.Open(path_, true, bytes_));
    EXPECT_EQ(STG_E_ACCESSDENIED, other_.Save(L"", "from a reader"));
    EXPECT_EQ(STG_E_ACCESSDENIED, other_.Save(folder_ / L"b\\..\\A.TRS", "from a reader"));
    for (const std::wstring& path : {folder_ / L"b.trs", std::wstring()})
        EXPECT_EQ(S_OK, other_.Save(path, "copy")) << "under another name it may, and is its editor then";
    EXPECT_EQ("copy", TempFolder::Read(folder_ / L"b.trs"));
    EXPECT_EQ(S_OK, Take(mine_, folder_ / L"b\\..\\A.TRS")) << "opened again by its own editor";
    EXPECT_EQ(STG_E_SHAREVIOLATION, Take(other_, path_));
    EXPECT_EQ(S_OK, mine_.Save(path_, "new"));
    EXPECT_EQ(STG_E_SHAREVIOLATION, Take(other_, path_)) << "replaced, and still taken";
    EXPECT_EQ(S_OK, mine_.Save(folder_ / L"c.trs", "newer"));
    EXPECT_EQ(folder_ / L"c.trs", mine_.Path());
    EXPECT_EQ(STG_E_SHAREVIOLATION, Take(other_, folder_ / L"c.trs"));
    EXPECT_EQ(S_OK, Take(other_, path_)) << "the file saved under another name is let go";
    EXPECT_EQ("new", TempFolder::Read(path_));
    EXPECT_EQ(3, folder_.Count()) << "nothing is left beside the files";
}

TEST_F(StoreFileTest, FailuresHaveTheirCodesAndChangeNothing) {
    const std::wstring locked = folder_ / L"locked.trs", guarded = folder_ / L"read-only.trs";
    TempFolder::Write(locked, "locked");
    TempFolder::Write(guarded, "guarded");
    SetFileAttributesW(guarded.c_str(), FILE_ATTRIBUTE_READONLY);
    ASSERT_EQ(S_OK, Take(other_, locked));
    ASSERT_EQ(S_OK, Take(mine_, path_));
    const struct {
        std::wstring path;
        HRESULT read, edit, save;
    } cases[] = {
        {locked, S_OK, STG_E_SHAREVIOLATION, STG_E_SHAREVIOLATION},
        {guarded, S_OK, STG_E_ACCESSDENIED, STG_E_ACCESSDENIED},
        {folder_.Path(), STG_E_ACCESSDENIED, STG_E_ACCESSDENIED, STG_E_ACCESSDENIED},
        {folder_ / L"missing\\a.trs", STG_E_PATHNOTFOUND, STG_E_PATHNOTFOUND, STG_E_PATHNOTFOUND},
        {folder_ / L"a?.trs", STG_E_INVALIDNAME, STG_E_INVALIDNAME, STG_E_INVALIDNAME},
        {path_ + std::wstring(1, L'\0'), STG_E_INVALIDNAME, STG_E_INVALIDNAME, STG_E_INVALIDNAME},
        {L"NUL", STG_E_ACCESSDENIED, STG_E_ACCESSDENIED, STG_E_ACCESSDENIED},
    };
    for (const auto& [path, read, edit, save] : cases) {
        StoreFile reader;
        EXPECT_EQ(read, reader.Open(path, true, bytes_)) << testing::PrintToString(path);
        EXPECT_EQ(edit, Take(mine_, path)) << testing::PrintToString(path);
        EXPECT_EQ(save, mine_.Save(path, "new")) << testing::PrintToString(path);
        EXPECT_EQ(path_, mine_.Path());
    }
    EXPECT_EQ(STG_E_FILENOTFOUND, Take(mine_, folder_ / L"missing.trs"));
    EXPECT_EQ(STG_E_INVALIDNAME, StoreFile().Save(L"", "untitled"));
    StoreFile second;
    EXPECT_EQ(STG_E_SHAREVIOLATION, Take(second, path_)) << "still taken";
    EXPECT_EQ("locked", TempFolder::Read(locked));
    EXPECT_EQ("guarded", TempFolder::Read(guarded));
    EXPECT_EQ(3, folder_.Count());
}

TEST_F(StoreFileTest, AReaderThatStaysMakesSavingFailAndOneThatGoesDoesNot) {
    ASSERT_EQ(S_OK, Take(mine_, path_));
    const HANDLE reader = CreateFileW(path_.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                      nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(STG_E_SHAREVIOLATION, mine_.Save(L"", "new"));
    EXPECT_EQ("old", TempFolder::Read(path_));
    EXPECT_EQ(STG_E_SHAREVIOLATION, Take(other_, path_)) << "still taken";
    EXPECT_EQ(1, folder_.Count());
    int instants = 0;
    mine_.whenFree = [&](bool) {
        if (++instants == 3) CloseHandle(reader);
    };
    EXPECT_EQ(S_OK, mine_.Save(L"", "new"));
    EXPECT_EQ("new", TempFolder::Read(path_));
}

TEST_F(StoreFileTest, AnEditorWhoTakesTheFileBeforeItIsReplacedKeepsTheOldContent) {
    ASSERT_EQ(S_OK, Take(mine_, path_));
    mine_.whenFree = [&](bool) { EXPECT_EQ(S_OK, Take(other_, path_)); };
    EXPECT_EQ(STG_E_SHAREVIOLATION, mine_.Save(L"", "mine"));
    mine_.whenFree = nullptr;
    EXPECT_EQ("old", TempFolder::Read(path_));
    EXPECT_EQ(STG_E_SHAREVIOLATION, mine_.Save(L"", "mine")) << "as long as the other one has it";
    EXPECT_EQ(S_OK, other_.Save(L"", "theirs, longer"));
    other_ = StoreFile();
    EXPECT_EQ(STG_E_NOTCURRENT, mine_.Save(L"", "mine")) << "and what the other one wrote is not overwritten";
    EXPECT_EQ("theirs, longer", TempFolder::Read(path_));
    EXPECT_EQ(S_OK, mine_.Save(folder_ / L"b.trs", "mine"));
}

TEST_F(StoreFileTest, AnEditorWhoTakesTheFileAfterItWasReplacedFindsTheNewContent) {
    ASSERT_EQ(S_OK, Take(mine_, path_));
    mine_.whenFree = [&](bool replaced) {
        EXPECT_TRUE(!replaced || other_.Open(path_, false, bytes_) == S_OK);
    };
    EXPECT_EQ(STG_E_SHAREVIOLATION, mine_.Save(L"", "mine"));
    mine_.whenFree = nullptr;
    EXPECT_EQ("mine", bytes_);
    other_ = StoreFile();
    EXPECT_EQ(S_OK, mine_.Save(L"", "mine again")) << "it is this object's own content that stands there";
}

TEST_F(StoreFileTest, AFileThatAppearsDuringTheSaveIsNotOverwritten) {
    const std::wstring fresh = folder_ / L"new.trs", first = folder_ / L"first.trs";
    mine_.whenFree = [&](bool replaced) {
        EXPECT_TRUE(replaced || other_.Save(first, "theirs") == STG_E_SHAREVIOLATION);
    };
    EXPECT_EQ(S_OK, mine_.Save(first, "mine")) << "of two who save it first in the same instant, one does";
    EXPECT_EQ("mine", TempFolder::Read(first));
    mine_.whenFree = [&](bool replaced) {
        if (!replaced) TempFolder::Write(fresh, "theirs");
    };
    EXPECT_EQ(STG_E_FILEALREADYEXISTS, mine_.Save(fresh, "mine"));
    EXPECT_EQ("theirs", TempFolder::Read(fresh));
    EXPECT_EQ(3, folder_.Count());
}

TEST_F(StoreFileTest, AFullDiskIsItsOwnFailure) {
    if (GetProcAddress(GetModuleHandleW(L"ntdll"), "wine_get_version") == nullptr)
        GTEST_SKIP() << "needs a device that is always full";
    const HANDLE full =
        CreateFileW(L"Z:\\dev\\full", GENERIC_WRITE, FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, full);
    EXPECT_EQ(STG_E_MEDIUMFULL, WriteFlushed(full, "content"));
    CloseHandle(full);
}

TEST_F(StoreFileTest, PathsOfAnyLengthAndNameWork) {
    std::wstring folder = folder_.Path();
    for (int level = 0; level < 12; ++level) {
        folder += L"\\" + std::wstring(40, L'\x6f22') + L" \x5d0.d";
        ASSERT_TRUE(CreateDirectoryW(LongPath(folder).c_str(), nullptr)) << GetLastError();
    }
    for (const std::wstring& path : {folder + L"\\a.trs", folder_ / (std::wstring(80, L'\x6f22') + L".trs"),
                                     folder_ / L"\U0001F600 #%&.trs", LongPath(folder + L"\\b.trs")}) {
        StoreFile file;
        EXPECT_EQ(S_OK, file.Save(path, "new"));
        EXPECT_EQ(S_OK, file.Save(L"", "newer"));
        EXPECT_EQ(path, file.Path());
        EXPECT_EQ(STG_E_SHAREVIOLATION, Take(other_, path));
        EXPECT_EQ("newer", TempFolder::Read(path));
    }
    const std::wstring tail(300, L'a');
    EXPECT_EQ(L"\\\\?\\UNC\\server\\share\\" + tail, LongPath(L"\\\\server\\share\\" + tail));
    EXPECT_EQ(L"\\\\?\\C:\\" + tail, LongPath(L"C:/x/../" + tail));
}

}  // namespace
}  // namespace tovarin

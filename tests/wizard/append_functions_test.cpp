// New functions at the end of real library files, at Finish.
#include "wizard/AppendFunctions.h"

#include "harness/ProductTest.h"
#include "proof/ImportTable.h"

namespace recoveryui::test {
namespace {

class AppendFunctionsTest : public ProductTest {
protected:
    AppendFunctionsTest() {
        rack_.Put(L"RACK_FILE_LOCATOR", L"Tovarin.FileLocator")
            .Put(L"TovPluginMgrObject", L"Tovarin.PluginMgr");
    }
    std::vector<std::wstring> Append(std::initializer_list<std::wstring> paths) {
        wizard::NewFunctionList functions;
        for (const std::wstring& path : paths)
            functions.Add({path, path, L"F", L" Sub F '\u00e9\r\nEnd Sub\r\n"});
        ForgetCalls();
        return wizard::AppendNewFunctions(functions, rack_.Get());
    }
    // How often one of the host's objects was called so.
    size_t Times(const std::wstring& call) {
        const std::wstring calls = Calls();
        size_t times = 0;
        for (size_t at = calls.find(call); at != calls.npos; at = calls.find(call, at + 1)) ++times;
        return times;
    }

    static constexpr const char* kWritten = "'\r\nSub F '\xe9\r\nEnd Sub";
};

TEST_F(AppendFunctionsTest, WhatCannotBeOpenedIsSkippedAndWhatCannotBeLocatedEndsIt) {
    const auto first = MakeFile(L"first.vbs", "'"), second = MakeFile(L"second.vbs", "'"),
               held = MakeFile(L"held.vbs", "'");
    const HANDLE holder = CreateFileW(held.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    FailCall(L"PluginMgr", L"LibraryChanged");
    Append({folder_ / L"missing.vbs", held, first});
    CloseHandle(holder);
    EXPECT_EQ(Content(L"missing.vbs"), "no file");
    EXPECT_EQ(Content(L"held.vbs"), "'");
    EXPECT_EQ(Content(L"first.vbs"), kWritten) << "whatever the plug-in manager says";
    EXPECT_EQ(Times(L"LibraryChanged"), 1u) << "only of what was changed";

    FailCall(L"FileLocator", L"Locate", E_FAIL, 2);
    Append({second, held, first});
    EXPECT_EQ(Content(L"second.vbs") + Content(L"held.vbs") + Content(L"first.vbs"),
              std::string(kWritten) + "'" + kWritten);
    EXPECT_EQ(Times(L"\", 5, 0)"), 2u);
    EXPECT_EQ(Times(L"second.vbs\") -> S_OK"), 1u);
    rack_.Get()->RemoveObject(com::Bstr(L"RACK_FILE_LOCATOR").Get());
    Append({held});
    EXPECT_EQ(Content(L"held.vbs"), "'") << "no locator";
}

// A disk that takes one byte more.
BOOL WINAPI WriteOneByte(HANDLE file, LPCVOID bytes, DWORD, LPDWORD written, LPOVERLAPPED) {
    const auto write = reinterpret_cast<decltype(&WriteFile)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32"), "WriteFile")));
    return write(file, bytes, 1, written, nullptr);
}

TEST_F(AppendFunctionsTest, WhatCannotBeWrittenIsAsItWasAndIsTold) {
    for (const std::string original : {"'", "'\x1A\x1A"}) {  // the second as an old editor ended it
        const auto library = MakeFile(L"full.vbs", original);
        void* const before =
            proof::PutImport(GetModuleHandleW(nullptr), "WriteFile", reinterpret_cast<void*>(&WriteOneByte));
        ASSERT_NE(before, nullptr);
        const auto notWritten = Append({library});
        proof::PutImport(GetModuleHandleW(nullptr), "WriteFile", before);
        EXPECT_EQ(notWritten, std::vector<std::wstring>{library});
        EXPECT_EQ(Content(L"full.vbs"), original);
        EXPECT_EQ(Times(L"LibraryChanged"), 0u);
        EXPECT_TRUE(Append({library}).empty());
        EXPECT_EQ(Content(L"full.vbs"), kWritten);
    }
}

TEST_F(AppendFunctionsTest, FilesOfTheTestManagementRepositoryAreHandedBack) {
    wchar_t before[MAX_PATH] = L"";
    GetCurrentDirectoryW(MAX_PATH, before);
    SetCurrentDirectoryW(folder_.Path().c_str());
    MakeFile(L"[Ondrafel]a.vbs", "'");
    MakeFile(L"[BREVALON] b.vbs", "'");
    Append({L"[Ondrafel]a.vbs", L"[BREVALON] b.vbs"});
    SetCurrentDirectoryW(before);
    EXPECT_EQ(Content(L"[Ondrafel]a.vbs") + Content(L"[BREVALON] b.vbs"), std::string(kWritten) + kWritten);
    EXPECT_EQ(Times(L"HandBack(\"[Ondrafel]a.vbs\")") + Times(L"HandBack(\"[BREVALON] b.vbs\")"), 2u);
    EXPECT_EQ(Times(L"LibraryChanged"), 0u);
}

}  // namespace
}  // namespace recoveryui::test

// New functions at the end of real library files, at Finish.
#include "wizard/AppendFunctions.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "wizard/WizardTest.h"

namespace recoveryui::test {
namespace {

namespace fs = std::filesystem;

class AppendFunctionsTest : public ComTest {
protected:
    AppendFunctionsTest() : folder_(fs::temp_directory_path() / L"append functions test") {
        fs::create_directories(folder_);
        rack_.Put(L"RACK_FILE_LOCATOR", L"Tovarin.FileLocator")
            .Put(L"TovPluginMgrObject", L"Tovarin.PluginMgr");
    }
    ~AppendFunctionsTest() override { fs::remove_all(folder_); }

    std::wstring Path(const std::wstring& name) const { return (folder_ / name).wstring(); }
    std::wstring Make(const std::wstring& name) const {
        std::ofstream(folder_ / name, std::ios::binary) << "'";
        return Path(name);
    }
    std::string Content(const std::wstring& name) const {
        std::ostringstream text;
        text << std::ifstream(folder_ / name, std::ios::binary).rdbuf();
        return text.str();
    }
    void Append(std::initializer_list<std::wstring> paths) {
        wizard::NewFunctionList functions;
        for (const std::wstring& path : paths)
            functions.Add({path, path, L"F", L" Sub F '\u00e9\r\nEnd Sub\r\n"});
        ForgetCalls();
        wizard::AppendNewFunctions(functions, rack_.Get());
    }
    // How often one of the host's objects was called so.
    size_t Times(const std::wstring& call) {
        const std::wstring calls = Calls();
        size_t times = 0;
        for (size_t at = calls.find(call); at != calls.npos; at = calls.find(call, at + 1)) ++times;
        return times;
    }

    static constexpr const char* kWritten = "'\r\nSub F '\xe9\r\nEnd Sub";
    fs::path folder_;
    Rack rack_;
};

TEST_F(AppendFunctionsTest, WhatCannotBeOpenedIsSkippedAndNothingIsCreated) {
    Make(L"held.vbs");
    const HANDLE held =
        CreateFileW(Path(L"held.vbs").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    Append({Path(L"missing.vbs"), Path(L"held.vbs"), Make(L"last.vbs")});
    CloseHandle(held);
    EXPECT_FALSE(fs::exists(folder_ / L"missing.vbs"));
    EXPECT_EQ(Content(L"held.vbs"), "'");
    EXPECT_EQ(Content(L"last.vbs"), kWritten);
    EXPECT_EQ(Times(L"LibraryChanged"), 1u) << "only of what was changed";
    EXPECT_EQ(Times(L"last.vbs\") -> S_OK"), 1u);
}

TEST_F(AppendFunctionsTest, WhatCannotBeLocatedEndsIt) {
    const auto first = Make(L"first.vbs"), second = Make(L"second.vbs"), third = Make(L"third.vbs");
    FailCall(L"FileLocator", L"Locate", E_FAIL, 2);
    FailCall(L"PluginMgr", L"LibraryChanged");
    Append({first, second, third});
    EXPECT_EQ(Content(L"first.vbs"), kWritten) << "whatever the plug-in manager says";
    EXPECT_EQ(Content(L"second.vbs") + Content(L"third.vbs"), "''");
    EXPECT_EQ(Times(L"\", 5, 0)"), 2u);
    ClearFaults();
    rack_.Get()->RemoveObject(com::Bstr(L"RACK_FILE_LOCATOR").Get());
    Append({second});
    EXPECT_EQ(Content(L"second.vbs"), "'") << "no locator";
}

TEST_F(AppendFunctionsTest, FilesOfTheTestManagementRepositoryAreHandedBack) {
    const fs::path before = fs::current_path();
    fs::current_path(folder_);
    Make(L"[Ondrafel]a.vbs");
    Make(L"[BREVALON] b.vbs");
    Append({L"[Ondrafel]a.vbs", L"[BREVALON] b.vbs"});
    fs::current_path(before);
    EXPECT_EQ(Content(L"[Ondrafel]a.vbs") + Content(L"[BREVALON] b.vbs"), std::string(kWritten) + kWritten);
    EXPECT_EQ(Times(L"HandBack(\"[Ondrafel]a.vbs\")") + Times(L"HandBack(\"[BREVALON] b.vbs\")"), 2u);
    EXPECT_EQ(Times(L"LibraryChanged"), 0u);
}

}  // namespace
}  // namespace recoveryui::test

// The host's services as the component meets them.
#include <gtest/gtest.h>

#include <functional>

#include "HostInterfaces.h"
#include "com/SafeArray.h"
#include "harness/ComTest.h"
#include "host/temp_folder.h"
#include "objects/Describe.h"

namespace tovarin {
namespace {

using namespace recoveryui;
using com::Bstr;
using com::Variant;
using recoveryui::test::ComTest;

class HostServices : public ComTest {
protected:
    std::wstring MakeFolder(const wchar_t* name) {
        CreateDirectoryW((folder_ / name).c_str(), nullptr);
        return folder_ / name;
    }
    std::wstring MakeFile(const std::wstring& name, const std::string& bytes = {}) {
        TempFolder::Write(folder_ / name, bytes);
        return folder_ / name;
    }

    TempFolder folder_;
};

TEST_F(HostServices, ARecordingIsActiveUntilItIsSuspendedAndAgainAfterTheLastResume) {
    const auto manager = New<IRecordMgr>(L"Tovarin.RecordMgr");
    const auto control = com::Query<IRecordMgrControl>(manager.Get());
    const auto active = [&] {
        VARIANT_BOOL yes = VARIANT_FALSE;
        EXPECT_EQ(manager->IsActive(&yes), S_OK);
        return yes == VARIANT_TRUE;
    };
    EXPECT_FALSE(active());
    control->SetActive(VARIANT_TRUE);
    EXPECT_TRUE(active());
    EXPECT_EQ(manager->Suspend(), S_OK);
    EXPECT_EQ(manager->Suspend(), S_OK);
    EXPECT_EQ(manager->Resume(), S_OK);
    EXPECT_FALSE(active());
    EXPECT_EQ(manager->Resume(), S_OK);
    EXPECT_TRUE(active());
    EXPECT_EQ(manager->Resume(), S_FALSE);
    EXPECT_EQ(manager->IsActive(nullptr), E_POINTER);
    FailCall(L"RecordMgr", L"Suspend", E_ACCESSDENIED);
    EXPECT_EQ(manager->Suspend(), E_ACCESSDENIED);
    EXPECT_TRUE(active());
}

TEST_F(HostServices, TheLocatorLooksInTheTestsFolderThenInTheProducts) {
    const std::wstring test = MakeFolder(L"test"), product = MakeFolder(L"product"),
                       repository = MakeFolder(L"repository");
    MakeFile(L"test\\both.vbs");
    MakeFile(L"product\\both.vbs");
    MakeFile(L"product\\only.vbs");
    const auto locator = New<IFileLocator>(L"Tovarin.FileLocator");
    const auto folders = com::Query<IFileLocatorFolders>(locator.Get());
    folders->SetTestFolder(Bstr(test).Get());
    folders->SetProductFolder(Bstr(product).Get());
    folders->SetRepositoryFolder(Bstr(repository).Get());

    const auto locate = [&](const std::wstring& path, long flags = 5) {
        Bstr full;
        const HRESULT hr = locator->Locate(Bstr(path).Get(), flags, 0, full.Put());
        return hr == STG_E_FILENOTFOUND ? L"-" : hr == S_OK ? full.Text() : L"?";
    };
    EXPECT_EQ(locate(L"both.vbs"), test + L"\\both.vbs");
    EXPECT_EQ(locate(L"both.vbs", 4), product + L"\\both.vbs");
    EXPECT_EQ(locate(L".\\x\\..\\only.vbs"), product + L"\\only.vbs");
    EXPECT_EQ(locate(L"only.vbs", 1), L"-");
    EXPECT_EQ(locate(L"none.vbs"), L"-");
    EXPECT_EQ(locate(L"C:\\none.vbs"), L"C:\\none.vbs");
    EXPECT_EQ(locate(L"[Ondrafel] a\\b.vbs"), repository + L"\\Ondrafel\\a\\b.vbs");
    EXPECT_EQ(locate(L"[Ondrafel] ..\\..\\b.vbs"), L"-");
    EXPECT_EQ(locate(L""), L"?");

    const auto shorten = [&](const std::wstring& path) {
        Bstr stored;
        EXPECT_EQ(locator->MakeRelative(Bstr(path).Get(), stored.Put()), S_OK);
        return stored.Text();
    };
    std::wstring loud = test + L"\\A\\b.vbs";
    CharUpperW(loud.data());
    EXPECT_EQ(shorten(loud), L"A\\B.VBS");
    EXPECT_EQ(shorten(product + L"\\only.vbs"), product + L"\\only.vbs");
    EXPECT_EQ(shorten(repository + L"\\brevalon\\b.vbs"), L"[Brevalon] b.vbs");
    EXPECT_EQ(shorten(L"[Brevalon] b.vbs"), L"[Brevalon] b.vbs");

    ForgetCalls();
    EXPECT_EQ(locator->HandBack(Bstr(repository + L"\\Ondrafel\\b.vbs").Get()), S_OK);
    EXPECT_EQ(locator->HandBack(Bstr(L"[Brevalon] b.vbs").Get()), S_OK);
    EXPECT_EQ(locator->HandBack(Bstr(test + L"\\both.vbs").Get()), E_INVALIDARG);
    EXPECT_NE(Calls().find(L"FileLocator.HandBack(\"[Brevalon] b.vbs\") -> S_OK"), std::wstring::npos);
    folders->SetRepositoryFolder(nullptr);
    EXPECT_EQ(locate(L"[Brevalon] b.vbs"), L"[Brevalon] b.vbs");

    const auto manager = New<IPluginMgr>(L"Tovarin.PluginMgr");
    com::Ptr<IFileLocator> offered;
    EXPECT_EQ(manager->GetFileLocator(offered.GetAddressOf()), E_FAIL);
    com::Query<IPluginMgrControl>(manager.Get())->SetFileLocator(locator.Get());
    EXPECT_EQ(manager->GetFileLocator(offered.GetAddressOf()), S_OK);
    EXPECT_EQ(offered, locator);
    EXPECT_EQ(manager->LibraryChanged(Bstr(L"C:\\lib.vbs").Get()), S_OK);
}

// The options of a test, with defaults of the test run's own.
class HostOptions : public HostServices {
protected:
    HostOptions() {
        file_->SetSettingsRegistryPath(Bstr(kKey).Get());
        Variant item;
        EXPECT_EQ(options_->GetItem(Variant(L"ReplayRecovery").Get(), item.Put()), S_OK);
        EXPECT_EQ(item.Type(), VT_DISPATCH);
        recovery_ = com::Query<ITestOptions>(item.Object());
    }
    ~HostOptions() { RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\TovarinTest"); }

    Variant Get(const wchar_t* name, const wchar_t* section = L"") {
        Variant value;
        const HRESULT hr =
            recovery_->GetOptionValue(Bstr(section).Get(), Bstr(name).Get(), value.Put(), 0, 0);
        EXPECT_EQ(hr, value.Type() == VT_EMPTY ? DISP_E_MEMBERNOTFOUND : S_OK);
        return value;
    }
    HRESULT Set(const wchar_t* name, const Variant& value, bool defaults, const wchar_t* section = L"") {
        return recovery_->SetOptionValue(Bstr(section).Get(), Bstr(name).Get(), value.Get(), defaults,
                                         !defaults, 0, 3, 0);
    }
    bool Modified() {
        VARIANT_BOOL modified = VARIANT_FALSE;
        EXPECT_EQ(file_->IsModified(&modified), S_OK);
        return modified == VARIANT_TRUE;
    }

    static constexpr const wchar_t* kKey = L"Software\\TovarinTest\\Settings";
    com::Ptr<ITestOptions> options_ = New<ITestOptions>(L"Tovarin.TestOptions");
    com::Ptr<ITestFile> file_ = com::Query<ITestFile>(options_.Get());
    com::Ptr<ITestOptions> recovery_;
};

TEST_F(HostOptions, ATestKeepsItsOwnValuesAndANewOneStartsFromTheDefaults) {
    EXPECT_EQ(Get(L"Enabled").Type(), VT_EMPTY);
    EXPECT_EQ(Set(L"RecoveryScenarios", Variant(L"mine"), false), S_OK);
    EXPECT_EQ(Set(L"Enabled", Variant(0L), false), S_OK);
    EXPECT_EQ(Set(L"RecoveryDefScenarios", Variant(L"ours"), true), S_OK);
    EXPECT_EQ(Set(L"Enabled", Variant(1L), true), S_OK);
    EXPECT_EQ(Set(L"RecoveryManagerMRU", Variant(L"a;b"), true), S_OK);
    EXPECT_EQ(Get(L"RecoveryScenarios").Text(), L"mine");
    EXPECT_EQ(Get(L"Enabled").Get().lVal, 0);
    EXPECT_EQ(Get(L"RecoveryDefScenarios").Text(), L"ours");
    EXPECT_EQ(Get(L"RecoveryManagerMRU").Text(), L"a;b");

    EXPECT_TRUE(Modified());
    const std::wstring path = MakeFile(L"my.test");
    EXPECT_EQ(file_->OpenTest(Bstr(path).Get()), STG_E_DOCFILECORRUPT);
    EXPECT_EQ(file_->SaveTest(nullptr), E_INVALIDARG);
    EXPECT_EQ(file_->SaveTest(Bstr(folder_ / L"none\\my.test").Get()), STG_E_PATHNOTFOUND);
    EXPECT_TRUE(Modified());
    EXPECT_EQ(file_->SaveTest(Bstr(path).Get()), S_OK);
    EXPECT_FALSE(Modified());

    EXPECT_EQ(file_->NewTest(), S_OK);
    EXPECT_EQ(Get(L"RecoveryScenarios").Text(), L"ours");
    EXPECT_EQ(Get(L"Enabled").Get().lVal, 1);
    EXPECT_EQ(Set(L"Enabled", Variant(1L), false), S_OK);
    EXPECT_FALSE(Modified());
    EXPECT_EQ(file_->OpenTest(Bstr(folder_ / L"none.test").Get()), STG_E_FILENOTFOUND);
    EXPECT_EQ(file_->OpenTest(Bstr(path).Get()), S_OK);
    EXPECT_EQ(Get(L"RecoveryScenarios").Text(), L"mine");
    EXPECT_EQ(Get(L"Enabled").Get().lVal, 0);
}

TEST_F(HostOptions, DefaultsAreRegistryValuesThatForeignHandsMaySpoil) {
    Bstr path;
    EXPECT_EQ(options_->GetSettingsRegistryPath(path.Put()), S_OK);
    EXPECT_EQ(path.View(), kKey);
    HKEY key = nullptr;
    ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, (path.Text() + L"\\ReplayRecovery").c_str(), 0, KEY_ALL_ACCESS,
                            &key),
              ERROR_SUCCESS);
    const BYTE odd[] = {'a', 0, 'b', 0, 'c'};
    const struct {
        DWORD type;
        DWORD size;
        const wchar_t* text;  // null: counts as no value
    } cases[] = {{REG_SZ, 4, L"ab"},
                 {REG_SZ, 5, L"ab"},
                 {REG_SZ, 0, L""},
                 {REG_BINARY, 4, nullptr},
                 {REG_DWORD, 3, nullptr}};
    for (const auto& [type, size, text] : cases) {
        ASSERT_EQ(RegSetValueExW(key, L"RecoveryDefScenarios", 0, type, odd, size), ERROR_SUCCESS);
        const Variant value = Get(L"RecoveryDefScenarios");
        EXPECT_EQ(value.Type(), text ? VT_BSTR : VT_EMPTY) << type << " " << size;
        EXPECT_EQ(value.Text(), text ? text : L"");
        EXPECT_EQ(file_->NewTest(), S_OK);
    }
    EXPECT_EQ(Set(L"RecoveryDefScenarios", Variant(L"x"), true), S_OK);
    EXPECT_EQ(Set(L"Enabled", Variant(1L), true), S_OK);
    DWORD type = 0, size = 0;
    EXPECT_EQ(RegQueryValueExW(key, L"Enabled", nullptr, &type, nullptr, &size), ERROR_SUCCESS);
    EXPECT_EQ(type, REG_DWORD);
    EXPECT_EQ(RegQueryValueExW(key, L"RecoveryDefScenarios", nullptr, &type, nullptr, &size), ERROR_SUCCESS);
    EXPECT_EQ(type, REG_SZ);
    EXPECT_EQ(size, 4u);
    RegCloseKey(key);
}

TEST_F(HostOptions, GlobalVariablesAreSharedAndNeverStored) {
    EXPECT_EQ(Set(L"g_bDirty", Variant(true), false, L"GlobalVariables"), S_OK);
    Variant value;
    EXPECT_EQ(
        options_->GetOptionValue(Bstr(L"GlobalVariables").Get(), Bstr(L"g_bDirty").Get(), value.Put(), 0, 0),
        S_OK);
    EXPECT_EQ(value.Type(), VT_BOOL);
    EXPECT_FALSE(Modified());
    EXPECT_EQ(Set(L"Enabled", Variant(static_cast<IUnknown*>(nullptr)), false), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(Set(L"", Variant(1L), false), E_INVALIDARG);
    EXPECT_EQ(options_->GetItem(Variant(L"Other").Get(), value.Put()), E_INVALIDARG);
    FailCall(L"TestOptions.ReplayRecovery", L"GetOptionValue", E_FAIL);
    EXPECT_EQ(recovery_->GetOptionValue(nullptr, Bstr(L"Enabled").Get(), value.Put(), 0, 0), E_FAIL);
}

// Names of the functions, or the code for a library that cannot be opened.
class HostLibraries : public HostServices {
protected:
    std::wstring Names(const std::wstring& path) {
        const HRESULT hr = parser_->Open(Bstr(path).Get());
        com::CVtlSafeArray<VARIANT> list;
        if (FAILED(hr)) return DescribeResult(hr);
        EXPECT_EQ(parser_->GetFunctions(list.Put()), S_OK);
        std::wstring names;
        for (LONG index = 0; index <= list.UpperBound(); ++index) {
            Variant function;
            Bstr name;
            EXPECT_EQ(list.GetElement(index, &function), S_OK);
            EXPECT_EQ(com::Query<IScriptFunction>(function.Object())->GetName(name.Put()), S_OK);
            names += name.Text() + L";";
        }
        return names;
    }
    static std::string Wide(std::wstring_view text, bool swap) {
        std::string bytes;
        for (const wchar_t unit : text) {
            const char low = static_cast<char>(unit & 0xFF), high = static_cast<char>(unit >> 8);
            bytes += swap ? high : low;
            bytes += swap ? low : high;
        }
        return bytes;
    }

    com::Ptr<IVBScriptParser> parser_ = New<IVBScriptParser>(L"Vantrel.VBScriptParser");
};

TEST_F(HostLibraries, ALibraryIsReadInEveryUsualEncoding) {
    const std::wstring text = L"\xFEFFSub Gr\xFC\xDF()\r\nEnd Sub";
    const std::pair<std::string, std::wstring> cases[] = {
        {"", L""},
        {"Sub Gr\xFC\xDF()\r\nEnd Sub", L"Gr\xFC\xDF;"},
        {"\xEF\xBB\xBFSub Gr\xC3\xBC\xC3\x9F()\r\nEnd Sub", L"Gr\xFC\xDF;"},
        {Wide(text, false), L"Gr\xFC\xDF;"},
        {Wide(text, true), L"Gr\xFC\xDF;"},
        {"\xEF\xBB\xBF' \xFF", L"E_INVALIDARG"},
        {Wide(text, false) + "x", L"E_INVALIDARG"},
        {std::string("Sub A\0\nEnd Sub", 14), L"E_INVALIDARG"},
        {"Sub A", L"E_INVALIDARG"},
    };
    for (const auto& [bytes, names] : cases) {
        EXPECT_EQ(Names(MakeFile(L"lib.vbs", bytes)), names) << bytes;
        EXPECT_EQ(parser_->Close(), S_OK);
    }
}

TEST_F(HostLibraries, AnOpenLibraryCanBeAppendedToAndAMissingOneIsNotFound) {
    com::CVtlSafeArray<VARIANT> list;
    EXPECT_EQ(parser_->GetFunctions(list.Put()), E_UNEXPECTED);
    const std::wstring path = MakeFile(L"lib.vbs", "Sub A\nEnd Sub\nFunction B: End Function");
    EXPECT_EQ(Names(path), L"A;B;");
    const HANDLE file =
        CreateFileW(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(file, INVALID_HANDLE_VALUE);
    CloseHandle(file);
    EXPECT_EQ(Names(folder_ / L"none.vbs"), L"STG_E_FILENOTFOUND");
    EXPECT_EQ(Names(folder_ / L"none\\lib.vbs"), L"STG_E_PATHNOTFOUND");
    EXPECT_EQ(parser_->GetFunctions(list.Put()), E_UNEXPECTED);

    // A function outlives its library.
    EXPECT_EQ(parser_->Open(Bstr(path).Get()), S_OK);
    EXPECT_EQ(parser_->GetFunctions(list.Put()), S_OK);
    EXPECT_EQ(parser_->Close(), S_OK);
    Variant function;
    Bstr text;
    EXPECT_EQ(list.GetElement(1, &function), S_OK);
    EXPECT_EQ(com::Query<IScriptFunction>(function.Object())->GetText(text.Put()), S_OK);
    EXPECT_EQ(text.View(), L"Function B: End Function");
    const HANDLE locked =
        CreateFileW(path.c_str(), GENERIC_READ | DELETE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(locked, INVALID_HANDLE_VALUE) << "a closed library is still held";
    EXPECT_EQ(Names(path), L"STG_E_SHAREVIOLATION");
    CloseHandle(locked);
}

TEST_F(HostServices, TheApplicationAnswersAsTheHostSaid) {
    const auto application = New<IHostApplication>(L"Tovarin.HostApplication");
    VARIANT_BOOL yes = VARIANT_TRUE;
    EXPECT_EQ(application->HostModeQuery(&yes), S_OK);
    EXPECT_EQ(yes, VARIANT_FALSE);
    com::Query<IHostApplicationControl>(application.Get())->SetHostMode(VARIANT_TRUE);
    EXPECT_EQ(application->HostModeQuery(&yes), S_OK);
    EXPECT_EQ(yes, VARIANT_TRUE);
}

}  // namespace
}  // namespace tovarin

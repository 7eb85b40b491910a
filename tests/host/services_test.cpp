// The host's services as the component meets them.
#include <gtest/gtest.h>

#include <functional>

#include "HostInterfaces.h"
#include "com/Automation.h"
#include "harness/ComTest.h"

namespace tovarin {
namespace {

using namespace recoveryui;
using com::Bstr;
using com::Variant;
using recoveryui::test::ComTest;
using recoveryui::test::User;
using recoveryui::test::UserScreen;

// A folder that is empty at first and gone afterwards.
class ScratchFolder {
public:
    ScratchFolder() {
        std::wstring temp(MAX_PATH + 1, L'\0');
        temp.resize(GetTempPathW(static_cast<DWORD>(temp.size()), temp.data()));
        path_ = temp + L"services-" + std::to_wstring(GetCurrentProcessId());
        CreateDirectoryW(path_.c_str(), nullptr);
    }
    ~ScratchFolder() {
        for (const std::wstring& file : files_) DeleteFileW(file.c_str());
        for (auto folder = folders_.rbegin(); folder != folders_.rend(); ++folder)
            RemoveDirectoryW(folder->c_str());
        RemoveDirectoryW(path_.c_str());
    }
    std::wstring At(const std::wstring& name) const { return path_ + L"\\" + name; }
    std::wstring Folder(const std::wstring& name) {
        folders_.push_back(At(name));
        CreateDirectoryW(folders_.back().c_str(), nullptr);
        return folders_.back();
    }
    std::wstring File(const std::wstring& name, std::string_view bytes = {}) {
        files_.push_back(At(name));
        const HANDLE file =
            CreateFileW(files_.back().c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        DWORD written = 0;
        WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
        CloseHandle(file);
        return files_.back();
    }

private:
    std::wstring path_;
    std::vector<std::wstring> files_, folders_;
};

class HostServices : public ComTest {
protected:
    ScratchFolder folder_;
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
    const std::wstring test = folder_.Folder(L"test"), product = folder_.Folder(L"product"),
                       repository = folder_.Folder(L"repository");
    folder_.File(L"test\\both.vbs");
    folder_.File(L"product\\both.vbs");
    folder_.File(L"product\\only.vbs");
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
    const std::wstring path = folder_.File(L"my.test");
    EXPECT_EQ(file_->OpenTest(Bstr(path).Get()), STG_E_DOCFILECORRUPT);
    EXPECT_EQ(file_->SaveTest(nullptr), E_INVALIDARG);
    EXPECT_EQ(file_->SaveTest(Bstr(folder_.At(L"none\\my.test")).Get()), STG_E_PATHNOTFOUND);
    EXPECT_TRUE(Modified());
    EXPECT_EQ(file_->SaveTest(Bstr(path).Get()), S_OK);
    EXPECT_FALSE(Modified());

    EXPECT_EQ(file_->NewTest(), S_OK);
    EXPECT_EQ(Get(L"RecoveryScenarios").Text(), L"ours");
    EXPECT_EQ(Get(L"Enabled").Get().lVal, 1);
    EXPECT_EQ(Set(L"Enabled", Variant(1L), false), S_OK);
    EXPECT_FALSE(Modified());
    EXPECT_EQ(file_->OpenTest(Bstr(folder_.At(L"none.test")).Get()), STG_E_FILENOTFOUND);
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

// The dialog's own controls, in both versions of the platform's dialog.
constexpr int kNameEdit = 0x480;

class HostFileDialog : public HostServices {
protected:
    void Put(const wchar_t* name, const Variant& value) {
        EXPECT_EQ(com::PutProperty(dialog_.Get(), name, value), S_OK);
    }
    std::wstring DoModal(bool open, User::Script script) {
        Put(L"FileFilter", Variant(L"Scenario Files (*.trs)|*.trs|All Files (*.*)|*.*||"));
        Put(L"SetDialogCaption4FileSystem", Variant(L"Pick One"));
        const User user(std::move(script));
        const Variant mode(open);
        Variant path;
        EXPECT_EQ(com::CallMethod(dialog_.Get(), L"DoModal", {&mode, 1}, &path), S_OK);
        EXPECT_EQ(path.Type(), VT_BSTR);
        return std::wstring(path.Text());
    }
    static void Give(UserScreen& screen, const std::wstring& path) {
        const HWND window = screen.WaitForWindow(L"Pick One");
        const HWND edit = FindEdit(window);
        screen.Do([&] { SetWindowTextW(edit, path.c_str()); });
        PressOwn(screen, window, IDOK);
    }
    // The dialog's own button: its lists use the same numbers.
    static void PressOwn(UserScreen& screen, HWND window, int id) {
        screen.Do([&] { PostMessageW(GetDlgItem(window, id), BM_CLICK, 0, 0); });
    }
    static HWND FindEdit(HWND window) {
        HWND edit = GetDlgItem(window, kNameEdit);
        if (!edit)
            edit = FindWindowExW(FindWindowExW(GetDlgItem(window, 0x47C), nullptr, L"ComboBox", nullptr),
                                 nullptr, L"Edit", nullptr);
        return edit;
    }

    com::Ptr<IDispatch> dialog_ = New<IDispatch>(L"Vantrel.TovCommonFileDialog");
};

TEST_F(HostFileDialog, AFileIsOpenedOrTheDialogCancelled) {
    const std::wstring file = folder_.File(L"a.trs");
    EXPECT_EQ(DoModal(true, [&](UserScreen& screen) { Give(screen, file); }), file);
    EXPECT_EQ(
        DoModal(true,
                [&](UserScreen& screen) { PressOwn(screen, screen.WaitForWindow(L"Pick One"), IDCANCEL); }),
        L"");
    Put(L"SetCheckAttachmentExistence", Variant(true));
    EXPECT_EQ(DoModal(true,
                      [&](UserScreen& screen) {
                          Give(screen, folder_.At(L"none.trs"));
                          screen.Press(screen.WaitForWindow(nullptr), IDOK);
                          PressOwn(screen, screen.WaitForWindow(L"Pick One"), IDCANCEL);
                      }),
              L"");
}

TEST_F(HostFileDialog, SavingNeverReplacesAFileUnasked) {
    const std::wstring file = folder_.File(L"a.trs");
    EXPECT_EQ(DoModal(false, [&](UserScreen& screen) { Give(screen, folder_.At(L"new.trs")); }),
              folder_.At(L"new.trs"));
    EXPECT_EQ(DoModal(false,
                      [&](UserScreen& screen) {
                          Give(screen, file);
                          screen.AnswerBox(IDYES, L"Pick One");
                      }),
              file);
    const bool dotted = folder_.At(L"").find(L'.') != std::wstring::npos;
    if (dotted) GTEST_SKIP() << "the folder's own name holds a dot";
    // The name will be completed to that of an existing file.
    EXPECT_EQ(DoModal(false,
                      [&](UserScreen& screen) {
                          Give(screen, folder_.At(L"a"));
                          EXPECT_EQ(screen.AnswerBox(IDNO, L"Pick One"),
                                    file + L"\nThis file already exists.\nDo you want to replace it?");
                          Give(screen, folder_.At(L"b"));
                      }),
              folder_.At(L"b"));
}

TEST_F(HostFileDialog, ItsMembersAreKnownByName) {
    Variant value;
    Put(L"filefilter", Variant(L"x|*.x||"));
    EXPECT_EQ(com::GetProperty(dialog_.Get(), L"FileFilter", &value), S_OK);
    EXPECT_EQ(value.Text(), L"x|*.x||");
    Put(L"CreateAttachmnet", Variant(1L));
    EXPECT_EQ(com::GetProperty(dialog_.Get(), L"CreateAttachmnet", &value), S_OK);
    EXPECT_EQ(value.Get().boolVal, VARIANT_TRUE);
    EXPECT_EQ(com::PutProperty(dialog_.Get(), L"CreateAttachment", Variant(true)), DISP_E_UNKNOWNNAME);
    FailCall(L"TovCommonFileDialog", L"DoModal", E_FAIL);
    const Variant open(true);
    EXPECT_EQ(com::CallMethod(dialog_.Get(), L"DoModal", {&open, 1}, &value), E_FAIL);
    EXPECT_EQ(value.Type(), VT_EMPTY);
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

// The options of a test, with defaults of the test run's own in the registry, under HKEY_CURRENT_USER.
#pragma once

#include <string>

#include "HostInterfaces.h"
#include "com/Create.h"
#include "com/Variant.h"
#include "harness/ComTest.h"
#include "harness/ProcessWindows.h"

namespace recoveryui::test {

inline constexpr wchar_t kSettingsPath[] = L"Software\\RecoveryUI Tests\\Settings";

class TestSettings {
public:
    explicit TestSettings(std::wstring path = kSettingsPath) : path_(std::move(path)) {
        RegDeleteTreeW(HKEY_CURRENT_USER, path_.c_str());
        EXPECT_EQ(com::Create(L"Tovarin.TestOptions", options_), S_OK);
        file_ = com::Query<ITestFile>(options_.Get());
        EXPECT_EQ(file_->SetSettingsRegistryPath(com::Bstr(path_).Get()), S_OK);
        com::Variant branch;
        EXPECT_EQ(options_->GetItem(com::Variant(L"ReplayRecovery").Get(), branch.Put()), S_OK);
        branch_ = com::Query<ITestOptions>(branch.Object());
    }
    ~TestSettings() { RegDeleteTreeW(HKEY_CURRENT_USER, path_.c_str()); }
    TestSettings(const TestSettings&) = delete;
    TestSettings& operator=(const TestSettings&) = delete;

    ITestOptions* Get() const { return options_.Get(); }
    ITestFile* File() const { return file_.Get(); }

    // Recovery values of the open test or the user's defaults. Reading gives "-" for none.
    std::wstring Stored(const wchar_t* name) const {
        com::Variant value;
        if (FAILED(Read(branch_, L"", name, value))) return L"-";
        return value.Type() == VT_I4 ? std::to_wstring(value.Get().lVal) : std::wstring(value.Text());
    }
    void Store(const wchar_t* name, const com::Variant& value, bool isDefault = false) const {
        Write(branch_, L"", name, value, isDefault);
    }
    // The values that the pages of a settings frame share.
    com::Variant Global(const wchar_t* name) const {
        com::Variant value;
        Read(options_, L"GlobalVariables", name, value);
        return value;
    }
    void SetGlobal(const wchar_t* name, const com::Variant& value) const {
        Write(options_, L"GlobalVariables", name, value, false);
    }

private:
    using Options = com::Ptr<ITestOptions>;
    static HRESULT Read(const Options& from, const wchar_t* section, const wchar_t* name,
                        com::Variant& value) {
        return from->GetOptionValue(com::Bstr(section).Get(), com::Bstr(name).Get(), value.Put(), 0, 0);
    }
    static void Write(const Options& to, const wchar_t* section, const wchar_t* name,
                      const com::Variant& value, bool isDefault) {
        EXPECT_EQ(to->SetOptionValue(com::Bstr(section).Get(), com::Bstr(name).Get(), value.Get(), isDefault,
                                     !isDefault, 0, 3, 0),
                  S_OK);
    }

    std::wstring path_;
    Options options_, branch_;  // the branch is "ReplayRecovery"
    com::Ptr<ITestFile> file_;
};

}  // namespace recoveryui::test

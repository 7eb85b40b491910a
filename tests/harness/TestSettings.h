// The options of a test, with defaults of the test run's own in the registry, under HKEY_CURRENT_USER.
#pragma once

#include <string>

#include "HostInterfaces.h"
#include "com/Variant.h"
#include "harness/ComTest.h"
#include "harness/ProcessWindows.h"

namespace recoveryui::test {

inline constexpr wchar_t kSettingsPath[] = L"Software\\RecoveryUI Tests\\Settings";

class TestSettings {
public:
    explicit TestSettings(std::wstring path = kSettingsPath);
    ~TestSettings();
    TestSettings(const TestSettings&) = delete;
    TestSettings& operator=(const TestSettings&) = delete;

    ITestOptions* Get() const { return options_.Get(); }
    ITestFile* File() const { return file_.Get(); }

    // Recovery values of the open test or the user's defaults. Reading gives "-" for none.
    std::wstring Stored(const wchar_t* name) const;
    void Store(const wchar_t* name, const com::Variant& value, bool isDefault = false) const;
    // The values that the pages of a settings frame share.
    com::Variant Global(const wchar_t* name) const;
    void SetGlobal(const wchar_t* name, const com::Variant& value) const;

private:
    std::wstring path_;
    com::Ptr<ITestOptions> options_;
    com::Ptr<ITestFile> file_;
    com::Ptr<ITestOptions> branch_;  // "ReplayRecovery"
};

}  // namespace recoveryui::test

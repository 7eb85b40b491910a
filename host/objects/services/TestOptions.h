// The options of the open test, and the user's defaults for new tests.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "HostInterfaces.h"
#include "com/Variant.h"
#include "objects/HostObject.h"
#include "objects/services/NamedMembers.h"
#include "objects/services/UserDefaults.h"

namespace tovarin {

// What the options object and its branches share.
struct OptionValues {
    Settings test;
    UserDefaults defaults{L"Software\\Tovarin\\Settings"};
    // The section "GlobalVariables": the settings frame's own, of any type, never stored.
    std::map<std::wstring, com::Variant, std::less<>> globals;
    bool modified = false;
};

// The two operations on values, for the options object itself and for its branch. Recovery values are
// read from the test, the user's own lists from the defaults.
template <class Derived>
class OptionBranch : public ITestOptions {
public:
    static bool Answers(REFIID iid) noexcept { return IsEqualIID(iid, __uuidof(ITestOptions)); }

    // DISP_E_MEMBERNOTFOUND for a value that is not there.
    HRESULT STDMETHODCALLTYPE GetOptionValue(BSTR section, BSTR name, VARIANT* value, long reserved1,
                                             long reserved2) noexcept override;
    // DISP_E_TYPEMISMATCH for anything but texts and numbers, except in "GlobalVariables".
    HRESULT STDMETHODCALLTYPE SetOptionValue(BSTR section, BSTR name, VARIANT value, long toDefaults,
                                             long toTest, long reserved1, long reserved2,
                                             long reserved3) noexcept override;
    HRESULT STDMETHODCALLTYPE GetSettingsRegistryPath(BSTR* path) noexcept override;

protected:
    ~OptionBranch() = default;

    std::shared_ptr<OptionValues> values_;
};

// The item "ReplayRecovery". It is an automation object, without members, so that it fits into a VARIANT.
class RecoveryOptions final
    : public HostObject<RecoveryOptions, OptionBranch<RecoveryOptions>, NamedMembers> {
public:
    static constexpr const wchar_t* kName = L"TestOptions.ReplayRecovery";
    static constexpr const wchar_t* kBranch = L"ReplayRecovery";

    explicit RecoveryOptions(std::shared_ptr<OptionValues> values) { values_ = std::move(values); }

    // It has no items of its own.
    HRESULT STDMETHODCALLTYPE GetItem(VARIANT item, VARIANT* found) noexcept override;

private:
    DISPID FindMember(const wchar_t*) const noexcept override { return DISPID_UNKNOWN; }
    HRESULT InvokeMember(DISPID, WORD, DISPPARAMS&, VARIANT*) noexcept override {
        return DISP_E_MEMBERNOTFOUND;
    }
};

class TestOptions final : public HostObject<TestOptions, OptionBranch<TestOptions>, ITestFile> {
public:
    static constexpr const wchar_t* kName = L"TestOptions";
    static constexpr const wchar_t* kProgId = L"Tovarin.TestOptions";
    static constexpr const wchar_t* kBranch = L"";

    TestOptions() { values_ = std::make_shared<OptionValues>(); }

    // E_INVALIDARG for any name but "ReplayRecovery".
    HRESULT STDMETHODCALLTYPE GetItem(VARIANT item, VARIANT* found) noexcept override;

    HRESULT STDMETHODCALLTYPE SetSettingsRegistryPath(BSTR path) noexcept override;
    HRESULT STDMETHODCALLTYPE NewTest() noexcept override;
    HRESULT STDMETHODCALLTYPE OpenTest(BSTR path) noexcept override;
    HRESULT STDMETHODCALLTYPE SaveTest(BSTR path) noexcept override;
    HRESULT STDMETHODCALLTYPE GetTestPath(BSTR* path) noexcept override;
    HRESULT STDMETHODCALLTYPE IsModified(VARIANT_BOOL* modified) noexcept override;

private:
    std::wstring path_;
    std::string text_;  // of the file, for what stands beside the settings
};

}  // namespace tovarin

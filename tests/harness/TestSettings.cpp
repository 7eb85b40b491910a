#include "harness/TestSettings.h"

#include "com/Create.h"

namespace recoveryui::test {

using com::Bstr;
using com::Variant;

TestSettings::TestSettings(std::wstring path) : path_(std::move(path)) {
    RegDeleteTreeW(HKEY_CURRENT_USER, path_.c_str());
    EXPECT_EQ(com::Create(L"Tovarin.TestOptions", options_), S_OK);
    file_ = com::Query<ITestFile>(options_.Get());
    EXPECT_EQ(file_->SetSettingsRegistryPath(Bstr(path_).Get()), S_OK);
    Variant branch;
    EXPECT_EQ(options_->GetItem(Variant(L"ReplayRecovery").Get(), branch.Put()), S_OK);
    branch_ = com::Query<ITestOptions>(branch.Object());
}

TestSettings::~TestSettings() {
    RegDeleteTreeW(HKEY_CURRENT_USER, path_.c_str());
}

std::wstring TestSettings::Stored(const wchar_t* name) const {
    Variant value;
    if (FAILED(branch_->GetOptionValue(Bstr(L"").Get(), Bstr(name).Get(), value.Put(), 0, 0))) return L"-";
    return value.Type() == VT_I4 ? std::to_wstring(value.Get().lVal) : std::wstring(value.Text());
}

void TestSettings::Store(const wchar_t* name, const Variant& value, bool isDefault) const {
    EXPECT_EQ(branch_->SetOptionValue(Bstr(L"").Get(), Bstr(name).Get(), value.Get(), isDefault, !isDefault,
                                      0, 3, 0),
              S_OK);
}

Variant TestSettings::Global(const wchar_t* name) const {
    Variant value;
    options_->GetOptionValue(Bstr(L"GlobalVariables").Get(), Bstr(name).Get(), value.Put(), 0, 0);
    return value;
}

void TestSettings::SetGlobal(const wchar_t* name, const Variant& value) const {
    EXPECT_EQ(options_->SetOptionValue(Bstr(L"GlobalVariables").Get(), Bstr(name).Get(), value.Get(), 0, 1, 0,
                                       3, 0),
              S_OK);
}

}  // namespace recoveryui::test

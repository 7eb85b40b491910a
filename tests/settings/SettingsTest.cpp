#include "settings/SettingsTest.h"

#include <commctrl.h>

#include <algorithm>

#include "com/Create.h"
#include "com/SafeArray.h"

namespace recoveryui::test {
namespace {

constexpr const wchar_t* kKey = L"Software\\RecoveryUI Tests\\Settings";

std::wstring TempFolder() {
    std::wstring path(MAX_PATH + 1, L'\0');
    path.resize(GetTempPathW(static_cast<DWORD>(path.size()), path.data()));
    path += L"settings-" + std::to_wstring(GetCurrentProcessId());
    CreateDirectoryW(path.c_str(), nullptr);
    return path;
}

}  // namespace

SettingsTest::SettingsTest() : options_(New<ITestOptions>(L"Tovarin.TestOptions")), folder_(TempFolder()) {
    RegDeleteTreeW(HKEY_CURRENT_USER, kKey);
    EXPECT_EQ(com::Query<ITestFile>(options_.Get())->SetSettingsRegistryPath(com::Bstr(kKey).Get()), S_OK);
    com::Variant branch;
    EXPECT_EQ(options_->GetItem(com::Variant(L"ReplayRecovery").Get(), branch.Put()), S_OK);
    branch_ = com::Query<ITestOptions>(branch.Object());
    const auto locator = New<IFileLocator>(L"Tovarin.FileLocator");
    EXPECT_EQ(com::Query<IFileLocatorFolders>(locator.Get())->SetTestFolder(com::Bstr(folder_).Get()), S_OK);
    rack_.Put(L"TestOptions", options_.Get()).Put(L"RACK_FILE_LOCATOR", locator.Get());
}

SettingsTest::~SettingsTest() {
    for (const std::wstring& file : files_) DeleteFileW(file.c_str());
    RemoveDirectoryW(folder_.c_str());
    RegDeleteTreeW(HKEY_CURRENT_USER, kKey);
}

std::wstring SettingsTest::MakeFile(const std::wstring& name, const std::vector<Scenario>& scenarios) {
    const auto repository = New<IRecoveryRepository>(L"Vantrel.RecoveryRepository");
    rack_.GiveTo(repository.Get());
    EXPECT_EQ(repository->Load(com::Bstr(L"").Get(), VARIANT_FALSE), S_OK);
    com::CVtlSafeArray<IUnknown*> none;
    EXPECT_EQ(none.Create(0), S_OK);
    for (const Scenario& made : scenarios) {
        const auto scenario = New<IRecoveryScenario>(L"Vantrel.ReplayRecoveryScenario");
        scenario->SetPostRecoveryOption(1);
        scenario->SetTrigger(New<IUnknown>(made.trigger).Get());
        scenario->SetOperations(none.Get());
        scenario->SetDescription(com::Bstr(made.description).Get());
        EXPECT_EQ(repository->AddScenario(scenario.Get(), com::Bstr(made.name).Get(), 0), S_OK);
    }
    files_.push_back(folder_ + L"\\" + name);
    EXPECT_EQ(repository->Save(com::Bstr(files_.back()).Get()), S_OK);
    return files_.back();
}

std::vector<std::string> SettingsTest::OpenSettings(std::function<void(UserScreen&, HWND)> script) {
    const auto page = New<IPropertyPage>(L"Vantrel.RecoveryPP");
    TestFrame frame(page.Get(), rack_.Get(), hasSettingsProperty_ ? options_.Get() : nullptr, isReadOnly_);
    frame.keepsOpenOnClose = keepsOpenOnClose_;
    User user([&](UserScreen& screen) {
        const HWND window = screen.WaitForWindow(L"Test Settings");
        script(screen, window);
        if (IsWindow(window)) screen.Press(window, IDCANCEL);
    });
    frame.ShowModal();
    return frame.seen;
}

void SettingsTest::EnterFile(UserScreen& screen, HWND dialog, const std::wstring& file) {
    constexpr int kEditOfCombo = 1001;
    screen.Enter(dialog, kEditOfCombo, file);
    screen.Keys({VK_RETURN});
}

// The first one by a click, the others by Ctrl and a click.
void SettingsTest::SelectNames(UserScreen& screen, HWND dialog, const Rows& names) {
    const HWND list = screen.Control(dialog, IDC_ADD_SCENARIO_LIST);
    screen.Choose(dialog, IDC_ADD_SCENARIO_LIST, names.front());
    const Rows all = screen.RowsOf(dialog, IDC_ADD_SCENARIO_LIST);
    for (size_t row = 0; row < all.size(); ++row) {
        if (std::find(names.begin(), names.end(), all[row]) == names.end()) continue;
        screen.Do([=] { ListView_SetItemState(list, static_cast<int>(row), LVIS_SELECTED, LVIS_SELECTED); });
    }
}

void SettingsTest::Add(UserScreen& screen, HWND frame, const std::wstring& file, const Rows& names) {
    screen.Press(frame, IDC_RECOVERY_ADD);
    const HWND dialog = screen.WaitForWindow(L"Add Recovery Scenario");
    EnterFile(screen, dialog, file);
    SelectNames(screen, dialog, names);
    screen.Press(dialog, IDOK);
}

std::wstring SettingsTest::Stored(const wchar_t* name) {
    com::Variant value;
    if (FAILED(branch_->GetOptionValue(com::Bstr(L"").Get(), com::Bstr(name).Get(), value.Put(), 0, 0)))
        return L"-";
    return value.Type() == VT_I4 ? std::to_wstring(value.Get().lVal) : std::wstring(value.Text());
}

void SettingsTest::Store(const wchar_t* name, const com::Variant& value, bool isDefault) {
    EXPECT_EQ(branch_->SetOptionValue(com::Bstr(L"").Get(), com::Bstr(name).Get(), value.Get(), isDefault,
                                      !isDefault, 0, 3, 0),
              S_OK);
}

long SettingsTest::Global(const wchar_t* name) {
    com::Variant value;
    options_->GetOptionValue(com::Bstr(L"GlobalVariables").Get(), com::Bstr(name).Get(), value.Put(), 0, 0);
    return value.Type() == VT_I4 ? value.Get().lVal : -1;
}

void SettingsTest::SetGlobal(const wchar_t* name, const com::Variant& value) {
    EXPECT_EQ(options_->SetOptionValue(com::Bstr(L"GlobalVariables").Get(), com::Bstr(name).Get(),
                                       value.Get(), 0, 1, 0, 3, 0),
              S_OK);
}

}  // namespace recoveryui::test

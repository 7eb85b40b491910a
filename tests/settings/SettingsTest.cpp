#include "settings/SettingsTest.h"

#include <commctrl.h>

#include <algorithm>

namespace recoveryui::test {

SettingsTest::SettingsTest() {
    const auto locator = New<IFileLocatorFolders>(L"Tovarin.FileLocator");
    EXPECT_EQ(locator->SetTestFolder(com::Bstr(folder_.Path()).Get()), S_OK);
    rack_.Put(L"TestOptions", settings_.Get()).Put(L"RACK_FILE_LOCATOR", locator.Get());
}

std::wstring SettingsTest::MakeFile(const std::wstring& name, const std::vector<Scenario>& scenarios) const {
    const auto repository = New<IRecoveryRepository>(L"Vantrel.RecoveryRepository");
    rack_.GiveTo(repository.Get());
    EXPECT_EQ(repository->Load(nullptr, VARIANT_FALSE), S_OK);
    for (const Scenario& made : scenarios) {
        const auto scenario = New<IRecoveryScenario>(L"Vantrel.ReplayRecoveryScenario");
        scenario->SetPostRecoveryOption(1);
        scenario->SetTrigger(New<IUnknown>(made.trigger).Get());
        scenario->SetOperations(ArrayOf<IUnknown*, IUnknown*>({}).Get());
        scenario->SetDescription(com::Bstr(made.description).Get());
        EXPECT_EQ(repository->AddScenario(scenario.Get(), com::Bstr(made.name).Get(), 0), S_OK);
    }
    EXPECT_EQ(repository->Save(com::Bstr(folder_ / name).Get()), S_OK);
    return folder_ / name;
}

std::vector<std::string> SettingsTest::OpenSettings(const std::function<void(UserScreen&, HWND)>& script) {
    const auto page = New<IPropertyPage>(L"Vantrel.RecoveryPP");
    TestFrame frame(page.Get(), rack_.Get(), property_, isReadOnly_);
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

}  // namespace recoveryui::test

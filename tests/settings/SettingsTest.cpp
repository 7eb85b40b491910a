#include "settings/SettingsTest.h"

#include <commctrl.h>

#include <algorithm>

#include "app/SettingsFrame.h"

namespace recoveryui::test {

SettingsTest::SettingsTest() {
    const auto locator = New<IFileLocatorFolders>(L"Tovarin.FileLocator");
    EXPECT_EQ(locator->SetTestFolder(com::Bstr(folder_.Path()).Get()), S_OK);
    rack_.Put(L"TestOptions", settings_.Get())
        .Put(L"RACK_FILE_LOCATOR", locator.Get())
        .Put(L"HelpViewer", help_.Get());
}

std::wstring SettingsTest::MakeFile(const std::wstring& name, const std::vector<Scenario>& scenarios) const {
    std::vector<tovarin::store::NamedScenario> stored;
    for (const Scenario& made : scenarios)
        stored.push_back({made.name, {1, made.trigger, {}, made.description}});
    tovarin::TempFolder::Write(folder_ / name, TextOfStore(stored));
    return folder_ / name;
}

void SettingsTest::OpenSettings(const Story& story) {
    tovarin::SettingsFrame frame({rack_.Get(), options_, pages_, isReadOnly_});
    Use(
        isReadOnly_ ? L"Test Settings (read-only)" : L"Test Settings",
        [&] { return frame.ShowModal(nullptr), S_OK; }, story);
}

void SettingsTest::EnterFile(UserScreen& screen, HWND dialog, const std::wstring& file) {
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

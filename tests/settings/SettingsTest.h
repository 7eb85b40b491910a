// The test settings in front of their user: the host's frame around the Recovery tab, real stand-ins of the
// host behind it, and recovery files in a folder of their own.
#pragma once

#include <commctrl.h>

#include <algorithm>

#include "HostInterfaces.h"
#include "app/SettingsFrame.h"
#include "harness/ComTest.h"
#include "harness/HelpViewer.h"
#include "harness/ProcessWindows.h"
#include "harness/TestSettings.h"
#include "host/store_samples.h"
#include "host/temp_folder.h"
#include "resources/ids.h"

namespace recoveryui::test {

// The frame's own controls; its header shares names with the component's.
inline constexpr int kFrameTabs = 0x3020, kFrameApply = 0x3021;

class SettingsTest : public ComTest {
protected:
    SettingsTest() {
        const auto locator = New<IFileLocatorFolders>(L"Tovarin.FileLocator");
        EXPECT_EQ(locator->SetTestFolder(com::Bstr(folder_.Path()).Get()), S_OK);
        rack_.Put(L"TestOptions", settings_.Get())
            .Put(L"RACK_FILE_LOCATOR", locator.Get())
            .Put(L"HelpViewer", help_.Get());
    }

    struct Scenario {
        std::wstring name;
        tovarin::store::Trigger trigger = tovarin::store::PopUpTrigger{};
        std::wstring description = {};
    };
    // A recovery file; gives its full path.
    std::wstring MakeFile(const std::wstring& name, const std::vector<Scenario>& scenarios) const {
        std::vector<tovarin::store::NamedScenario> stored;
        for (const Scenario& made : scenarios)
            stored.push_back({made.name, {1, made.trigger, {}, made.description}});
        tovarin::TempFolder::Write(folder_ / name, TextOfStore(stored));
        return folder_ / name;
    }

    // Opens the settings and runs the story on the frame's window, which is cancelled when it is still open.
    void OpenSettings(const Story& story) {
        tovarin::SettingsFrame frame({rack_.Get(), options_, pages_, isReadOnly_});
        Use(
            isReadOnly_ ? L"Test Settings (read-only)" : L"Test Settings",
            [&] { return frame.ShowModal(nullptr), S_OK; }, story);
    }
    // In the Add dialog: a path and Enter; rows of its list, the first by a click, the others by Ctrl and a
    // click.
    static void EnterFile(UserScreen& screen, HWND dialog, const std::wstring& file) {
        screen.Enter(dialog, kEditOfCombo, file);
        screen.Keys({VK_RETURN});
    }
    static void SelectNames(UserScreen& screen, HWND dialog, const Rows& names) {
        const HWND list = screen.Control(dialog, IDC_ADD_SCENARIO_LIST);
        screen.Choose(dialog, IDC_ADD_SCENARIO_LIST, names.front());
        const Rows all = screen.RowsOf(dialog, IDC_ADD_SCENARIO_LIST);
        for (size_t row = 0; row < all.size(); ++row) {
            if (std::find(names.begin(), names.end(), all[row]) == names.end()) continue;
            screen.Do(
                [=] { ListView_SetItemState(list, static_cast<int>(row), LVIS_SELECTED, LVIS_SELECTED); });
        }
    }
    // Presses Add and chooses scenarios of a file in the dialog.
    static void Add(UserScreen& screen, HWND frame, const std::wstring& file, const Rows& names) {
        screen.Press(frame, IDC_RECOVERY_ADD);
        const HWND dialog = screen.WaitForWindow(L"Add Recovery Scenario");
        EnterFile(screen, dialog, file);
        SelectNames(screen, dialog, names);
        screen.Press(dialog, IDOK);
    }

    bool isReadOnly_ = false;
    std::vector<CLSID> pages_{CLSID_RecoveryPP};
    Rack rack_;
    com::Ptr<HelpViewer> help_ = HelpViewer::Make();
    TestSettings settings_;
    com::Ptr<ITestOptions> options_{settings_.Get()};  // what the frame holds

private:
    tovarin::TempFolder folder_;
};

}  // namespace recoveryui::test

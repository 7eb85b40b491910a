// The test settings in front of their user: the host's frame around the Recovery tab, real stand-ins of the
// host behind it, and recovery files in a folder of their own.
#pragma once

#include <commctrl.h>

#include <algorithm>

#include "app/SettingsFrame.h"
#include "harness/ProductTest.h"

namespace recoveryui::test {

// The frame's own controls; its header shares names with the component's.
inline constexpr int kFrameTabs = 0x3020, kFrameApply = 0x3021;

class SettingsTest : public ProductTest {
protected:
    SettingsTest() { PutLocator(); }

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
        const Rows all = screen.RowsOf(dialog, IDC_ADD_SCENARIO_LIST);
        screen.Choose(dialog, IDC_ADD_SCENARIO_LIST, names.front());
        for (const std::wstring& name : names) {
            const auto row = static_cast<int>(std::find(all.begin(), all.end(), name) - all.begin());
            screen.Do([=] { ListView_SetItemState(list, row, LVIS_SELECTED, LVIS_SELECTED); });
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
    com::Ptr<ITestOptions> options_{settings_.Get()};  // what the frame holds
};

}  // namespace recoveryui::test

// The test settings in front of their user: the host's frame around the Recovery tab, real stand-ins of the
// host behind it, and recovery files in a folder of their own.
#pragma once

#include "HostInterfaces.h"
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
    SettingsTest();

    struct Scenario {
        std::wstring name;
        tovarin::store::Trigger trigger = tovarin::store::PopUpTrigger{};
        std::wstring description = {};
    };
    // A recovery file; gives its full path.
    std::wstring MakeFile(const std::wstring& name, const std::vector<Scenario>& scenarios) const;

    // Opens the settings and runs the story on the frame's window, which is cancelled when it is still open.
    void OpenSettings(const Story& story);
    // Presses Add and chooses scenarios of a file in the dialog.
    static void Add(UserScreen& screen, HWND frame, const std::wstring& file, const Rows& names);

    // In the Add dialog: a path and Enter; rows of its list.
    static void EnterFile(UserScreen& screen, HWND dialog, const std::wstring& file);
    static void SelectNames(UserScreen& screen, HWND dialog, const Rows& names);

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

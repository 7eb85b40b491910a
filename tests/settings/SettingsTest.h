// The test settings in front of their user: a plain frame of the test's own around the real Recovery tab,
// real stand-ins of the host behind it, and recovery files in a folder of their own.
#pragma once

#include <ocidl.h>

#include <functional>

#include "HostInterfaces.h"
#include "harness/Arrays.h"
#include "harness/ComTest.h"
#include "harness/ProcessWindows.h"
#include "harness/TestSettings.h"
#include "host/temp_folder.h"
#include "resources/ids.h"

namespace recoveryui::test {

inline constexpr int kFrameTabs = 0x3020;
inline constexpr int kFrameApply = 0x3021;

// A modal frame. What its own procedure gets is written down, so that a test sees what the page let through.
class TestFrame {
public:
    TestFrame(IPropertyPage* page, IObjectRack* rack, ITestOptions* settings, bool isReadOnly);
    ~TestFrame();
    TestFrame(const TestFrame&) = delete;
    TestFrame& operator=(const TestFrame&) = delete;

    // Until OK or Cancel reaches the frame.
    void ShowModal();

    // "OK", "Apply", "Cancel", "Tab", and "Refused" for an Apply that the page failed.
    std::vector<std::string> seen;
    // WM_CLOSE does nothing.
    bool keepsOpenOnClose = false;

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Open(HWND window);
    bool OnCommand(int id);
    bool Apply();

    com::Ptr<IPropertyPage> page_;
    com::Ptr<ITestOptions> settings_;
    com::Ptr<IPropertyPageSite> site_;
    HWND window_ = nullptr;
};

class SettingsTest : public ComTest {
protected:
    SettingsTest();

    struct Scenario {
        std::wstring name;
        const wchar_t* trigger = L"Vantrel.PopUpRecoveryTrigger";
        std::wstring description = {};
    };
    // A recovery file; gives its full path.
    std::wstring MakeFile(const std::wstring& name, const std::vector<Scenario>& scenarios) const;

    // Opens the settings, runs the script on the frame's window, and tells what the frame saw.
    std::vector<std::string> OpenSettings(const std::function<void(UserScreen&, HWND frame)>& script);
    // Presses Add and chooses scenarios of a file in the dialog.
    static void Add(UserScreen& screen, HWND frame, const std::wstring& file, const Rows& names);

    // In the Add dialog: a path and Enter; rows of its list.
    static void EnterFile(UserScreen& screen, HWND dialog, const std::wstring& file);
    static void SelectNames(UserScreen& screen, HWND dialog, const Rows& names);

    bool isReadOnly_ = false;
    bool keepsOpenOnClose_ = false;
    Rack rack_;
    TestSettings settings_;
    ITestOptions* property_ = settings_.Get();  // what the frame holds

private:
    tovarin::TempFolder folder_;
};

}  // namespace recoveryui::test

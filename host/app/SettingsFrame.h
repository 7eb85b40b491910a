// The test settings: a frame of tabs, most of which belong to add-ins.
//
// A page finds in its frame window: the buttons 1 (OK), 2 (Cancel) and 0x3021 (Apply), tab changes as
// TCN_SELCHANGE, the window property "SettingsObjPtr" with one reference to the test options, and in the
// section "GlobalVariables" the frame's state.
#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "app/FrameTab.h"
#include "app/FrameValues.h"
#include "app/PageSite.h"

namespace tovarin {

class SettingsFrame {
public:
    struct Setup {
        com::Ptr<IObjectRack> rack;
        com::Ptr<ITestOptions> options;  // may be missing: nothing is then read or written
        std::vector<CLSID> pages;        // the host's own tab follows them
        bool readOnly = false;
    };

    explicit SettingsFrame(Setup setup);
    SettingsFrame(const SettingsFrame&) = delete;
    SettingsFrame& operator=(const SettingsFrame&) = delete;

    // Until OK or Cancel.
    void ShowModal(HWND owner);

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void OnInit();
    void OnCommand(int id);
    void OnDestroyed();
    void RunLoop();
    bool TakesKey(MSG& message);
    bool LeavesEditBox(const MSG& message);

    void InitValues();
    void AddTab(IPropertyPage* page);
    void AddProvidedTabs();
    void Layout();
    void ActivateTabs(const RECT& place);
    void MovePages();
    void ShowTab(int index);
    void StepTab(int step);
    void RefreshApply();
    // False when a page refused; the user has been told and sees the page.
    bool Apply();
    void ShowHelp();
    HWND Item(int id) const { return GetDlgItem(window_, id); }

    Setup setup_;
    FrameValues values_;
    com::Ptr<PageSite> site_;
    std::vector<std::unique_ptr<FrameTab>> tabs_;
    FrameTab* sorTab_ = nullptr;
    int current_ = -1;
    HWND window_ = nullptr;
    bool isOpen_ = false;
};

}  // namespace tovarin

// One page of the settings frame, from its creation to its end.
#pragma once

#include <ocidl.h>

#include <string>

#include "RecoveryUI.h"
#include "com/Ptr.h"

namespace tovarin {

class FrameTab {
public:
    // Hands the page the rack (when it takes one) and its site, and asks what it is; throws when it fails.
    FrameTab(IPropertyPage* page, IPropertyPageSite* site, IObjectRack* rack);
    // Takes the page's window down and the site away.
    ~FrameTab();
    FrameTab(const FrameTab&) = delete;
    FrameTab& operator=(const FrameTab&) = delete;

    const std::wstring& Title() const { return title_; }
    SIZE Size() const { return size_; }

    // Creates the page's window, hidden, above the frame's controls; throws when it fails.
    void Activate(HWND frame, const RECT& place);
    void Move(const RECT& place) { page_->Move(&place); }
    void Show(bool visible) { page_->Show(visible ? SW_SHOW : SW_HIDE); }
    HWND Window() const { return window_; }

    bool IsDirty() const { return page_->IsPageDirty() == S_OK; }
    // Nothing to do for a page without changes.
    HRESULT Apply() { return IsDirty() ? page_->Apply() : S_OK; }
    bool TakesKey(MSG& message) { return page_->TranslateAccelerator(&message) == S_OK; }
    // The page's own help, or else the topic that it named, which may be empty.
    bool ShowsHelp() { return SUCCEEDED(page_->Help(L"")); }
    const std::wstring& HelpTopic() const { return helpTopic_; }

private:
    recoveryui::com::Ptr<IPropertyPage> page_;
    std::wstring title_;
    std::wstring helpTopic_;
    SIZE size_{};
    HWND window_ = nullptr;
    bool isActive_ = false;
};

}  // namespace tovarin

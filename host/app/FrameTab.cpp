#include "app/FrameTab.h"

#include <uxtheme.h>

#include "com/Guard.h"

namespace tovarin {
namespace com = recoveryui::com;
namespace {

// Takes over a string that the page allocated.
std::wstring Taken(LPOLESTR text) {
    std::wstring copy = text ? text : L"";
    CoTaskMemFree(text);
    return copy;
}

HWND LastChild(HWND window) {
    const HWND first = GetWindow(window, GW_CHILD);
    return first ? GetWindow(first, GW_HWNDLAST) : nullptr;
}

}  // namespace

FrameTab::FrameTab(IPropertyPage* page, IPropertyPageSite* site, IObjectRack* rack) : page_(page) {
    if (const auto client = com::Query<IObjectRackClient>(page)) com::Check(client->SetRack(rack));
    com::Check(page->SetPageSite(site));
    PROPPAGEINFO info{};
    info.cb = sizeof info;
    const HRESULT hr = page->GetPageInfo(&info);
    if (FAILED(hr)) page->SetPageSite(nullptr);
    com::Check(hr);
    title_ = Taken(info.pszTitle);
    helpTopic_ = Taken(info.pszHelpFile);
    Taken(info.pszDocString);
    size_ = info.size;
}

FrameTab::~FrameTab() {
    if (isActive_) page_->Deactivate();
    page_->SetPageSite(nullptr);
}

void FrameTab::Activate(HWND frame, const RECT& place) {
    const HWND before = LastChild(frame);
    com::Check(page_->Activate(frame, &place, TRUE));
    isActive_ = true;
    Show(false);
    // Windows puts a new child below its siblings, where the tab control would cover it.
    const HWND added = LastChild(frame);
    if (added == before) return;
    window_ = added;
    SetWindowPos(window_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    EnableThemeDialogTexture(window_, ETDT_ENABLETAB);
}

}  // namespace tovarin

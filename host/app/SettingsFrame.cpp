#include "app/SettingsFrame.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "app/Placement.h"
#include "app/SorPage.h"
#include "app/Text.h"
#include "app/ids.h"

namespace tovarin {
namespace {

constexpr const wchar_t* kSettingsProperty = L"SettingsObjPtr";

RECT PlaceOf(HWND child) {
    RECT place{};
    GetWindowRect(child, &place);
    MapWindowPoints(nullptr, GetParent(child), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

void Move(HWND window, const RECT& place) {
    SetWindowPos(window, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

void SettingsFrame::OnInit() {
    if (setup_.options) {
        com::Ptr<ITestOptions> reference = setup_.options;
        if (SetPropW(window_, kSettingsProperty, reference.Get())) reference.Detach();
    }
    if (setup_.readOnly) {
        SetWindowTextW(window_, LoadText(IDS_SETTINGS_READ_ONLY).c_str());
        EnableWindow(Item(IDOK), FALSE);
        SendMessageW(window_, DM_SETDEFID, IDCANCEL, 0);
    }
    InitValues();
    AddProvidedTabs();
    const auto sor = SorPage::Make(values_);
    AddTab(sor.Get());
    sorTab_ = tabs_.back().get();
    Layout();
    values_.Set(kAlreadyInit, true);
    ShowTab(0);
    SetFocus(GetNextDlgTabItem(tabs_.front()->Window(), nullptr, FALSE));
}

// A configuration that was required or completed stays so as long as the test is open.
void SettingsFrame::InitValues() {
    values_.Set(kDirty, false);
    values_.Set(kReadOnlyMode, setup_.readOnly);
    values_.Set(kAllowApply, false);
    if (values_.Text(kRefusalText).empty()) values_.SetText(kRefusalText, LoadText(IDS_SOR_REFUSAL));
    if (values_.Text(kQuestionText).empty()) values_.SetText(kQuestionText, LoadText(IDS_SOR_QUESTION));
}

void SettingsFrame::AddTab(IPropertyPage* page) {
    auto tab = std::make_unique<FrameTab>(page, site_.Get(), setup_.rack.Get());
    std::wstring title = tab->Title();
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = title.data();
    TabCtrl_InsertItem(Item(IDC_SETTINGS_TABS), static_cast<int>(tabs_.size()), &item);
    tabs_.push_back(std::move(tab));
}

// A page that cannot be created is left out; the journal tells why.
void SettingsFrame::AddProvidedTabs() {
    for (const CLSID& pageClass : setup_.pages) {
        JournalCall call(PageSite::kName, L"AddPage", pageClass);
        static_cast<void>(call.Answer([&] {
            com::Ptr<IPropertyPage> page;
            com::Check(CoCreateInstance(pageClass, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IPropertyPage),
                                        reinterpret_cast<void**>(page.GetAddressOf())));
            AddTab(page.Get());
        }));
    }
}

// The tab control and the frame grow to the largest page; the buttons keep their distances.
void SettingsFrame::Layout() {
    const HWND control = Item(IDC_SETTINGS_TABS);
    const RECT before = PlaceOf(control);
    RECT needed{};
    for (const auto& tab : tabs_) {
        needed.right = std::max(needed.right, tab->Size().cx);
        needed.bottom = std::max(needed.bottom, tab->Size().cy);
    }
    TabCtrl_AdjustRect(control, TRUE, &needed);
    OffsetRect(&needed, before.left - needed.left, before.top - needed.top);
    needed.right = std::max(needed.right, before.right);
    needed.bottom = std::max(needed.bottom, before.bottom);
    Move(control, needed);

    const LONG wider = needed.right - before.right, higher = needed.bottom - before.bottom;
    for (const int id : {IDOK, IDCANCEL, IDC_SETTINGS_APPLY, IDC_SETTINGS_HELP}) {
        RECT place = PlaceOf(Item(id));
        OffsetRect(&place, wider, higher);
        Move(Item(id), place);
    }
    RECT frame{};
    GetWindowRect(window_, &frame);
    frame.right += wider;
    frame.bottom += higher;
    Move(window_, frame);
    CenterOnOwner(window_);
    TabCtrl_AdjustRect(control, FALSE, &needed);
    ActivateTabs(needed);
}

// All at once, so that every page takes part in the frame from the beginning. One that cannot be shown goes.
void SettingsFrame::ActivateTabs(const RECT& place) {
    for (size_t index = 0; index < tabs_.size();) {
        FrameTab& tab = *tabs_[index];
        JournalCall call(PageSite::kName, L"ActivatePage", std::wstring_view(tab.Title()));
        if (SUCCEEDED(call.Answer([&] { tab.Activate(window_, place); }))) {
            ++index;
        } else {
            TabCtrl_DeleteItem(Item(IDC_SETTINGS_TABS), static_cast<int>(index));
            tabs_.erase(tabs_.begin() + static_cast<std::ptrdiff_t>(index));
        }
    }
}

void SettingsFrame::MovePages() {
    RECT place = PlaceOf(Item(IDC_SETTINGS_TABS));
    TabCtrl_AdjustRect(Item(IDC_SETTINGS_TABS), FALSE, &place);
    for (const auto& tab : tabs_) tab->Move(place);
}

void SettingsFrame::ShowTab(int index) {
    const HWND focus = GetFocus();
    const HWND left = current_ >= 0 ? tabs_[static_cast<size_t>(current_)]->Window() : nullptr;
    const bool focusWasInside = left && (focus == left || IsChild(left, focus));
    FrameTab& shown = *tabs_.at(static_cast<size_t>(index));
    TabCtrl_SetCurSel(Item(IDC_SETTINGS_TABS), index);
    values_.Set(kIsSorTabActive, &shown == sorTab_);
    shown.Show(true);
    if (focusWasInside) SetFocus(GetNextDlgTabItem(shown.Window(), nullptr, FALSE));
    if (current_ >= 0 && current_ != index) tabs_[static_cast<size_t>(current_)]->Show(false);
    current_ = index;
}

// The notification goes through the frame window, where pages may be listening.
void SettingsFrame::StepTab(int step) {
    const int count = static_cast<int>(tabs_.size());
    TabCtrl_SetCurSel(Item(IDC_SETTINGS_TABS), (current_ + step + count) % count);
    NMHDR change{Item(IDC_SETTINGS_TABS), IDC_SETTINGS_TABS, static_cast<UINT>(TCN_SELCHANGE)};
    SendMessageW(window_, WM_NOTIFY, change.idFrom, reinterpret_cast<LPARAM>(&change));
}

void SettingsFrame::RefreshApply() {
    const bool dirty =
        std::any_of(tabs_.begin(), tabs_.end(), [](const auto& tab) { return tab->IsDirty(); });
    if (!dirty && GetFocus() == Item(IDC_SETTINGS_APPLY)) SetFocus(Item(IDOK));
    EnableWindow(Item(IDC_SETTINGS_APPLY), dirty && !setup_.readOnly);
}

bool SettingsFrame::Apply() {
    if (setup_.readOnly) return false;
    for (size_t index = 0; index < tabs_.size(); ++index) {
        const HRESULT hr = tabs_[index]->Apply();
        if (SUCCEEDED(hr)) continue;
        StepTab(static_cast<int>(index) - current_);
        ShowMessage(window_, FormatText(IDS_APPLY_FAILED, {tabs_[index]->Title(), DescribeResult(hr)}));
        return false;
    }
    values_.Set(kDirty, false);
    RefreshApply();
    return true;
}

void SettingsFrame::OnCommand(int id) {
    switch (id) {
        case IDOK:
            if (Apply()) isOpen_ = false;
            break;
        case IDC_SETTINGS_APPLY: Apply(); break;
        case IDCANCEL: isOpen_ = false; break;
        case IDC_SETTINGS_HELP: ShowHelp(); break;
    }
}

void SettingsFrame::ShowHelp() {
    FrameTab& tab = *tabs_.at(static_cast<size_t>(current_));
    if (tab.ShowsHelp() || tab.HelpTopic().empty()) return;
    com::Ptr<IUnknown> viewer;
    com::Check(
        setup_.rack->GetObject(com::Bstr(L"HelpViewer").Get(), __uuidof(IHelpViewer), viewer.GetAddressOf()));
    const auto handle = static_cast<long>(reinterpret_cast<LONG_PTR>(window_));
    com::Check(com::Query<IHelpViewer>(viewer.Get())->ShowTopic(handle, com::Bstr(tab.HelpTopic()).Get()));
}

// A page that has put itself in front of the frame window may have let go of the settings already.
void SettingsFrame::OnDestroyed() {
    com::Ptr<ITestOptions> options;
    *options.GetAddressOf() = static_cast<ITestOptions*>(RemovePropW(window_, kSettingsProperty));
    if (options) FrameValues(options.Get()).Set(kAlreadyInit, false);
    window_ = nullptr;
}

}  // namespace tovarin

#include "settings/AddScenarioDlg.h"

#include <algorithm>
#include <utility>

#include "model/FileDialog.h"
#include "model/FileLocator.h"
#include "model/HostMode.h"
#include "model/Repository.h"
#include "model/TestOptions.h"
#include "resources/ids.h"
#include "shell/Rack.h"
#include "support/HelpTopics.h"
#include "ui/Clipboard.h"
#include "ui/EditKeys.h"
#include "ui/Help.h"
#include "ui/Messages.h"
#include "ui/Strings.h"
#include "ui/Window.h"

namespace recoveryui::settings {
namespace {

// Posted, so that the combo has its new text and the focus has arrived where it goes.
enum Later : UINT { kFileChosen = WM_APP + 1, kFileLeft };

bool ComesBefore(const std::wstring& left, const std::wstring& right) {
    return CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, left.c_str(), static_cast<int>(left.size()),
                          right.c_str(), static_cast<int>(right.size())) == CSTR_LESS_THAN;
}

}  // namespace

AddScenarioDlg::AddScenarioDlg(IObjectRack* rack) : Dialog(IDD_ADD_SCENARIO), rack_(rack) {}

void AddScenarioDlg::OnInit() {
    file_.Attach(Item(IDC_ADD_SCENARIO_FILE));
    ui::CatchEnter(file_.Window(), kFileChosen);
    // Without a key of the host's the list is not remembered.
    if (const auto key = model::RecentListsKey(rack_.Get()))
        isBound_ =
            file_.LoadMRU(HKEY_CURRENT_USER, *key, model::options::kSettingsRecent, model::kRecentMaximum);
    AddTip(IDC_ADD_SCENARIO_BROWSE, IDS_TIP_BROWSE);
    list_ = ui::ListView(Item(IDC_ADD_SCENARIO_LIST));
    list_.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP);
    list_.AddColumn({});
    list_.FitColumnToHeader(0);
}

bool AddScenarioDlg::OnCommand(const ui::Command& command) {
    switch (command.id) {
        case IDC_ADD_SCENARIO_FILE: OnFileCommand(command.code); return true;
        case IDC_ADD_SCENARIO_BROWSE:
            if (command.code == BN_CLICKED) Browse();
            return true;
        case IDOK:
            if (IsWindowEnabled(Item(IDOK))) Accept();
            return true;
        default: return Dialog::OnCommand(command);
    }
}

bool AddScenarioDlg::OnNotify(NMHDR& header, LRESULT&) {
    if (header.idFrom != IDC_ADD_SCENARIO_LIST) return false;
    if (ui::CopyOnKey(header)) return true;
    if (header.code == NM_SETFOCUS) PostMessageW(Window(), kFileLeft, FALSE, 0);
    if (header.code != NM_DBLCLK) return false;
    if (reinterpret_cast<const NMITEMACTIVATE&>(header).iItem >= 0 && IsWindowEnabled(Item(IDOK))) Accept();
    return true;
}

bool AddScenarioDlg::OnMessage(UINT message, WPARAM wParam, LPARAM, LRESULT&) {
    switch (message) {
        case kFileChosen: LoadFile(); return true;
        case kFileLeft: OnLeftFile(wParam != FALSE); return true;
        default: return false;
    }
}

void AddScenarioDlg::OnHelp() {
    ui::ShowHelpTopic(Window(), support::topics::kAddScenario, rack_.Get());
}

void AddScenarioDlg::OnFileCommand(int code) {
    // Without the open list both come for one choice; while it is open, the first only tells of passing by.
    const bool isPicked = code == CBN_SELENDOK ||
                          (code == CBN_SELCHANGE && !SendMessageW(file_.Window(), CB_GETDROPPEDSTATE, 0, 0));
    if (isPicked && !std::exchange(isPickPending_, true)) PostMessageW(Window(), kFileChosen, 0, 0);
    if (code == CBN_KILLFOCUS) PostMessageW(Window(), kFileLeft, GetKeyState(VK_TAB) < 0, 0);
}

// A path that was typed counts once the user goes on by the keyboard, to the list or to "Add Scenario".
// Whoever clicks to cancel, to get help or to browse, or turns to another program, does not mean it yet.
void AddScenarioDlg::OnLeftFile(bool byTab) {
    const HWND focus = GetFocus();
    if (focus != list_.Window() && focus != Item(IDOK) && !(byTab && IsChild(Window(), focus))) return;
    if (ui::TextOf(file_.Window()) != triedPath_) LoadFile();
}

void AddScenarioDlg::Browse() {
    const std::wstring caption = ui::LoadText(IDS_FILE_OPEN_CAPTION);
    const auto path = model::AskForFile({.filter = ui::LoadText(IDS_FILE_FILTER),
                                         .caption = caption,
                                         .showFileSystemButton = model::HostModeSaysYes(rack_.Get())});
    if (!path) return;
    ShowAsRecent(*path);
    LoadFile();
}

// An unbound combo would take the same file again and again.
void AddScenarioDlg::ShowAsRecent(const std::wstring& path) {
    const auto text = reinterpret_cast<LPARAM>(path.c_str());
    const bool isListed =
        SendMessageW(file_.Window(), CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), text) >= 0;
    if (isBound_ || !isListed) file_.AddString(path);
    // Where an entry begins with this path, nothing was added or selected.
    ui::SetText(file_.Window(), path);
}

void AddScenarioDlg::LoadFile() {
    const std::wstring path = ui::TextOf(file_.Window());
    triedPath_ = path;
    isPickPending_ = false;
    if (path.empty()) return;
    std::vector<std::wstring> names;
    bool loaded = false;
    {
        const ui::WaitCursor wait;
        loaded = ReadNames(path, names);
    }
    const AfterLoad after = AfterLoading(path, loaded, static_cast<int>(names.size()));
    if (loaded) {
        std::sort(names.begin(), names.end(), ComesBefore);
        names_ = std::move(names);
        loadedPath_ = path;
        FillList(names_);
        ShowAsRecent(path);
    }
    ui::Enable(Item(IDOK), after.addEnabled);
    if (after.message)
        ui::ShowMessage(Window(), ui::FormatText(after.message, {path}), MB_OK | MB_ICONEXCLAMATION);
    if (after.select == model::kNoRow) return;
    list_.Select(after.select);
    SetFocus(list_.Window());
}

bool AddScenarioDlg::ReadNames(const std::wstring& path, std::vector<std::wstring>& names) const {
    model::Repository repository;
    return SUCCEEDED(model::Repository::Create(rack_.Get(), repository)) &&
           SUCCEEDED(repository.Load(model::FullPath(rack_.Get(), path), true)) &&
           SUCCEEDED(repository.Names(names));
}

void AddScenarioDlg::FillList(const std::vector<std::wstring>& names) const {
    {
        const ui::ListView::Filling filling(list_);
        list_.Clear();
        for (size_t row = 0; row < names.size(); ++row) list_.InsertRow(static_cast<int>(row), names[row]);
    }
    list_.FitColumnToHeader(0);  // beside the scroll bar that many rows bring
}

void AddScenarioDlg::Accept() {
    auto names = ChosenNames(names_, list_.AllSelected());
    if (names.empty()) return;
    chosen_ = {loadedPath_, std::move(names)};
    End(IDOK);
}

}  // namespace recoveryui::settings

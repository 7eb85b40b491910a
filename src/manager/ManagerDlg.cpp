#include "manager/ManagerDlg.h"

#include "manager/SelectionRules.h"
#include "model/FileNames.h"
#include "model/ScenarioReading.h"
#include "resources/ids.h"
#include "support/HelpTopics.h"
#include "ui/Dpi.h"
#include "ui/DroppedFiles.h"
#include "ui/Help.h"
#include "ui/Picture.h"
#include "ui/Strings.h"
#include "ui/Window.h"

namespace recoveryui::manager {
namespace {

using Kind = ui::IconButton::Kind;

struct ButtonRow {
    int control;
    Command command;
    int icon;
    int tip;
    Kind kind = Kind::Plain;
};
constexpr ButtonRow kButtons[] = {
    {IDC_MANAGER_NEW, Command::New, IDI_FILE_NEW, IDS_TIP_NEW_FILE},
    {IDC_MANAGER_OPEN, Command::Open, IDI_FILE_OPEN, IDS_TIP_OPEN_FILE, Kind::Split},
    {IDC_MANAGER_SAVE, Command::Save, IDI_FILE_SAVE, IDS_TIP_SAVE_FILE, Kind::Split},
    {IDC_MANAGER_NEW_SCENARIO, Command::NewScenario, IDI_SCENARIO_NEW, IDS_TIP_NEW_SCENARIO},
    {IDC_MANAGER_EDIT, Command::Edit, IDI_SCENARIO_EDIT, IDS_TIP_EDIT},
    {IDC_MANAGER_PROPERTIES, Command::Properties, IDI_PROPERTIES, IDS_TIP_PROPERTIES},
    {IDC_MANAGER_COPY, Command::Copy, IDI_COPY, IDS_TIP_COPY},
    {IDC_MANAGER_PASTE, Command::Paste, IDI_PASTE, IDS_TIP_PASTE},
    {IDC_MANAGER_DELETE, Command::Delete, IDI_DELETE, IDS_TIP_DELETE},
};

constexpr int kWindowIconSize = 16;  // at 96 DPI

}  // namespace

ManagerDlg::ManagerDlg(IObjectRack* rack) : Dialog(IDD_MANAGER), rack_(rack), file_(rack) {}

void ManagerDlg::OnInit() {
    ShowIcon();
    PrepareButtons();
    list_.Attach(Item(IDC_MANAGER_LIST), [this](const std::wstring& name) { return ImageOf(name); });
    PrepareLayout();
    ListenToKeys();

    if (const auto options = model::TestOptions::Fetch(rack_.Get()))
        recent_ = model::RecentFiles(options->ReadText(model::options::kManagerRecent).value_or(L""));
    file_.Start();
    UpdateFile();
    UpdateSelection();
    // The dialog manager chooses a focus of its own after this.
    PostMessageW(Window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(list_.Window()), TRUE);
}

void ManagerDlg::ShowIcon() {
    ui::Icon before = std::exchange(
        icon_, ui::LoadIconOfSize(IDI_RECOVERY_FILE, ui::ScaleForWindow(Window(), kWindowIconSize)));
    SendMessageW(Window(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon_.Get()));
}

void ManagerDlg::OnDpiChanged() {
    ShowIcon();
    list_.MakeImages();
    list_.FitColumn();
}

void ManagerDlg::PrepareButtons() {
    static_assert(std::size(kButtons) == std::tuple_size_v<decltype(buttons_)>);
    for (size_t i = 0; i < buttons_.size(); ++i) {
        const ButtonRow& row = kButtons[i];
        buttons_[i].Attach(Item(row.control), row.icon, row.kind);
        AddTip(row.control, row.tip);
    }
}

void ManagerDlg::PrepareLayout() {
    using namespace ui::anchor;
    anchors_.Begin(Window());
    anchors_.Add({IDC_MANAGER_FILE}, kWide);
    anchors_.Add({IDC_MANAGER_NEW, IDC_MANAGER_OPEN, IDC_MANAGER_SAVE}, kTop | kRight);
    anchors_.Add({IDC_MANAGER_LIST}, kAll);
    anchors_.Add({IDC_MANAGER_DESCRIPTION_LABEL, IDC_MANAGER_DESCRIPTION}, kLeft | kRight | kBottom);
    anchors_.Add({IDCANCEL, IDHELP}, kRight | kBottom);
}

bool ManagerDlg::OnCommand(const ui::Command& command) {
    if (command.control && command.code != BN_CLICKED) return false;
    if (command.id == IDCANCEL || command.id == IDOK) {
        Run(Command::Close);
        return true;
    }
    for (const ButtonRow& row : kButtons) {
        if (row.control != command.id) continue;
        Run(row.command);
        return true;
    }
    return Dialog::OnCommand(command);
}

bool ManagerDlg::OnNotify(NMHDR& header, LRESULT& answer) {
    if (header.code == BCN_DROPDOWN) {
        header.idFrom == IDC_MANAGER_OPEN ? ShowOpenMenu() : ShowSaveMenu();
        return true;
    }
    if (header.idFrom != IDC_MANAGER_LIST) return false;
    switch (header.code) {
        case LVN_ITEMCHANGED: {
            // A virtual list reports the end of a selection for row -1, without saying what it was.
            const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
            if (change.iItem < 0 || (change.uNewState ^ change.uOldState) & LVIS_SELECTED) UpdateSelection();
            return true;
        }
        case NM_DBLCLK:
        case NM_RETURN: OnActivateRow(); return true;
        default: return list_.OnNotify(header, answer);
    }
}

bool ManagerDlg::OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT&) {
    switch (message) {
        case WM_SIZE:
            anchors_.Follow();
            list_.FitColumn();
            return true;
        case WM_GETMINMAXINFO: anchors_.LimitTo(*reinterpret_cast<MINMAXINFO*>(lParam)); return true;
        case WM_DROPFILES: OpenDropped(ui::TakeDroppedFiles(wParam)); return true;
        case WM_CONTEXTMENU:
            if (reinterpret_cast<HWND>(wParam) != list_.Window()) return false;
            ShowContextMenu({static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))});
            return true;
        default: return false;
    }
}

void ManagerDlg::OnHelp() {
    ui::ShowHelpTopic(Window(), support::topics::kManager, rack_.Get());
}

ManagerState ManagerDlg::State() const {
    return {.readOnly = file_.IsReadOnly(),
            .rowSelected = list_.Selected() >= 0,
            .clipboardFull = clipboard_.scenario && !clipboard_.name.empty(),
            .hasRepository = static_cast<bool>(file_.Repository()),
            .untitled = file_.IsUntitled(),
            .dirty = file_.IsDirty()};
}

void ManagerDlg::UpdateFile() {
    const bool untitled = file_.IsUntitled();
    ui::SetText(Item(IDC_MANAGER_FILE), untitled ? ui::LoadText(IDS_UNTITLED) : file_.Path());
    ui::SetText(Window(), untitled
                              ? ui::LoadText(IDS_MANAGER_TITLE)
                              : ui::FormatText(IDS_MANAGER_TITLE_FILE, {model::FileNamePart(file_.Path())}));
}

void ManagerDlg::UpdateStates() {
    const ManagerState state = State();
    for (const ButtonRow& row : kButtons) {
        // With nothing to save the save button still offers its menu.
        const Command command = row.command == Command::Save ? Command::SaveAs : row.command;
        ui::Enable(Item(row.control), IsEnabled(command, state));
    }
}

void ManagerDlg::UpdateSelection() {
    ui::SetText(Item(IDC_MANAGER_DESCRIPTION), model::DescriptionOf(SelectedScenario().scenario.Get()));
    UpdateStates();
}

void ManagerDlg::Refill() {
    const ui::WaitCursor wait;
    const Muted muted(*this);
    std::vector<std::wstring> names;
    // What could be read before a failure is what the file can still be used for.
    (void)file_.Repository().Names(names);
    list_.Fill(std::move(names));
}

void ManagerDlg::SelectRow(int row) {
    {
        const Muted muted(*this);
        list_.Select(row < list_.Count() ? row : kNoRow);
    }
    UpdateSelection();
}

int ManagerDlg::ImageOf(const std::wstring& name) const {
    com::Ptr<IUnknown> scenario;
    if (FAILED(file_.Repository().Scenario(name, scenario))) return ScenarioList::kUnreadable;
    const auto kind = model::TriggerKindOf(scenario.Get());
    return kind ? static_cast<int>(*kind) : ScenarioList::kUnreadable;
}

}  // namespace recoveryui::manager

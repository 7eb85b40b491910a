// The Manager's commands on the file as a whole.
#include <algorithm>

#include "com/Guard.h"
#include "manager/ManagerDlg.h"
#include "manager/SaveQuestion.h"
#include "manager/SelectionRules.h"
#include "manager/TestLists.h"
#include "model/FileDialog.h"
#include "model/FileLocator.h"
#include "model/FileNames.h"
#include "resources/ids.h"
#include "support/Text.h"
#include "ui/Messages.h"
#include "ui/Strings.h"
#include "ui/Window.h"

namespace recoveryui::manager {
namespace {

using model::TestOptions;

// Under the wait cursor, which is gone before any message is shown.
template <class Body>
auto Slowly(Body&& body) {
    const ui::WaitCursor wait;
    return body();
}

SaveAnswer AskToSave(HWND owner) {
    switch (ui::ShowMessage(owner, IDS_FILE_SAVE_CHANGES, MB_YESNOCANCEL | MB_ICONQUESTION)) {
        case IDYES: return SaveAnswer::Yes;
        case IDNO: return SaveAnswer::No;
        default: return SaveAnswer::Cancel;
    }
}

std::optional<std::wstring> AskForRecoveryFile(bool open) {
    return model::AskForFile({.open = open,
                              .filter = ui::LoadText(IDS_FILE_FILTER),
                              .caption = ui::LoadText(open ? IDS_FILE_OPEN_CAPTION : IDS_FILE_SAVE_CAPTION)});
}

void AppendToTest(IObjectRack* rack, const TestOptions& options, const wchar_t* value,
                  TestOptions::Store store, const std::vector<AddedScenarios::File>& files) {
    if (files.empty()) return;
    const std::wstring before = options.ReadText(value).value_or(L"");
    std::wstring records = before;
    const auto full = [&](const std::wstring& path) { return model::FullPath(rack, path); };
    const auto stored = [&](const std::wstring& path) { return model::StoredPath(rack, path); };
    for (const AddedScenarios::File& file : files)
        records = WithScenarios(records, file.path, file.names, full, stored).value_or(records);
    if (records != before) options.WriteText(value, records, store);
}

}  // namespace

void ManagerDlg::Run(Command command) {
    Exclusively([&] {
        if (!IsEnabled(command, State())) return;
        switch (command) {
            case Command::New: NewFile(); break;
            case Command::Open: Open(); break;
            case Command::Save: Save(); break;
            case Command::SaveAs: SaveAs(); break;
            case Command::NewScenario: NewScenario(); break;
            case Command::Edit: Edit(); break;
            case Command::Properties: Properties(); break;
            case Command::Copy: Copy(); break;
            case Command::Paste: Paste(); break;
            case Command::Delete: Delete(); break;
            case Command::Close: Close(); break;
        }
    });
}

bool ManagerDlg::MayLeave() {
    return MayLeaveFile(
        file_.IsDirty(), [&] { return AskToSave(Window()); }, [&] { return Save(); });
}

void ManagerDlg::NewFile() {
    if (!MayLeave() || FAILED(file_.MakeNew())) return;
    added_.FileLeft();
    UpdateFile();
    Refill();
    SelectRow(kNoRow);
}

void ManagerDlg::Open() {
    if (!MayLeave()) return;
    if (const auto path = AskForRecoveryFile(true)) Load(*path);
}

void ManagerDlg::OpenKnown(const std::wstring& path) {
    Exclusively([&] {
        if (MayLeave()) Load(path);
    });
}

void ManagerDlg::OpenDropped(const std::vector<std::wstring>& paths) {
    const std::wstring extension = ui::LoadText(IDS_FILE_EXTENSION);
    const auto isRecoveryFile = [&](const std::wstring& path) {
        return support::Lower(path).ends_with(support::Lower(extension));
    };
    const auto path = std::find_if(paths.begin(), paths.end(), isRecoveryFile);
    if (path != paths.end()) OpenKnown(*path);
}

void ManagerDlg::Load(const std::wstring& path) {
    const OpenResult result = Slowly([&] { return file_.Open(path); });
    if (result.message) ui::ShowMessage(Window(), ui::FormatText(result.message, {path}));
    if (result.action == OpenAction::Refuse) return;
    added_.FileLeft();
    recent_.Add(path);
    UpdateFile();
    Refill();
    SelectRow(kNoRow);
}

bool ManagerDlg::Save() {
    switch (StepOfSave(State())) {
        case SaveStep::AskForPath: return SaveAs();
        case SaveStep::Write: return Saved(Slowly([&] { return file_.Save(); }), file_.Path());
        case SaveStep::Nothing: break;
    }
    return true;
}

bool ManagerDlg::SaveAs() {
    if (!file_.Repository()) return false;
    const auto chosen = AskForRecoveryFile(false);
    if (!chosen) return false;
    const std::wstring path = model::PathToSave(*chosen, ui::LoadText(IDS_FILE_EXTENSION));
    if (!Saved(Slowly([&] { return file_.SaveAs(path); }), path)) return false;
    recent_.Add(path);
    return true;
}

bool ManagerDlg::Saved(HRESULT result, const std::wstring& path) {
    if (FAILED(result)) {
        const std::wstring_view drive = model::DrivePart(path);
        ui::ShowMessage(Window(), ui::FormatText(SaveFailureMessage(result), {drive}));
        return false;
    }
    added_.FileSaved(file_.Path());
    UpdateFile();
    UpdateStates();
    return true;
}

void ManagerDlg::Close() {
    if (!MayLeave()) return;
    // What cannot be remembered does not hold the window open.
    static_cast<void>(com::Guarded([&] {
        added_.FileLeft();
        WriteSettings();
    }));
    End(IDCANCEL);
}

void ManagerDlg::WriteSettings() const {
    const auto options = TestOptions::Fetch(rack_.Get());
    if (!options) return;
    options->WriteText(model::options::kManagerRecent, recent_.Joined(), TestOptions::Store::Defaults);
    AppendToTest(rack_.Get(), *options, model::options::kScenarios, TestOptions::Store::CurrentTest,
                 added_.ForCurrent());
    AppendToTest(rack_.Get(), *options, model::options::kDefaultScenarios, TestOptions::Store::Defaults,
                 added_.ForDefault());
}

}  // namespace recoveryui::manager

#include "process/ProcessPair.h"

#include "model/RowRules.h"
#include "process/RunningProcesses.h"
#include "resources/ids.h"
#include "ui/Clipboard.h"
#include "ui/Messages.h"
#include "ui/Window.h"

namespace recoveryui::process {
namespace {

// An edit cannot be opened, nor its row deleted, inside the notification that it has ended.
constexpr UINT kSettle = WM_APP + 60;

std::wstring EntryOf(HWND listBox, int index) {
    const auto place = static_cast<WPARAM>(index);
    std::wstring text(static_cast<size_t>(SendMessageW(listBox, LB_GETTEXTLEN, place, 0)), L'\0');
    SendMessageW(listBox, LB_GETTEXT, place, reinterpret_cast<LPARAM>(text.data()));
    return text;
}

}  // namespace

ui::ListView ProcessPair::Chosen() const {
    return ui::ListView(GetDlgItem(page_, IDC_PROCESSES_CHOSEN));
}
HWND ProcessPair::Running() const {
    return GetDlgItem(page_, IDC_PROCESSES_RUNNING);
}

void ProcessPair::Attach(HWND page) {
    page_ = page;
    Chosen().SetExtendedStyle(LVS_EX_FULLROWSELECT);
    Chosen().AddColumn({});
    RowsChanged();
}

void ProcessPair::FillRunning() const {
    const auto names = EnumerateProcesses();
    if (!names) return;
    SendMessageW(Running(), WM_SETREDRAW, FALSE, 0);
    SendMessageW(Running(), LB_RESETCONTENT, 0, 0);
    for (const std::wstring& name : *names)
        SendMessageW(Running(), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
    SendMessageW(Running(), WM_SETREDRAW, TRUE, 0);
    InvalidateRect(Running(), nullptr, TRUE);
}

std::vector<std::wstring> ProcessPair::Names() const {
    std::vector<std::wstring> names;
    for (int row = 0; row < Chosen().Count(); ++row) names.push_back(Chosen().Text(row, 0));
    return names;
}

std::vector<std::wstring> ProcessPair::SelectedRunning() const {
    std::vector<int> indices(static_cast<size_t>(SendMessageW(Running(), LB_GETSELCOUNT, 0, 0)));
    SendMessageW(Running(), LB_GETSELITEMS, indices.size(), reinterpret_cast<LPARAM>(indices.data()));
    std::vector<std::wstring> names;
    names.reserve(indices.size());
    for (const int index : indices) names.push_back(EntryOf(Running(), index));
    return names;
}

bool ProcessPair::OnCommand(const ui::Command& command) {
    if (command.code != BN_CLICKED) return false;
    switch (command.id) {
        case IDC_PROCESSES_ADD_SELECTED: AddSelected(); return true;
        case IDC_PROCESSES_NEW: AddNew(); return true;
        case IDC_PROCESSES_REMOVE: Remove(); return true;
        default: return false;
    }
}

bool ProcessPair::OnNotify(NMHDR& header, LRESULT& answer) {
    if (header.idFrom != IDC_PROCESSES_CHOSEN) return false;
    switch (header.code) {
        case LVN_BEGINLABELEDITW:
            escaped_ = false;
            SetWindowSubclass(ListView_GetEditControl(header.hwndFrom), &ProcessPair::EditProcedure, 0,
                              reinterpret_cast<DWORD_PTR>(this));
            answer = FALSE;
            return true;
        case LVN_ENDLABELEDITW:
            EndOfEdit(reinterpret_cast<NMLVDISPINFOW&>(header).item.iItem);
            answer = FALSE;  // the row's text is set here
            return true;
        case LVN_KEYDOWN: {
            if (ui::CopyOnKey(header)) return true;
            const WORD key = reinterpret_cast<NMLVKEYDOWN&>(header).wVKey;
            if (key == VK_DELETE) Remove();
            if (key == VK_F2) Edit(ListView_GetNextItem(header.hwndFrom, -1, LVNI_FOCUSED));
            return true;
        }
        default: return false;
    }
}

bool ProcessPair::OnMessage(UINT message) {
    if (message != kSettle) return false;
    Settle();
    return true;
}

void ProcessPair::Load(const std::vector<std::wstring>& names) {
    {
        const ui::ListView::Filling filling(Chosen());
        for (const std::wstring& name : names) {
            if (!name.empty()) Chosen().InsertRow(Chosen().Count(), name);
        }
    }
    RowsChanged();
    onReady_(true);
}

void ProcessPair::Clear() {
    Chosen().Clear();
    RowsChanged();
}

SAFEARRAY* ProcessPair::BuildResult() {
    result_.Release();
    const std::vector<std::wstring> names = FinishEditing() ? Names() : std::vector<std::wstring>();
    if (names.empty()) return nullptr;
    com::Check(result_.Create(static_cast<ULONG>(names.size())));
    LONG index = 0;
    for (const std::wstring& name : names) com::Check(result_.PutElement(index++, com::Bstr(name)));
    return result_.Get();
}

void ProcessPair::AddSelected() {
    if (!FinishEditing()) return;
    const auto selected = SelectedRunning();
    if (selected.empty()) return;
    Chosen().ClearSelection();
    int row = -1;
    {
        const ui::ListView::Filling filling(Chosen());
        for (const std::wstring& name : NamesToAppend(Names(), selected)) {
            row = Chosen().InsertRow(Chosen().Count(), name);
            ListView_SetItemState(Chosen().Window(), row, LVIS_SELECTED | LVIS_FOCUSED,
                                  LVIS_SELECTED | LVIS_FOCUSED);
        }
    }
    RowsChanged();
    if (row >= 0) ListView_EnsureVisible(Chosen().Window(), row, FALSE);  // not while it is not drawn
    SendMessageW(Running(), LB_SETSEL, FALSE, -1);
    onReady_(true);
    SetFocus(Chosen().Window());
}

void ProcessPair::AddNew() {
    if (!FinishEditing()) return;
    const int row = Chosen().InsertRow(Chosen().Count(), {});
    RowsChanged();
    Chosen().Select(row);
    Edit(row);
}

void ProcessPair::Remove() {
    if (!FinishEditing()) return;
    const std::vector<int> selected = Chosen().AllSelected();
    if (selected.empty()) return;
    {
        const ui::ListView::Filling filling(Chosen());
        for (auto row = selected.rbegin(); row != selected.rend(); ++row) Chosen().DeleteRow(*row);
    }
    RowsChanged();
    const int next = model::RowAfterRemoval(selected.front(), Chosen().Count());
    if (next == model::kNoRow) return;
    Chosen().Select(next);
    SetFocus(Chosen().Window());
}

void ProcessPair::Edit(int row) {
    if (row < 0) return;
    SetFocus(Chosen().Window());
    ListView_EditLabel(Chosen().Window(), row);
}

void ProcessPair::Reopen(int row, const std::wstring& text) {
    Edit(row);
    const HWND edit = ListView_GetEditControl(Chosen().Window());
    if (!edit) return;
    ui::SetText(edit, text);
    ui::SelectAllText(edit);
}

// The control reports an emptied row, an unchanged one and a cancelled one alike: what was typed is asked of
// the edit box. An unchanged text counts as nothing typed.
void ProcessPair::EndOfEdit(int row) {
    const auto names = Names();
    std::optional<std::wstring> typed = ui::TextOf(ListView_GetEditControl(Chosen().Window()));
    if (escaped_ || *typed == names.at(static_cast<size_t>(row))) typed.reset();
    EditEnd end = EndEdit(names, static_cast<size_t>(row), typed);
    switch (end.action) {
        case EditEnd::Action::Keep: break;
        case EditEnd::Action::Store:
            Chosen().SetText(row, 0, end.text);
            Chosen().Select(row);
            onReady_(true);
            break;
        case EditEnd::Action::Delete:
        case EditEnd::Action::Reopen:
            unsettled_ = {row, std::move(end)};
            PostMessageW(page_, kSettle, 0, 0);
            break;
    }
}

// Ends an edit that is open. False when its text was refused: the user has to be told first.
bool ProcessPair::FinishEditing() {
    if (ListView_GetEditControl(Chosen().Window())) SetFocus(Chosen().Window());
    if (unsettled_ && unsettled_->end.action == EditEnd::Action::Delete) Settle();
    return !unsettled_;
}

void ProcessPair::Settle() {
    const auto edit = std::exchange(unsettled_, std::nullopt);
    if (!edit) return;
    const HWND list = Chosen().Window();
    // On a page that was left meanwhile, the text is given up.
    if (edit->end.action == EditEnd::Action::Reopen && IsWindowVisible(list)) {
        ui::ShowMessage(page_, edit->end.messageId);
        if (IsWindow(list)) Reopen(edit->row, edit->end.text);
    } else if (Chosen().Text(edit->row, 0).empty()) {
        Chosen().DeleteRow(edit->row);
        RowsChanged();
    }
}

// The column is as wide as the list, which is narrower with a scroll bar.
void ProcessPair::RowsChanged() {
    RECT area{};
    GetClientRect(Chosen().Window(), &area);
    ListView_SetColumnWidth(Chosen().Window(), 0, area.right);
    if (Chosen().Count() == 0) onReady_(false);
}

LRESULT CALLBACK ProcessPair::EditProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                            UINT_PTR id, DWORD_PTR object) noexcept {
    if (message == WM_KEYDOWN && wParam == VK_ESCAPE) reinterpret_cast<ProcessPair*>(object)->escaped_ = true;
    if (message == WM_NCDESTROY) RemoveWindowSubclass(window, &ProcessPair::EditProcedure, id);
    return DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace recoveryui::process

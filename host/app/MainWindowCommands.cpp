// The main window's menus and what their commands do.
#include <windows.h>

#include <commctrl.h>

#include "app/AskForFile.h"
#include "app/MainWindow.h"
#include "app/Placement.h"
#include "app/SettingsFrame.h"
#include "app/Text.h"
#include "app/ids.h"

namespace tovarin {
namespace {

constexpr int kResourcesMenuPlace = 1;

INT_PTR CALLBACK AboutProcedure(HWND window, UINT message, WPARAM wParam, LPARAM) noexcept {
    if (message == WM_INITDIALOG) CenterOnOwner(window);
    if (message == WM_INITDIALOG) return TRUE;
    if (message != WM_COMMAND || (LOWORD(wParam) != IDOK && LOWORD(wParam) != IDCANCEL)) return FALSE;
    EndDialog(window, 0);
    return TRUE;
}

}  // namespace

void MainWindow::OnCommand(int id) {
    switch (id) {
        case IDM_TEST_NEW: test_.New(window_); return;
        case IDM_TEST_OPEN: test_.Open(window_); return;
        case IDM_TEST_SAVE: test_.Save(window_); return;
        case IDM_TEST_SAVE_AS: test_.SaveAs(window_); return;
        case IDM_TEST_SETTINGS: ShowSettings(); return;
        case IDM_TEST_EXIT: SendMessageW(window_, WM_CLOSE, 0, 0); return;
        case IDM_HELP_CONTENTS: ShowHelp(); return;
        case IDM_HELP_ABOUT: ShowAbout(); return;
        case IDM_JOURNAL_COPY: journal_.Copy(); return;
        case IDM_JOURNAL_SELECT_ALL: journal_.SelectAll(); return;
        case IDM_JOURNAL_WRITE: WriteJournal(); return;
        case IDM_JOURNAL_CLEAR:
            com::Check(services_.Journal()->Clear());
            journal_.Clear();
            ShowCallCount();
            return;
    }
    const auto place = static_cast<size_t>(id) - IDM_ADDIN_FIRST;
    if (id < IDM_ADDIN_FIRST || place >= menuCommands_.size()) return;
    com::Check(services_.AddIns().Execute(menuCommands_[place]));
    ShowTitle();
}

void MainWindow::OnMenuOpen(HMENU menu) {
    if (menu == GetSubMenu(GetMenu(window_), kResourcesMenuPlace)) FillResourcesMenu();
}

void MainWindow::FillResourcesMenu() {
    const HMENU menu = GetSubMenu(GetMenu(window_), kResourcesMenuPlace);
    while (DeleteMenu(menu, 0, MF_BYPOSITION)) {
    }
    menuCommands_.clear();
    for (const AddInManager::Command& command : services_.AddIns().Commands()) {
        const UINT_PTR id = IDM_ADDIN_FIRST + menuCommands_.size();
        if (id > IDM_ADDIN_LAST) break;
        const UINT state = services_.AddIns().IsEnabled(command) ? MF_ENABLED : MF_GRAYED;
        AppendMenuW(menu, MF_STRING | state, id, command.caption.c_str());
        menuCommands_.push_back(command.id);
    }
    if (menuCommands_.empty())
        AppendMenuW(menu, MF_STRING | MF_GRAYED, IDM_ADDIN_NONE, LoadText(IDS_NO_ADDINS).c_str());
}

// The prompt of the item under the pointer or the caret covers the bar while a menu is open.
void MainWindow::OnMenuSelect(UINT item, UINT flags, HMENU menu) {
    const bool closed = flags == 0xFFFF && !menu;
    std::wstring prompt;
    if (!closed && !(flags & (MF_POPUP | MF_SEPARATOR | MF_SYSMENU))) {
        prompt = LoadText(static_cast<int>(item));
        for (const AddInManager::Command& command : services_.AddIns().Commands()) {
            const size_t place = item - IDM_ADDIN_FIRST;
            if (item >= IDM_ADDIN_FIRST && place < menuCommands_.size() && menuCommands_[place] == command.id)
                prompt = command.prompt;
        }
    }
    SendMessageW(status_, SB_SETTEXTW, SB_SIMPLEID | SBT_NOBORDERS, reinterpret_cast<LPARAM>(prompt.c_str()));
    SendMessageW(status_, SB_SIMPLE, !closed, 0);
}

void MainWindow::OnJournalMenu(POINT place) {
    if (place.x == -1 && place.y == -1) {
        // From the keyboard: at the upper left corner of the list.
        place = {dpi_ / 8, dpi_ / 3};
        ClientToScreen(journal_.Window(), &place);
    }
    const HMENU bar = LoadMenuW(com::Module::Instance(), MAKEINTRESOURCEW(IDR_JOURNAL_MENU));
    const HMENU menu = GetSubMenu(bar, 0);
    const bool isEmpty = journal_.Count() == 0;
    EnableMenuItem(menu, IDM_JOURNAL_COPY, journal_.HasSelection() ? MF_ENABLED : MF_GRAYED);
    for (const UINT command : {IDM_JOURNAL_SELECT_ALL, IDM_JOURNAL_WRITE, IDM_JOURNAL_CLEAR})
        EnableMenuItem(menu, command, isEmpty ? MF_GRAYED : MF_ENABLED);
    TrackPopupMenu(menu, TPM_RIGHTBUTTON, place.x, place.y, 0, window_, nullptr);
    DestroyMenu(bar);
}

void MainWindow::ShowSettings() {
    SettingsFrame frame({services_.Rack(), services_.Find<ITestOptions>(L"TestOptions"),
                         services_.Pages().Classes(), test_.IsReadOnly()});
    frame.ShowModal(window_);
    ShowTitle();
}

void MainWindow::ShowHelp() {
    const auto viewer = services_.Find<IHelpViewer>(L"HelpViewer");
    if (!viewer) return;
    const auto handle = static_cast<long>(reinterpret_cast<LONG_PTR>(window_));
    com::Check(viewer->ShowTopic(handle, com::Bstr(L"index.htm").Get()));
}

void MainWindow::ShowAbout() {
    DialogBoxParamW(com::Module::Instance(), MAKEINTRESOURCEW(IDD_ABOUT), window_, &AboutProcedure, 0);
}

void MainWindow::WriteJournal() {
    const std::wstring path = AskForFile({window_, true, IDS_JOURNAL_FILTER, L"txt", L"journal.txt"});
    if (path.empty()) return;
    const HRESULT hr = services_.Journal()->WriteToFile(com::Bstr(path).Get());
    if (FAILED(hr)) ShowMessage(window_, FormatText(IDS_JOURNAL_WRITE_FAILED, {path, DescribeResult(hr)}));
}

}  // namespace tovarin

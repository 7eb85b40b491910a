// The main window: menu bar, journal, status bar.
#pragma once

#include <windows.h>

#include <vector>

#include "app/HostServices.h"
#include "app/JournalListener.h"
#include "app/JournalView.h"
#include "app/OpenTest.h"

namespace tovarin {

class MainWindow {
public:
    // The services outlive the window.
    explicit MainWindow(HostServices& services);
    ~MainWindow();
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    void Show(int command);
    // Until the window is closed.
    void Run();
    HWND Window() const { return window_; }
    OpenTest& Test() { return test_; }

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer);
    void OnCreate();
    void OnResolution(int dpi);
    void OnSize();
    void OnCommand(int id);
    void OnNotify(NMHDR& header);
    void OnMenuOpen(HMENU menu);
    void OnMenuSelect(UINT item, UINT flags, HMENU menu);
    void OnJournalMenu(POINT place);
    void OnClose();

    void FillResourcesMenu();
    void ShowTitle();
    void ShowCallCount();
    void ShowSettings();
    void ShowHelp();
    void ShowAbout();
    void WriteJournal();

    HostServices& services_;
    OpenTest test_;
    HWND window_ = nullptr;
    HWND status_ = nullptr;
    HFONT font_ = nullptr;
    int dpi_ = 96;
    JournalView journal_;
    com::Ptr<JournalListener> listener_;
    std::vector<ULONG> menuCommands_;  // the add-ins' commands, by place in the Resources menu
};

}  // namespace tovarin

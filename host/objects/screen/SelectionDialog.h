// The dialog of the object selection: the candidates as a tree, the outermost at the top.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include "RecoveryUI.h"
#include "com/Module.h"
#include "com/Ptr.h"

namespace tovarin {
namespace com = recoveryui::com;

class SelectionDialog {
public:
    // The first candidate is selected at first.
    SelectionDialog(const std::vector<com::Ptr<IDispatch>>& candidates, std::wstring caption,
                    std::wstring topic, IObjectRack* rack);

    // Empty after Cancel. Modal to the thread's active window.
    com::Ptr<IDispatch> Show();

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    static LRESULT CALLBACK TreeProcedure(HWND tree, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                          DWORD_PTR) noexcept;
    INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void OnInit();
    void Fill();
    HTREEITEM Insert(size_t candidate, HTREEITEM parent);
    bool OnNotify(const NMHDR& notification);
    void ShowHelp();
    HWND Tree() const;

    com::LiveObject live_;
    const std::vector<com::Ptr<IDispatch>>& candidates_;
    std::wstring caption_;
    std::wstring topic_;
    com::Ptr<IObjectRack> rack_;
    HWND window_ = nullptr;
    std::vector<HTREEITEM> items_;  // of the candidates
    com::Ptr<IDispatch> choice_;
    HRESULT failure_ = S_OK;
};

}  // namespace tovarin

// An owner-drawn push button that shows an icon, and on request a part that drops a menu.
#pragma once

#include <windows.h>

#include "ui/Handles.h"

namespace recoveryui::ui {

// The button is a BS_OWNERDRAW one of a dialog; its text is what screen readers say, and what is drawn
// when the icon is missing. Enter presses it. The menu part (a click on it, Down, Alt+Down or F4) sends
// the dialog BCN_DROPDOWN with an NMBCDROPDOWN.
class IconButton {
public:
    enum class Kind { Plain, Split };

    IconButton() noexcept = default;
    ~IconButton();
    IconButton(const IconButton&) = delete;
    IconButton& operator=(const IconButton&) = delete;

    void Attach(HWND button, int iconId, Kind kind = Kind::Plain);
    // A dialog's WM_DRAWITEM goes on to the button itself; false when the item is none.
    static bool DrawItem(const DRAWITEMSTRUCT& item);

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR object) noexcept;
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    // What the message asks for, if it is the button's business.
    bool AsksForMenu(UINT message, WPARAM wParam, LPARAM lParam) const noexcept;
    void DropMenu() const noexcept;
    void TrackMouse(bool over) noexcept;
    void LoadPicture() noexcept;

    RECT MenuPart(RECT button) const noexcept;
    void Draw(const DRAWITEMSTRUCT& item) const;
    void DrawFace(HDC device, const RECT& place, UINT state) const;
    void DrawPicture(HDC device, RECT place, UINT state) const;
    void DrawMenuPart(HDC device, const RECT& part, UINT state) const;

    HWND button_ = nullptr;
    Kind kind_ = Kind::Plain;
    int iconId_ = 0;
    int size_ = 0;
    Icon icon_;
    bool hot_ = false;
};

}  // namespace recoveryui::ui

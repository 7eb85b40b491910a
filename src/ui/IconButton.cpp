#include "ui/IconButton.h"

#include <commctrl.h>
#include <olectl.h>

#include "ui/Dpi.h"
#include "ui/Picture.h"

namespace recoveryui::ui {
namespace {

constexpr int kIconSize = 16;       // at 96 DPI
constexpr int kMenuPartWidth = 14;  // at 96 DPI
constexpr UINT_PTR kSubclassId = 1;

}  // namespace

IconButton::~IconButton() {
    if (button_) RemoveWindowSubclass(button_, &IconButton::Procedure, kSubclassId);
}

void IconButton::Attach(HWND button, int iconId, Kind kind) {
    button_ = button;
    kind_ = kind;
    iconId_ = iconId;
    LoadPicture();
    SetWindowSubclass(button, &IconButton::Procedure, kSubclassId, reinterpret_cast<DWORD_PTR>(this));
}

bool IconButton::DrawItem(const DRAWITEMSTRUCT& item) {
    return item.CtlType == ODT_BUTTON &&
           SendMessageW(item.hwndItem, OCM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
}

void IconButton::LoadPicture() noexcept {
    size_ = ScaleForWindow(button_, kIconSize);
    icon_ = LoadIconOfSize(iconId_, size_);
}

LRESULT CALLBACK IconButton::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                       DWORD_PTR object) noexcept {
    auto* button = reinterpret_cast<IconButton*>(object);
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(window, &IconButton::Procedure, kSubclassId);
        button->button_ = nullptr;
        return DefSubclassProc(window, message, wParam, lParam);
    }
    return button->Handle(message, wParam, lParam);
}

LRESULT IconButton::Handle(UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    const HWND button = button_;
    if (AsksForMenu(message, wParam, lParam)) {
        SetFocus(button);
        DropMenu();
        return 0;
    }
    switch (message) {
        case OCM_DRAWITEM: Draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)); return TRUE;
        case WM_GETDLGCODE: {
            // An owner-drawn button is never a default one, so Enter would press the dialog's.
            const auto* key = reinterpret_cast<const MSG*>(lParam);
            const bool own = key && key->message == WM_KEYDOWN &&
                             (key->wParam == VK_RETURN || (kind_ == Kind::Split && key->wParam == VK_DOWN));
            return DefSubclassProc(button, message, wParam, lParam) | (own ? DLGC_WANTMESSAGE : 0);
        }
        case WM_KEYDOWN:
            if (wParam != VK_RETURN) break;
            PostMessageW(button, BM_CLICK, 0, 0);
            return 0;
        case WM_LBUTTONDBLCLK:
            message = WM_LBUTTONDOWN;  // a second quick click is a click
            break;
        case kDpiChangedAfterParent:
            LoadPicture();
            InvalidateRect(button, nullptr, TRUE);
            break;
        case WM_MOUSEMOVE: TrackMouse(true); break;
        case WM_MOUSELEAVE: TrackMouse(false); break;
        default: break;
    }
    return DefSubclassProc(button, message, wParam, lParam);
}

bool IconButton::AsksForMenu(UINT message, WPARAM wParam, LPARAM lParam) const noexcept {
    if (kind_ != Kind::Split) return false;
    switch (message) {
        case WM_KEYDOWN: return wParam == VK_DOWN || wParam == VK_F4;
        case WM_SYSKEYDOWN: return wParam == VK_DOWN;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK: {
            RECT place{};
            GetClientRect(button_, &place);
            const POINT point{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
            const RECT part = MenuPart(place);
            return PtInRect(&part, point);
        }
        default: return false;
    }
}

void IconButton::DropMenu() const noexcept {
    NMBCDROPDOWN drop{};
    drop.hdr.hwndFrom = button_;
    drop.hdr.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID(button_));
    drop.hdr.code = BCN_DROPDOWN;
    GetClientRect(button_, &drop.rcButton);
    SendMessageW(GetParent(button_), WM_NOTIFY, drop.hdr.idFrom, reinterpret_cast<LPARAM>(&drop));
}

void IconButton::TrackMouse(bool over) noexcept {
    if (hot_ == over) return;
    hot_ = over;
    InvalidateRect(button_, nullptr, FALSE);
    if (!over) return;
    TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, button_, 0};
    TrackMouseEvent(&track);
}

RECT IconButton::MenuPart(RECT button) const noexcept {
    button.left = button.right - ScaleForWindow(button_, kMenuPartWidth);
    return button;
}

}  // namespace recoveryui::ui

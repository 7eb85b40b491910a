#include "ui/Anchors.h"

#include <utility>

#include "ui/Dpi.h"
#include "ui/Window.h"

namespace recoveryui::ui {
namespace {

// One dimension of a control after the window grew by `growth`.
void Stretch(LONG& low, LONG& high, LONG growth, bool followsLow, bool followsHigh) {
    if (!followsHigh) return;
    high += growth;
    if (!followsLow) low += growth;
}

}  // namespace

void Anchors::Begin(HWND window) {
    window_ = window;
    dpi_ = DpiOf(window);
    RECT client{}, whole{};
    GetClientRect(window, &client);
    GetWindowRect(window, &whole);
    client_ = {client.right, client.bottom};
    smallest_ = {whole.right - whole.left, whole.bottom - whole.top};
}

void Anchors::Add(std::initializer_list<int> controls, unsigned edges) {
    for (const int id : controls) {
        const HWND control = GetDlgItem(window_, id);
        controls_.push_back({control, edges, RectInParent(control)});
    }
}

void Anchors::FollowDpi() {
    const int now = DpiOf(window_), before = std::exchange(dpi_, now);
    if (now == before) return;
    for (SIZE* size : {&client_, &smallest_})
        *size = {MulDiv(size->cx, now, before), MulDiv(size->cy, now, before)};
    for (Control& control : controls_)
        for (LONG* edge :
             {&control.start.left, &control.start.top, &control.start.right, &control.start.bottom})
            *edge = MulDiv(*edge, now, before);
}

void Anchors::Follow() {
    if (!window_) return;
    FollowDpi();
    RECT client{};
    GetClientRect(window_, &client);
    HDWP moves = BeginDeferWindowPos(static_cast<int>(controls_.size()));
    for (const Control& control : controls_) {
        RECT place = control.start;
        const unsigned edges = control.edges;
        Stretch(place.left, place.right, client.right - client_.cx, edges & anchor::kLeft,
                edges & anchor::kRight);
        Stretch(place.top, place.bottom, client.bottom - client_.cy, edges & anchor::kTop,
                edges & anchor::kBottom);
        if (!moves) return;
        moves =
            DeferWindowPos(moves, control.window, nullptr, place.left, place.top, place.right - place.left,
                           place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
    }
    if (moves) EndDeferWindowPos(moves);
}

void Anchors::LimitTo(MINMAXINFO& info) {
    if (!window_) return;
    FollowDpi();
    info.ptMinTrackSize = {smallest_.cx, smallest_.cy};
}

}  // namespace recoveryui::ui

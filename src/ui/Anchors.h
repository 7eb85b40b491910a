// Lets the controls of a resizable window follow its edges.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <vector>

namespace recoveryui::ui {

// The edges to which a control keeps its distance; two opposite ones stretch it.
namespace anchor {
inline constexpr unsigned kLeft = 1, kTop = 2, kRight = 4, kBottom = 8;
inline constexpr unsigned kWide = kLeft | kTop | kRight;
inline constexpr unsigned kAll = kWide | kBottom;
}  // namespace anchor

class Anchors {
public:
    // Takes the window's present size as the one that its template gave it, and as the smallest.
    void Begin(HWND window);
    void Add(std::initializer_list<int> controls, unsigned edges);

    // For WM_SIZE and WM_GETMINMAXINFO.
    void Follow();
    void LimitTo(MINMAXINFO& info);

private:
    struct Control {
        HWND window;
        unsigned edges;
        RECT start;
    };

    // What is kept in pixels, at another resolution than before.
    void FollowDpi();

    HWND window_ = nullptr;
    int dpi_ = 0;
    SIZE client_{};
    SIZE smallest_{};
    std::vector<Control> controls_;
};

}  // namespace recoveryui::ui

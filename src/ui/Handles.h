// One owner template, then one alias per kind of handle.
#pragma once

#include <windows.h>

#include <utility>

namespace recoveryui::ui {

template <class Handle, class Closer>
class Owned {
public:
    Owned() noexcept = default;
    explicit Owned(Handle handle) noexcept : handle_(handle) {}
    Owned(Owned&& other) noexcept : handle_(std::exchange(other.handle_, Handle{})) {}
    Owned& operator=(Owned&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;
    ~Owned() {
        if (handle_) Closer()(handle_);
    }
    Handle Get() const noexcept { return handle_; }
    explicit operator bool() const noexcept { return handle_ != Handle{}; }
    Handle Detach() noexcept { return std::exchange(handle_, Handle{}); }

private:
    Handle handle_{};
};

struct GdiCloser {
    void operator()(HGDIOBJ object) const noexcept { DeleteObject(object); }
};
struct IconCloser {
    void operator()(HICON icon) const noexcept { DestroyIcon(icon); }
};
struct MenuCloser {
    void operator()(HMENU menu) const noexcept { DestroyMenu(menu); }
};

using Font = Owned<HFONT, GdiCloser>;
using Bitmap = Owned<HBITMAP, GdiCloser>;
using Icon = Owned<HICON, IconCloser>;
using Menu = Owned<HMENU, MenuCloser>;

}  // namespace recoveryui::ui

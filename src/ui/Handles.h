// One owner template, then one alias per kind of handle.
#pragma once

#include <windows.h>

#include <utility>

namespace recoveryui::ui {

template <class Handle, auto Close>
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
        if (handle_) Close(handle_);
    }
    Handle Get() const noexcept { return handle_; }
    explicit operator bool() const noexcept { return handle_ != Handle{}; }
    Handle Detach() noexcept { return std::exchange(handle_, Handle{}); }

private:
    Handle handle_{};
};

using Font = Owned<HFONT, [](HFONT font) { DeleteObject(font); }>;
using Bitmap = Owned<HBITMAP, [](HBITMAP bitmap) { DeleteObject(bitmap); }>;
using Icon = Owned<HICON, [](HICON icon) { DestroyIcon(icon); }>;
using Menu = Owned<HMENU, [](HMENU menu) { DestroyMenu(menu); }>;

}  // namespace recoveryui::ui

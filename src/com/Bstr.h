// The owner of one BSTR. Text may hold NULs: lengths are always counted.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <new>
#include <string>
#include <string_view>
#include <utility>

namespace recoveryui::com {

// The text of a BSTR that somebody else owns; a null one is empty.
inline std::wstring_view ViewOf(BSTR text) noexcept {
    return text ? std::wstring_view(text, SysStringLen(text)) : std::wstring_view();
}

class Bstr {
public:
    Bstr() noexcept = default;
    // Throws std::bad_alloc.
    explicit Bstr(std::wstring_view text)
        : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {
        if (!text_) throw std::bad_alloc();
    }
    Bstr(Bstr&& other) noexcept : text_(other.Detach()) {}
    Bstr& operator=(Bstr&& other) noexcept {
        std::swap(text_, other.text_);
        return *this;
    }
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    ~Bstr() { SysFreeString(text_); }

    BSTR Get() const noexcept { return text_; }
    bool IsNull() const noexcept { return text_ == nullptr; }
    std::wstring_view View() const noexcept { return ViewOf(text_); }
    std::wstring Text() const { return std::wstring(View()); }

    // For an out-argument; frees what was held.
    BSTR* Put() noexcept {
        SysFreeString(text_);
        text_ = nullptr;
        return &text_;
    }
    // Hands the string to the caller.
    BSTR Detach() noexcept { return std::exchange(text_, nullptr); }

private:
    BSTR text_ = nullptr;
};

// Gives a copy of the text through an out-argument that has already been checked and cleared.
inline HRESULT CopyTo(BSTR* out, std::wstring_view text) noexcept {
    *out = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    return *out ? S_OK : E_OUTOFMEMORY;
}

}  // namespace recoveryui::com

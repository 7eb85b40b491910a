// The owner of one VARIANT.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include "com/Bstr.h"
#include "com/Guard.h"

namespace recoveryui::com {

class Variant {
public:
    Variant() noexcept { VariantInit(&value_); }
    explicit Variant(std::wstring_view text) : Variant() {
        value_.bstrVal = Bstr(text).Detach();
        value_.vt = VT_BSTR;
    }
    explicit Variant(long number) noexcept : Variant() {
        value_.vt = VT_I4;
        value_.lVal = number;
    }
    explicit Variant(bool yes) noexcept : Variant() {
        value_.vt = VT_BOOL;
        value_.boolVal = yes ? VARIANT_TRUE : VARIANT_FALSE;
    }
    // Keeps a reference of its own.
    explicit Variant(IDispatch* object) noexcept : Variant() {
        value_.vt = VT_DISPATCH;
        value_.pdispVal = object;
        if (object) object->AddRef();
    }
    explicit Variant(IUnknown* object) noexcept : Variant() {
        value_.vt = VT_UNKNOWN;
        value_.punkVal = object;
        if (object) object->AddRef();
    }
    // A pointer is never a boolean here.
    template <class T>
    explicit Variant(T*) = delete;
    explicit Variant(const wchar_t* text) : Variant(std::wstring_view(text)) {}
    Variant(Variant&& other) noexcept : Variant() { std::swap(value_, other.value_); }
    Variant& operator=(Variant&& other) noexcept {
        std::swap(value_, other.value_);
        return *this;
    }
    Variant(const Variant& other) : Variant() {
        Check(VariantCopy(&value_, const_cast<VARIANT*>(&other.value_)));
    }
    Variant& operator=(const Variant& other) {
        Check(VariantCopy(&value_, const_cast<VARIANT*>(&other.value_)));
        return *this;
    }
    ~Variant() { VariantClear(&value_); }

    // Throws when the copy cannot be made.
    static Variant CopyOf(const VARIANT& source) {
        Variant copy;
        Check(VariantCopyInd(&copy.value_, const_cast<VARIANT*>(&source)));
        return copy;
    }

    const VARIANT& Get() const noexcept { return value_; }
    VARTYPE Type() const noexcept { return value_.vt; }
    // The text of a VT_BSTR; empty for any other type.
    std::wstring_view Text() const noexcept {
        return value_.vt == VT_BSTR ? ViewOf(value_.bstrVal) : std::wstring_view();
    }
    // The object of a VT_DISPATCH or VT_UNKNOWN; null for any other type.
    IUnknown* Object() const noexcept {
        return value_.vt == VT_DISPATCH || value_.vt == VT_UNKNOWN ? value_.punkVal : nullptr;
    }

    // For an out-argument; frees what was held.
    VARIANT* Put() noexcept {
        VariantClear(&value_);
        return &value_;
    }
    // Hands the value to the caller.
    VARIANT Detach() noexcept {
        VARIANT value = value_;
        VariantInit(&value_);
        return value;
    }

private:
    VARIANT value_;
};

}  // namespace recoveryui::com

// A typed wrapper over a safe array.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <stdexcept>
#include <utility>

#include "com/Bstr.h"
#include "com/Ptr.h"
#include "com/Variant.h"

namespace recoveryui::com {

// How an element type is stored, and what owns a copy of it. SafeArrayPutElement wants the pointer
// itself for strings and objects, the address of the value for all else.
template <class Element>
struct ElementTraits;

template <>
struct ElementTraits<VARIANT> {
    static constexpr VARTYPE kType = VT_VARIANT;
    using Owner = Variant;
    static void* Address(const Variant& owner) { return const_cast<VARIANT*>(&owner.Get()); }
    static void* Receive(Variant& owner) { return owner.Put(); }
};
template <>
struct ElementTraits<BSTR> {
    static constexpr VARTYPE kType = VT_BSTR;
    using Owner = Bstr;
    static void* Address(const Bstr& owner) { return owner.Get(); }
    static void* Receive(Bstr& owner) { return owner.Put(); }
};
template <>
struct ElementTraits<IUnknown*> {
    static constexpr VARTYPE kType = VT_UNKNOWN;
    using Owner = Ptr<IUnknown>;
    static void* Address(const Ptr<IUnknown>& owner) { return owner.Get(); }
    static void* Receive(Ptr<IUnknown>& owner) { return owner.ReleaseAndGetAddressOf(); }
};
template <>
struct ElementTraits<unsigned long> {
    static constexpr VARTYPE kType = VT_UI4;
    using Owner = unsigned long;
    static void* Address(const unsigned long& owner) { return const_cast<unsigned long*>(&owner); }
    static void* Receive(unsigned long& owner) { return &owner; }
};

// Owns a SAFEARRAY of one dimension (a second one on request), lower bounds 0 when created here. An
// index outside the bounds throws std::runtime_error("CVtlSafeArray"); every other failure is returned.
template <class Element>
class CVtlSafeArray {
public:
    using Traits = ElementTraits<Element>;
    using Owner = typename Traits::Owner;

    CVtlSafeArray() noexcept = default;
    explicit CVtlSafeArray(SAFEARRAY* array) noexcept : array_(array) {}
    CVtlSafeArray(CVtlSafeArray&& other) noexcept : array_(other.Detach()) {}
    CVtlSafeArray& operator=(CVtlSafeArray&& other) noexcept {
        std::swap(array_, other.array_);
        return *this;
    }
    CVtlSafeArray(const CVtlSafeArray&) = delete;
    CVtlSafeArray& operator=(const CVtlSafeArray&) = delete;
    ~CVtlSafeArray() { Release(); }

    [[nodiscard]] HRESULT Create(ULONG count, ULONG secondCount = 0) {
        Release();
        SAFEARRAYBOUND bounds[2] = {{count, 0}, {secondCount, 0}};
        array_ = SafeArrayCreate(Traits::kType, secondCount ? 2 : 1, bounds);
        return array_ ? S_OK : E_OUTOFMEMORY;
    }
    void Release() noexcept {
        if (array_) SafeArrayDestroy(std::exchange(array_, nullptr));
    }

    SAFEARRAY* Get() const noexcept { return array_; }
    // For an out-argument; releases what was held. Verify before use.
    SAFEARRAY** Put() noexcept {
        Release();
        return &array_;
    }
    SAFEARRAY* Detach() noexcept { return std::exchange(array_, nullptr); }
    bool IsNull() const noexcept { return array_ == nullptr; }

    // S_OK for a present array of one dimension and this element type; what a stranger handed over may
    // be anything.
    [[nodiscard]] HRESULT Verify() const noexcept {
        if (!array_) return E_POINTER;
        VARTYPE type = VT_EMPTY;
        if (SafeArrayGetDim(array_) != 1) return DISP_E_BADINDEX;
        const HRESULT hr = SafeArrayGetVartype(array_, &type);
        if (FAILED(hr)) return hr;
        if (Count() > 0 && UpperBound() < LowerBound()) return DISP_E_BADINDEX;  // beyond the last index
        if (type == Traits::kType) return S_OK;
        return type == VT_DISPATCH && Traits::kType == VT_UNKNOWN ? S_OK : DISP_E_TYPEMISMATCH;
    }

    LONG LowerBound() const noexcept {
        LONG bound = 0;
        return array_ && SUCCEEDED(SafeArrayGetLBound(array_, 1, &bound)) ? bound : 0;
    }
    LONG UpperBound() const noexcept {
        LONG bound = -1;
        return array_ && SUCCEEDED(SafeArrayGetUBound(array_, 1, &bound)) ? bound : -1;
    }
    // Elements of the first dimension; 0 for no array.
    ULONG Count() const noexcept { return array_ ? array_->rgsabound[array_->cDims - 1].cElements : 0; }

    // A copy of the element at an index; the second one is for an array of two dimensions.
    [[nodiscard]] HRESULT GetElement(LONG index, Owner* element, LONG second = 0) const {
        LONG place[] = {index, second};
        CheckIndex(index, second);
        return SafeArrayGetElement(array_, place, Traits::Receive(*element));
    }
    // Hands a copy of each element of an array of one dimension to the function, until one cannot be read.
    template <class Use>
    [[nodiscard]] HRESULT ForEach(Use use) const {
        for (ULONG place = 0; place < Count(); ++place) {
            Owner element{};
            const HRESULT hr =
                GetElement(static_cast<LONG>(static_cast<ULONG>(LowerBound()) + place), &element);
            if (FAILED(hr)) return hr;
            use(std::move(element));
        }
        return S_OK;
    }
    // Stores a copy of the element.
    [[nodiscard]] HRESULT PutElement(LONG index, const Owner& element, LONG second = 0) {
        LONG place[] = {index, second};
        CheckIndex(index, second);
        return SafeArrayPutElement(array_, place, Traits::Address(element));
    }

    // Keeps the first elements.
    [[nodiscard]] HRESULT Resize(ULONG count) {
        if (!array_) return Create(count);
        if (SafeArrayGetDim(array_) != 1) return DISP_E_BADINDEX;
        SAFEARRAYBOUND bound = {count, LowerBound()};
        return SafeArrayRedim(array_, &bound);
    }
    [[nodiscard]] HRESULT Reverse() {
        if (array_ && SafeArrayGetDim(array_) != 1) return DISP_E_BADINDEX;
        for (LONG low = LowerBound(), high = UpperBound(); low < high; ++low, --high) {
            Owner first{}, last{};
            HRESULT hr = GetElement(low, &first);
            if (SUCCEEDED(hr)) hr = GetElement(high, &last);
            if (SUCCEEDED(hr)) hr = PutElement(low, last);
            if (SUCCEEDED(hr)) hr = PutElement(high, first);
            if (FAILED(hr)) return hr;
        }
        return S_OK;
    }

private:
    void CheckIndex(LONG index, LONG second) const {
        if (!array_ || index < LowerBound() || index > UpperBound() || !HasSecond(second))
            throw std::runtime_error("CVtlSafeArray");
    }
    bool HasSecond(LONG second) const noexcept {
        LONG low = 0, high = 0;
        if (SafeArrayGetDim(array_) == 1) return second == 0;
        return SafeArrayGetDim(array_) == 2 && SUCCEEDED(SafeArrayGetLBound(array_, 2, &low)) &&
               SUCCEEDED(SafeArrayGetUBound(array_, 2, &high)) && second >= low && second <= high;
    }

    SAFEARRAY* array_ = nullptr;
};

}  // namespace recoveryui::com

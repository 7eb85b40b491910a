// Safe arrays at the border of the stand-ins: plain lists inside, arrays with lower bound 0 outside.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <cstdint>
#include <string>
#include <vector>

#include "com/Ptr.h"
#include "com/Variant.h"
#include "objects/store/StoreModel.h"

namespace tovarin {
namespace com = recoveryui::com;

// From an in-argument: E_INVALIDARG for no array, more than one dimension or another element type.
[[nodiscard]] HRESULT ReadArray(SAFEARRAY* array, std::vector<std::wstring>& texts);
[[nodiscard]] HRESULT ReadArray(SAFEARRAY* array, std::vector<std::uint32_t>& numbers);
[[nodiscard]] HRESULT ReadArray(SAFEARRAY* array, std::vector<com::Variant>& values);
// Objects may also come as variants that hold them.
[[nodiscard]] HRESULT ReadArray(SAFEARRAY* array, std::vector<com::Ptr<IUnknown>>& objects);

// For an out-argument that has been checked and cleared.
[[nodiscard]] HRESULT GiveArray(const std::vector<std::wstring>& texts, SAFEARRAY** array);
[[nodiscard]] HRESULT GiveArray(const std::vector<std::uint32_t>& numbers, SAFEARRAY** array);
[[nodiscard]] HRESULT GiveArray(const std::vector<com::Variant>& values, SAFEARRAY** array);
[[nodiscard]] HRESULT GiveArray(const std::vector<com::Ptr<IUnknown>>& objects, SAFEARRAY** array);

// The same as scripts take it: an array of variants in a VARIANT.
template <class Item>
[[nodiscard]] HRESULT GiveVariants(const std::vector<Item>& items, VARIANT* array) {
    std::vector<com::Variant> values;
    values.reserve(items.size());
    for (const Item& item : items) values.emplace_back(item);
    SAFEARRAY* made = nullptr;
    const HRESULT hr = GiveArray(values, &made);
    if (FAILED(hr)) return hr;
    array->vt = VT_ARRAY | VT_VARIANT;
    array->parray = made;
    return S_OK;
}

}  // namespace tovarin

#include "objects/store/Arrays.h"

#include "com/SafeArray.h"

namespace tovarin {
namespace {

// Lends an array that the caller keeps.
template <class Element>
class Borrowed {
public:
    explicit Borrowed(SAFEARRAY* array) : array_(array) {}
    ~Borrowed() { array_.Detach(); }
    const com::CVtlSafeArray<Element>* operator->() const { return &array_; }

private:
    com::CVtlSafeArray<Element> array_;
};

template <class Element, class Item, class Convert>
HRESULT Read(SAFEARRAY* source, std::vector<Item>& items, Convert convert) {
    const Borrowed<Element> array(source);
    if (FAILED(array->Verify())) return E_INVALIDARG;
    std::vector<Item> read;
    read.reserve(array->Count());
    const HRESULT hr = array->ForEach([&](auto element) { read.push_back(convert(std::move(element))); });
    if (FAILED(hr)) return hr;
    items = std::move(read);
    return S_OK;
}

template <class Element, class Item, class Convert>
HRESULT Give(const std::vector<Item>& items, SAFEARRAY** target, Convert convert) {
    com::CVtlSafeArray<Element> array;
    HRESULT hr = array.Create(static_cast<ULONG>(items.size()));
    for (size_t i = 0; SUCCEEDED(hr) && i < items.size(); ++i)
        hr = array.PutElement(static_cast<LONG>(i), convert(items[i]));
    if (SUCCEEDED(hr)) *target = array.Detach();
    return hr;
}

template <class Item>
const Item& Same(const Item& item) {
    return item;
}

}  // namespace

HRESULT ReadArray(SAFEARRAY* array, std::vector<std::wstring>& texts) {
    return Read<BSTR>(array, texts, [](com::Bstr text) { return text.Text(); });
}

HRESULT ReadArray(SAFEARRAY* array, std::vector<std::uint32_t>& numbers) {
    return Read<unsigned long>(array, numbers, [](unsigned long number) { return number; });
}

HRESULT ReadArray(SAFEARRAY* array, std::vector<com::Variant>& values) {
    return Read<VARIANT>(array, values, [](com::Variant value) { return value; });
}

HRESULT ReadArray(SAFEARRAY* array, std::vector<com::Ptr<IUnknown>>& objects) {
    VARTYPE type = VT_EMPTY;
    if (array && SUCCEEDED(SafeArrayGetVartype(array, &type)) && type == VT_VARIANT)
        return Read<VARIANT>(array, objects,
                             [](const com::Variant& value) { return com::Ptr<IUnknown>(value.Object()); });
    return Read<IUnknown*>(array, objects, [](com::Ptr<IUnknown> object) { return object; });
}

HRESULT GiveArray(const std::vector<std::wstring>& texts, SAFEARRAY** array) {
    return Give<BSTR>(texts, array, [](const std::wstring& text) { return com::Bstr(text); });
}

HRESULT GiveArray(const std::vector<std::uint32_t>& numbers, SAFEARRAY** array) {
    return Give<unsigned long>(numbers, array, [](std::uint32_t number) -> unsigned long { return number; });
}

HRESULT GiveArray(const std::vector<com::Variant>& values, SAFEARRAY** array) {
    return Give<VARIANT>(values, array, Same<com::Variant>);
}

HRESULT GiveArray(const std::vector<com::Ptr<IUnknown>>& objects, SAFEARRAY** array) {
    return Give<IUnknown*>(objects, array, Same<com::Ptr<IUnknown>>);
}

}  // namespace tovarin

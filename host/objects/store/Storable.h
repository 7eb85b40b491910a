// How the repository looks inside this module's own objects, past the interfaces that the component uses.
#pragma once

#include <windows.h>

#include <unknwn.h>

#include "com/Ptr.h"
#include "objects/store/StoreModel.h"

namespace tovarin {

template <class Record>
struct StorableId;
template <>
struct StorableId<store::Scenario> {
    static constexpr IID kId = {0xc15045c0, 0x3809, 0x4438, {0x90, 0x12, 0xba, 0x68, 0xcf, 0x4e, 0x8b, 0xd3}};
};
template <>
struct StorableId<store::Trigger> {
    static constexpr IID kId = {0xfe9638a4, 0x08eb, 0x4307, {0x92, 0xa8, 0xfb, 0xff, 0x71, 0x56, 0xf7, 0x8e}};
};
template <>
struct StorableId<store::Operation> {
    static constexpr IID kId = {0xb0809144, 0xd4a4, 0x4d67, {0xa8, 0x9c, 0xe2, 0x92, 0x49, 0x29, 0x8a, 0x70}};
};
template <>
struct StorableId<store::Hierarchy> {
    static constexpr IID kId = {0xc0a08287, 0x1179, 0x4188, {0xad, 0x0d, 0x61, 0xfb, 0xa3, 0x02, 0x00, 0x4c}};
};

// An object whose content is such a record: `HostObject<Thing, IThing, Storable<store::Trigger>>`.
template <class Record>
struct Storable : IUnknown {
    static bool Answers(REFIID iid) noexcept { return IsEqualIID(iid, StorableId<Record>::kId); }

    // The content as it is now. DISP_E_BADVARTYPE for a value that a file cannot hold.
    virtual HRESULT STDMETHODCALLTYPE Write(Record& record) noexcept = 0;

protected:
    ~Storable() = default;
};

// Writes an object's content; E_NOINTERFACE for a foreign object.
template <class Record>
[[nodiscard]] HRESULT WriteRecord(IUnknown* object, Record& record) noexcept {
    com::Ptr<Storable<Record>> storable;
    const HRESULT hr =
        object->QueryInterface(StorableId<Record>::kId, reinterpret_cast<void**>(storable.GetAddressOf()));
    return SUCCEEDED(hr) ? storable->Write(record) : hr;
}

}  // namespace tovarin

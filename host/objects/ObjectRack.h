// A directory of live objects by name: the test's rack, the frame's rack and the global one.
#pragma once

#include <map>
#include <string>

#include "HostScripting.h"
#include "com/Dual.h"
#include "objects/HostObject.h"

namespace tovarin {

// Names are compared exactly.
class ObjectRack final : public HostObject<ObjectRack, IObjectRack, com::Dual<IScriptRack>> {
public:
    static constexpr const wchar_t* kName = L"ObjectRack";
    static constexpr const wchar_t* kProgId = L"Tovarin.ObjectRack";

    HRESULT STDMETHODCALLTYPE SetObject(BSTR name, IUnknown* object) noexcept override;
    // E_FAIL for a name that is not there.
    HRESULT STDMETHODCALLTYPE GetObject(BSTR name, REFIID iid, IUnknown** object) noexcept override;
    HRESULT STDMETHODCALLTYPE RemoveObject(BSTR name) noexcept override;
    HRESULT STDMETHODCALLTYPE PutNew(BSTR name, BSTR progId) noexcept override;
    // E_NOINTERFACE for an object that takes no rack.
    HRESULT STDMETHODCALLTYPE GiveTo(IUnknown* client) noexcept override;

private:
    std::map<std::wstring, com::Ptr<IUnknown>, std::less<>> objects_;
};

}  // namespace tovarin

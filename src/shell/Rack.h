// The ground-floor room of the shell: how every part holds the host's object rack and asks it.
#pragma once

#include <windows.h>

#include "RecoveryUI.h"
#include "com/Bstr.h"
#include "com/Object.h"

namespace recoveryui::shell {

// The object of a name, as the interface asked for. E_FAIL without a rack or an object.
template <class Interface>
[[nodiscard]] HRESULT Fetch(IObjectRack* rack, const wchar_t* name, com::Ptr<Interface>& object) {
    object.Reset();
    if (!rack) return E_FAIL;
    com::Ptr<IUnknown> found;
    const HRESULT hr = rack->GetObject(com::Bstr(name).Get(), __uuidof(Interface), found.GetAddressOf());
    if (FAILED(hr)) return hr;
    if (!found) return E_FAIL;
    // The rack answered with this very interface; the query only makes the pointer's type honest.
    return found.As(&object);
}

// The rack of the add-in while it is connected: the host's global one. Not owned.
inline IObjectRack* connectedRack = nullptr;

// From the rack at hand, else from the host's global one.
template <class Interface>
[[nodiscard]] HRESULT FetchAnywhere(IObjectRack* rack, const wchar_t* name, com::Ptr<Interface>& object) {
    const HRESULT hr = Fetch(rack, name, object);
    return SUCCEEDED(hr) || !connectedRack ? hr : Fetch(connectedRack, name, object);
}

// Gives an object the rack; E_NOINTERFACE when it is no rack client.
[[nodiscard]] inline HRESULT HandRack(IUnknown* object, IObjectRack* rack) {
    const com::Ptr<IObjectRackClient> client = com::Query<IObjectRackClient>(object);
    return client ? client->SetRack(rack) : E_NOINTERFACE;
}

// IObjectRackClient for a class: `com::Object<Thing, ..., RackClient>`.
class RackClient : public IObjectRackClient {
public:
    static bool Answers(REFIID iid) noexcept { return IsEqualIID(iid, __uuidof(IObjectRackClient)); }

    HRESULT STDMETHODCALLTYPE GetRack(IObjectRack** rack) noexcept override {
        if (!rack) return E_POINTER;
        rack_.CopyTo(rack);
        return rack_ ? S_OK : E_FAIL;
    }
    HRESULT STDMETHODCALLTYPE SetRack(IObjectRack* rack) noexcept override {
        rack_ = rack;
        return S_OK;
    }

protected:
    ~RackClient() = default;
    IObjectRack* Rack() const noexcept { return rack_.Get(); }

private:
    com::Ptr<IObjectRack> rack_;
};

}  // namespace recoveryui::shell

// The owner of one interface reference. One name for the platform's own smart pointer.
#pragma once

#include <windows.h>
#include <wrl/client.h>

namespace recoveryui::com {

template <class Interface>
using Ptr = Microsoft::WRL::ComPtr<Interface>;

// Another interface of an object; empty when the object is empty or lacks it.
template <class Interface>
Ptr<Interface> Query(IUnknown* object) {
    Ptr<Interface> result;
    if (object) object->QueryInterface(__uuidof(Interface), reinterpret_cast<void**>(result.GetAddressOf()));
    return result;
}

}  // namespace recoveryui::com

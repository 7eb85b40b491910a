// Creation of other components' objects by ProgID.
#pragma once

#include "com/Ptr.h"

namespace recoveryui::com {

// Any server context. The out-argument is null on failure.
HRESULT CreateByProgId(const wchar_t* progId, REFIID iid, void** object) noexcept;

template <class Interface>
[[nodiscard]] HRESULT Create(const wchar_t* progId, Ptr<Interface>& object) noexcept {
    return CreateByProgId(progId, __uuidof(Interface),
                          reinterpret_cast<void**>(object.ReleaseAndGetAddressOf()));
}

}  // namespace recoveryui::com

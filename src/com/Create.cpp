#include "com/Create.h"

#include <objbase.h>

namespace recoveryui::com {

HRESULT CreateByProgId(const wchar_t* progId, REFIID iid, void** object) noexcept {
    *object = nullptr;
    CLSID clsid{};
    const HRESULT hr = CLSIDFromProgID(progId, &clsid);
    if (FAILED(hr)) return hr;
    constexpr DWORD kAnyServer =
        CLSCTX_INPROC_SERVER | CLSCTX_INPROC_HANDLER | CLSCTX_LOCAL_SERVER | CLSCTX_REMOTE_SERVER;
    return CoCreateInstance(clsid, nullptr, kAnyServer, iid, object);
}

}  // namespace recoveryui::com

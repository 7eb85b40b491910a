// The least that a component can be: one class that answers IUnknown and remembers a text.
#include <windows.h>

#include <unknwn.h>

#include <new>
#include <string>

#include "Floor.h"

namespace {

LONG alive = 0;

template <class Interface>
class Counted : public Interface {
public:
    Counted() { InterlockedIncrement(&alive); }
    virtual ~Counted() { InterlockedDecrement(&alive); }
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override {
        if (!object) return E_POINTER;
        const bool known = IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, __uuidof(Interface));
        *object = known ? this : nullptr;
        if (known) this->AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return InterlockedIncrement(&references_); }
    ULONG STDMETHODCALLTYPE Release() noexcept override {
        const LONG left = InterlockedDecrement(&references_);
        if (left == 0) delete this;
        return left;
    }

private:
    LONG references_ = 0;
};

class Thing final : public Counted<IUnknown> {
    std::wstring text_ = L"a text that needs memory of its own";
};

class Factory final : public Counted<IClassFactory> {
public:
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) noexcept override {
        if (outer) return CLASS_E_NOAGGREGATION;
        try {
            return (new Thing)->QueryInterface(iid, object);
        } catch (const std::bad_alloc&) {
            return E_OUTOFMEMORY;
        }
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) noexcept override { return S_OK; }
};

}  // namespace

STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, LPVOID* factory) {
    if (!IsEqualCLSID(clsid, recoveryui::bench::kClsidFloor)) return CLASS_E_CLASSNOTAVAILABLE;
    try {
        return (new Factory)->QueryInterface(iid, factory);
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    }
}

STDAPI DllCanUnloadNow() {
    return alive == 0 ? S_OK : S_FALSE;
}

#include "com/ClassTable.h"

#include "com/Object.h"

namespace recoveryui::com {
namespace {

class ClassFactory final : public Object<ClassFactory, IClassFactory> {
public:
    explicit ClassFactory(const ClassEntry& entry) : entry_(entry) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) noexcept override {
        if (!object) return E_POINTER;
        *object = nullptr;
        return outer ? CLASS_E_NOAGGREGATION : entry_.create(iid, object);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override {
        Module::Lock(lock != FALSE);
        return S_OK;
    }

private:
    const ClassEntry& entry_;
};

}  // namespace

HRESULT GetClassObject(std::span<const ClassEntry> classes, REFCLSID clsid, REFIID iid,
                       void** factory) noexcept {
    if (!factory) return E_POINTER;
    *factory = nullptr;
    for (const ClassEntry& entry : classes) {
        if (IsEqualCLSID(*entry.clsid, clsid))
            return Guarded([&] { return ClassFactory::Make(entry)->QueryInterface(iid, factory); });
    }
    return CLASS_E_CLASSNOTAVAILABLE;
}

}  // namespace recoveryui::com

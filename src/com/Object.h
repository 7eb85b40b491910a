// The base of every COM object: identity, references and the module's live count.
#pragma once

#include <windows.h>

#include <unknwn.h>

#include "com/Guard.h"
#include "com/Module.h"
#include "com/Ptr.h"

namespace recoveryui::com {

// Whether an interface class answers an interface id. A class that answers several (a dual interface)
// says so itself through a static `Answers`.
template <class Interface>
bool InterfaceAnswers(REFIID iid) noexcept {
    if constexpr (requires { Interface::Answers(iid); }) {
        return Interface::Answers(iid);
    } else {
        return IsEqualIID(iid, __uuidof(Interface));
    }
}

// `class Thing final : public Object<Thing, IFirst, ISecond>`. Lives on the heap with a reference count
// that starts at 1 for the creator. The first interface is the object's identity.
template <class Derived, class First, class... Others>
class Object : public First, public Others... {
public:
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    template <class... Arguments>
    static Ptr<Derived> Make(Arguments&&... arguments) {
        Ptr<Derived> object;
        // Attach adds a reference in MinGW's header; the address takes the first one over everywhere.
        *object.GetAddressOf() = new Derived(std::forward<Arguments>(arguments)...);
        return object;
    }
    // The creator that class tables hold.
    static HRESULT Create(REFIID iid, void** object) noexcept {
        *object = nullptr;
        return Guarded([&] { return Make()->QueryInterface(iid, object); });
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override {
        if (!object) return E_POINTER;
        *object = IsEqualIID(iid, IID_IUnknown) ? static_cast<First*>(this) : Find<First, Others...>(iid);
        if (!*object) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept override {
        return static_cast<ULONG>(InterlockedIncrement(&references_));
    }
    ULONG STDMETHODCALLTYPE Release() noexcept override {
        const LONG left = InterlockedDecrement(&references_);
        if (left != 0) return static_cast<ULONG>(left);
        references_ = 1;  // a destructor that hands `this` out and takes it back must not delete twice
        delete static_cast<Derived*>(this);
        return 0;
    }

    // One reference to this object, for the length of a modal call.
    Ptr<IUnknown> KeepAlive() noexcept { return Ptr<IUnknown>(static_cast<First*>(this)); }

protected:
    Object() noexcept = default;
    ~Object() = default;

private:
    template <class Interface, class... Rest>
    void* Find(REFIID iid) noexcept {
        if (InterfaceAnswers<Interface>(iid)) return static_cast<Interface*>(this);
        if constexpr (sizeof...(Rest) > 0) {
            return Find<Rest...>(iid);
        } else {
            return nullptr;
        }
    }

    LONG references_ = 1;
    LiveObject live_;
};

}  // namespace recoveryui::com

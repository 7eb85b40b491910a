// The base of every stand-in, and the rack-client part that some of them have.
#pragma once

#include "HostObjects.h"
#include "RecoveryUI.h"
#include "com/Bstr.h"
#include "com/Object.h"
#include "objects/Journal.h"

namespace tovarin {

// `class Thing final : public HostObject<Thing, IThing>` with `static constexpr const wchar_t* kName`, its
// name in the journal; a creatable one also has `kProgId`.
template <class Derived, class... Interfaces>
class HostObject : public com::Object<Derived, Interfaces..., INamedObject> {
public:
    HRESULT STDMETHODCALLTYPE GetJournalName(BSTR* name) noexcept override {
        return name ? com::CopyTo(name, Derived::kName) : E_POINTER;
    }

protected:
    ~HostObject() = default;
    // The call being answered: `return Call(L"SetTrigger", trigger).Answer([&] { ... });`
    template <class... Arguments>
    static JournalCall Call(const wchar_t* operation, const Arguments&... arguments) noexcept {
        return JournalCall(Derived::kName, operation, arguments...);
    }
};

// IObjectRackClient for a stand-in: `HostObject<Thing, IThing, RackClient<Thing>>`.
template <class Derived>
class RackClient : public IObjectRackClient {
public:
    static bool Answers(REFIID iid) noexcept { return IsEqualIID(iid, __uuidof(IObjectRackClient)); }

    // E_FAIL when no rack is held.
    HRESULT STDMETHODCALLTYPE GetRack(IObjectRack** rack) noexcept override {
        return JournalCall(Derived::kName, L"GetRack")
            .Give([&] { return rack_ ? rack_.CopyTo(rack) : E_FAIL; }, rack);
    }
    HRESULT STDMETHODCALLTYPE SetRack(IObjectRack* rack) noexcept override {
        return JournalCall(Derived::kName, L"SetRack", rack).Answer([&] { rack_ = rack; });
    }

protected:
    ~RackClient() = default;
    IObjectRack* Rack() const noexcept { return rack_.Get(); }

private:
    com::Ptr<IObjectRack> rack_;
};

}  // namespace tovarin

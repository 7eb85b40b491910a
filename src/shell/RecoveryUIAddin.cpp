#include "shell/RecoveryUIAddin.h"

#include <docobj.h>

#include <span>

#include "com/Dual.h"
#include "com/Object.h"
#include "resources/ids.h"
#include "shell/HostConnection.h"
#include "shell/Rack.h"
#include "shell/ShowManager.h"
#include "ui/Strings.h"

namespace recoveryui::shell {
namespace {

class RecoveryUIAddin final
    : public com::Object<RecoveryUIAddin, com::Dual<IUIAddIn>, IOleCommandTarget, RackClient> {
public:
    HRESULT STDMETHODCALLTYPE OnConnection(IUnknown* manager, LONG) noexcept override {
        const auto alive = KeepAlive();
        return com::Guarded([&] {
            if (!manager) return E_INVALIDARG;
            Disconnect();
            com::Ptr<IObjectRack> rack;
            HRESULT hr = RackOf(manager, rack);
            if (FAILED(hr)) return hr;
            HostConnection connection;
            hr = connection.Open(manager, rack.Get(), static_cast<IOleCommandTarget*>(this));
            if (FAILED(hr)) return hr;
            connection_ = std::move(connection);
            hostRack_ = rack;
            connectedRack = rack.Get();
            return SetRack(rack.Get());
        });
    }
    HRESULT STDMETHODCALLTYPE OnDisconnection() noexcept override {
        const auto alive = KeepAlive();
        Disconnect();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Activate(VARIANT_BOOL) noexcept override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnActivation() noexcept override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnDeActivation() noexcept override { return S_OK; }
    HRESULT STDMETHODCALLTYPE get_Name(BSTR* name) noexcept override {
        if (!name) return E_POINTER;
        *name = nullptr;
        return com::Guarded([&] { return com::CopyTo(name, ui::LoadText(IDS_ADDIN_NAME)); });
    }

    HRESULT STDMETHODCALLTYPE QueryStatus(const GUID* group, ULONG count, OLECMD* commands,
                                          OLECMDTEXT* text) noexcept override {
        if (text) text->cwActual = 0;  // the host has the texts from the registration
        if (!commands) return E_POINTER;
        if (!connection_.IsGroup(group)) return OLECMDERR_E_UNKNOWNGROUP;
        for (OLECMD& command : std::span(commands, count)) {
            const DWORD enabled = Rack() ? OLECMDF_ENABLED : 0;
            command.cmdf = connection_.IsCommand(command.cmdID) ? OLECMDF_SUPPORTED | enabled : 0;
        }
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Exec(const GUID* group, DWORD command, DWORD, VARIANT*,
                                   VARIANT*) noexcept override {
        if (!connection_.IsGroup(group)) return OLECMDERR_E_UNKNOWNGROUP;
        if (!connection_.IsCommand(command)) return OLECMDERR_E_NOTSUPPORTED;
        if (!Rack()) return OLECMDERR_E_DISABLED;
        // The host may disconnect the add-in while the dialog is open.
        const auto alive = KeepAlive();
        const com::Ptr<IObjectRack> rack(Rack());
        return ShowManager(rack.Get());
    }

    ~RecoveryUIAddin() { Disconnect(); }

private:
    // Through the manager as a rack client, else the manager as the rack itself.
    static HRESULT RackOf(IUnknown* manager, com::Ptr<IObjectRack>& rack) {
        if (const auto client = com::Query<IObjectRackClient>(manager)) {
            const HRESULT hr = client->GetRack(rack.GetAddressOf());
            return SUCCEEDED(hr) && rack ? S_OK : E_FAIL;
        }
        rack = com::Query<IObjectRack>(manager);
        return rack ? S_OK : E_NOINTERFACE;
    }

    void Disconnect() noexcept {
        if (hostRack_ && connectedRack == hostRack_.Get()) connectedRack = nullptr;
        hostRack_.Reset();
        connection_ = HostConnection();
        SetRack(nullptr);
    }

    HostConnection connection_;
    com::Ptr<IObjectRack> hostRack_;  // of the connection, whatever rack the host sets later
};

}  // namespace

HRESULT CreateRecoveryUIAddin(REFIID iid, void** object) noexcept {
    return RecoveryUIAddin::Create(iid, object);
}

}  // namespace recoveryui::shell

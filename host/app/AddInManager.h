// What an add-in is connected to: it gives the host's rack and takes menu commands.
#pragma once

#include <docobj.h>

#include <functional>
#include <string>
#include <vector>

#include "HostInterfaces.h"
#include "objects/HostObject.h"

namespace tovarin {

class AddInManager final
    : public HostObject<AddInManager, IMenuCommands, IObjectRackProvider, RackClient<AddInManager>> {
public:
    static constexpr const wchar_t* kName = L"AddInManager";

    struct Command {
        ULONG id;
        std::wstring caption;
        std::wstring prompt;
        com::Ptr<IOleCommandTarget> target;
    };

    explicit AddInManager(IObjectRack* rack) { static_cast<void>(SetRack(rack)); }

    HRESULT STDMETHODCALLTYPE RegisterCommand(BSTR text, IUnknown* target, GUID* group,
                                              ULONG* command) noexcept override;
    HRESULT STDMETHODCALLTYPE UnregisterCommand(ULONG command) noexcept override;

    // Creates an add-in and connects it; a failure leaves nothing behind.
    HRESULT Connect(const wchar_t* progId) noexcept;
    // Every add-in, last first.
    void DisconnectAll() noexcept;

    const std::vector<Command>& Commands() const { return commands_; }
    // Asks the add-in whether its command can be chosen now, and runs it.
    bool IsEnabled(const Command& command) const;
    HRESULT Execute(ULONG command);
    // Called after a command came or went.
    void OnChange(std::function<void()> changed) { changed_ = std::move(changed); }

private:
    void Changed() const {
        if (changed_) changed_();
    }

    std::vector<Command> commands_;
    std::vector<com::Ptr<IUIAddIn>> addIns_;
    ULONG lastId_ = 0;
    std::function<void()> changed_;
};

}  // namespace tovarin

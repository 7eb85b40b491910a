// What the add-in has put into the host, taken out again when the object dies.
#pragma once

#include <windows.h>

#include "HostInterfaces.h"
#include "RecoveryUI.h"
#include "com/Ptr.h"

namespace recoveryui::shell {

class HostConnection {
public:
    HostConnection() noexcept = default;
    HostConnection& operator=(HostConnection&& other) noexcept;
    HostConnection(const HostConnection&) = delete;
    HostConnection& operator=(const HostConnection&) = delete;
    ~HostConnection();

    // Registers the menu command, routed to the target, and hands the settings frame the specifier of the
    // Recovery tab. E_NOINTERFACE when the manager takes no commands, E_FAIL for a missing frame; nothing
    // stays behind after a failure.
    [[nodiscard]] HRESULT Open(IUnknown* manager, IObjectRack* rack, IUnknown* target);

    bool IsGroup(const GUID* group) const noexcept;
    bool IsCommand(ULONG command) const noexcept { return commands_ && command == command_; }

private:
    HRESULT AddSettingsPages(IObjectRack* rack);
    void Close() noexcept;

    com::Ptr<IMenuCommands> commands_;  // set while the command is registered
    GUID group_{};
    ULONG command_ = 0;
    com::Ptr<ISettingsPageCollector> collector_;  // set while it holds the specifier
    com::Ptr<IUnknown> specifier_;
};

}  // namespace recoveryui::shell

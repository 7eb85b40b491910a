#include "shell/HostConnection.h"

#include <utility>

#include "com/Create.h"
#include "resources/ids.h"
#include "shell/Rack.h"
#include "ui/Strings.h"

namespace recoveryui::shell {

HostConnection& HostConnection::operator=(HostConnection&& other) noexcept {
    if (this == &other) return *this;
    Close();
    // Swapped, since MinGW's ComPtr copies in a move assignment: the other would close what it gave away.
    commands_.Swap(other.commands_);
    group_ = other.group_;
    command_ = other.command_;
    collector_.Swap(other.collector_);
    specifier_.Swap(other.specifier_);
    return *this;
}

HostConnection::~HostConnection() {
    Close();
}

HRESULT HostConnection::Open(IUnknown* manager, IObjectRack* rack, IUnknown* target) {
    auto commands = com::Query<IMenuCommands>(manager);
    if (!commands) return E_NOINTERFACE;
    const HRESULT hr = commands->RegisterCommand(com::Bstr(ui::LoadText(IDS_ADDIN_COMMAND)).Get(), target,
                                                 &group_, &command_);
    if (FAILED(hr)) return hr;
    commands_ = std::move(commands);
    const HRESULT added = AddSettingsPages(rack);
    if (FAILED(added)) Close();
    return SUCCEEDED(added) ? S_OK : E_FAIL;
}

HRESULT HostConnection::AddSettingsPages(IObjectRack* rack) {
    com::Ptr<IObjectRack> frame;
    com::Ptr<ISettingsPageCollector> collector;
    com::Ptr<IObjectRackClient> specifier;
    HRESULT hr = Fetch(rack, L"FrameRack", frame);
    if (SUCCEEDED(hr)) hr = Fetch(frame.Get(), L"FRAME_PropProviderSettings", collector);
    if (SUCCEEDED(hr)) hr = com::Create(L"Vantrel.RecoveryPPSpecifier", specifier);
    if (SUCCEEDED(hr)) hr = specifier->SetRack(rack);
    if (SUCCEEDED(hr)) hr = collector->AddProvider(specifier.Get());
    if (FAILED(hr)) return hr;
    collector_ = std::move(collector);
    specifier_ = specifier.Get();
    return S_OK;
}

void HostConnection::Close() noexcept {
    // Taken out first: the host may call back and close what is being closed.
    com::Ptr<IMenuCommands> commands;
    com::Ptr<ISettingsPageCollector> collector;
    com::Ptr<IUnknown> specifier;
    commands.Swap(commands_);
    collector.Swap(collector_);
    specifier.Swap(specifier_);
    if (collector) collector->RemoveProvider(specifier.Get());
    if (commands) commands->UnregisterCommand(command_);
}

bool HostConnection::IsGroup(const GUID* group) const noexcept {
    return commands_ && group && IsEqualGUID(*group, group_);
}

}  // namespace recoveryui::shell

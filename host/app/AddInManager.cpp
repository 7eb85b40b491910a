#include "app/AddInManager.h"

#include <algorithm>
#include <utility>

#include "app/JournalRows.h"
#include "com/Create.h"

namespace tovarin {
namespace {

// The group of the commands in the Resources menu: {3E0B6B4B-7E0F-4F35-9B6C-6A1D5C7D4E21}
constexpr GUID kResourcesMenu = {
    0x3e0b6b4b, 0x7e0f, 0x4f35, {0x9b, 0x6c, 0x6a, 0x1d, 0x5c, 0x7d, 0x4e, 0x21}};

auto WithId(ULONG id) {
    return [id](const AddInManager::Command& command) { return command.id == id; };
}

}  // namespace

HRESULT AddInManager::RegisterCommand(BSTR text, IUnknown* target, GUID* group, ULONG* command) noexcept {
    // The group is not written down: it is the same for all.
    if (!group) return Call(L"RegisterCommand", text, target).Result(E_POINTER);
    *group = GUID_NULL;
    return Call(L"RegisterCommand", text, target)
        .Give(
            [&] {
                MenuText words{std::wstring(com::ViewOf(text))};
                if (words.caption.empty() || !target) return E_INVALIDARG;
                auto runs = com::Query<IOleCommandTarget>(target);
                if (!runs) return E_NOINTERFACE;
                commands_.push_back(
                    {++lastId_, std::move(words.caption), std::move(words.prompt), std::move(runs)});
                *group = kResourcesMenu;
                *command = lastId_;
                Changed();
                return S_OK;
            },
            command);
}

HRESULT AddInManager::UnregisterCommand(ULONG command) noexcept {
    return Call(L"UnregisterCommand", command).Answer([&] {
        const auto found = std::find_if(commands_.begin(), commands_.end(), WithId(command));
        if (found == commands_.end()) return E_INVALIDARG;
        const Command removed = std::move(*found);  // its target goes last
        commands_.erase(found);
        Changed();
        return S_OK;
    });
}

HRESULT AddInManager::Connect(const wchar_t* progId) noexcept {
    com::Ptr<IUIAddIn> addIn;
    HRESULT hr = com::Create(progId, addIn);
    if (FAILED(hr)) return hr;
    hr = com::Guarded([&] { addIns_.push_back(addIn); });
    if (FAILED(hr)) return hr;
    hr = addIn->OnConnection(static_cast<IMenuCommands*>(this), static_cast<LONG>(addIns_.size()));
    if (FAILED(hr)) addIns_.pop_back();
    return hr;
}

void AddInManager::DisconnectAll() noexcept {
    while (!addIns_.empty()) {
        const com::Ptr<IUIAddIn> addIn = std::move(addIns_.back());
        addIns_.pop_back();
        addIn->OnDisconnection();
    }
    // Commands of an add-in that forgot them.
    const auto forgotten = std::exchange(commands_, {});
}

bool AddInManager::IsEnabled(const Command& command) const {
    OLECMD state{command.id, 0};
    return SUCCEEDED(command.target->QueryStatus(&kResourcesMenu, 1, &state, nullptr)) &&
           state.cmdf & OLECMDF_ENABLED;
}

HRESULT AddInManager::Execute(ULONG command) {
    const auto found = std::find_if(commands_.begin(), commands_.end(), WithId(command));
    if (found == commands_.end()) return E_INVALIDARG;
    const com::Ptr<IOleCommandTarget> target = found->target;  // the command may go while it runs
    return target->Exec(&kResourcesMenu, command, OLECMDEXECOPT_DODEFAULT, nullptr, nullptr);
}

}  // namespace tovarin

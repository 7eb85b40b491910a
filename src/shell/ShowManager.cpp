#include "shell/ShowManager.h"

#include "com/Create.h"

namespace recoveryui::shell {

HRESULT ShowManager(IObjectRack* rack) noexcept {
    com::Ptr<IObjectRackClient> client;
    HRESULT hr = com::Create(L"Vantrel.RecoveryDlg", client);
    if (FAILED(hr)) return hr;
    hr = client->SetRack(rack);
    if (FAILED(hr)) return hr;
    const auto manager = com::Query<IRecoveryDlg>(client.Get());
    if (!manager) return E_NOINTERFACE;
    manager->DoModal();
    return S_OK;
}

}  // namespace recoveryui::shell

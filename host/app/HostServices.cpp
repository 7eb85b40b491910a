#include "app/HostServices.h"

#include "app/HelpViewer.h"
#include "com/Create.h"

namespace tovarin {
namespace {

struct Service {
    const wchar_t* name;
    const wchar_t* progId;
};
constexpr Service kServices[] = {
    {L"HostApplication", L"Tovarin.HostApplication"},
    {L"TestOptions", L"Tovarin.TestOptions"},
    {L"RACK_FILE_LOCATOR", L"Tovarin.FileLocator"},
    {L"TovPluginMgrObject", L"Tovarin.PluginMgr"},
    {L"RecordMgr", L"Tovarin.RecordMgr"},
};
constexpr const wchar_t* kPages = L"FRAME_PropProviderSettings";

}  // namespace

HostServices::HostServices() {
    com::Check(com::Create(L"Tovarin.CallJournal", journal_));
    Journal::Instance().ForwardTo(com::Query<ICallRecorder>(journal_.Get()).Get());
    com::Check(com::Create(L"Tovarin.ObjectRack", rack_));
    com::Check(com::Create(L"Tovarin.ObjectRack", frameRack_));
    addIns_ = AddInManager::Make(rack_.Get());
    pages_ = SettingsPages::Make();
}

void HostServices::FillRacks() {
    com::Check(frameRack_->SetObject(com::Bstr(kPages).Get(), pages_->KeepAlive().Get()));
    Put(L"FrameRack", frameRack_.Get());
    Put(L"HelpViewer", HelpViewer::Make()->KeepAlive().Get());
    for (const Service& service : kServices) {
        com::Ptr<IUnknown> object;
        const HRESULT hr = com::Create(service.progId, object);
        if (FAILED(hr)) {
            static_cast<void>(JournalCall(L"Host", L"Create", std::wstring_view(service.progId)).Result(hr));
            continue;
        }
        if (const auto client = com::Query<IObjectRackClient>(object.Get()))
            com::Check(client->SetRack(rack_.Get()));
        Put(service.name, object.Get());
    }
    if (const auto plugins = Find<IPluginMgrControl>(L"TovPluginMgrObject"))
        com::Check(plugins->SetFileLocator(Find<IUnknown>(L"RACK_FILE_LOCATOR").Get()));
}

void HostServices::Put(const wchar_t* name, IUnknown* object) {
    com::Check(rack_->SetObject(com::Bstr(name).Get(), object));
    contents_.push_back({name, object});
}

com::Ptr<IUnknown> HostServices::FindObject(std::wstring_view name) const {
    for (const Content& content : contents_) {
        if (content.name == name) return content.object;
    }
    return {};
}

// Services hold the rack and the rack holds them: what was put in is taken out again.
HostServices::~HostServices() {
    addIns_->DisconnectAll();
    pages_->Forget();
    static_cast<void>(com::Guarded([&] {
        for (const Content& content : contents_) rack_->RemoveObject(com::Bstr(content.name).Get());
        frameRack_->RemoveObject(com::Bstr(kPages).Get());
    }));
}

}  // namespace tovarin

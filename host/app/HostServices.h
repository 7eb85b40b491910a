// The objects that the host offers to the component, and the racks in which they are found.
#pragma once

#include "HostInterfaces.h"
#include "app/AddInManager.h"
#include "app/SettingsPages.h"

namespace tovarin {

// Goes in three steps, so that the journal's window sees everything: journal, racks, add-ins.
class HostServices {
public:
    // Throws when the stand-ins cannot be created.
    HostServices();
    ~HostServices();
    HostServices(const HostServices&) = delete;
    HostServices& operator=(const HostServices&) = delete;

    // A service that cannot be created is left out; the journal has a line about it.
    void FillRacks();
    // Failure: the add-in's commands and pages are not there.
    HRESULT ConnectAddIn() { return addIns_->Connect(kAddIn); }
    static constexpr const wchar_t* kAddIn = L"Vantrel.RecoveryUIAddin";

    ICallJournal* Journal() const { return journal_.Get(); }
    IObjectRack* Rack() const { return rack_.Get(); }
    AddInManager& AddIns() const { return *addIns_.Get(); }
    const SettingsPages& Pages() const { return *pages_.Get(); }
    // An object of the rack, without a line in the journal; empty when it is not there.
    template <class Interface>
    com::Ptr<Interface> Find(const wchar_t* name) const {
        return com::Query<Interface>(FindObject(name).Get());
    }

private:
    // The host's own objects write into the same journal.
    class JournalLink {
    public:
        JournalLink() = default;
        ~JournalLink() { Journal::Instance().ForwardTo(nullptr); }
        JournalLink(const JournalLink&) = delete;
        JournalLink& operator=(const JournalLink&) = delete;
    };

    struct Content {
        std::wstring name;
        com::Ptr<IUnknown> object;
    };

    void Put(const wchar_t* name, IUnknown* object);
    com::Ptr<IUnknown> FindObject(std::wstring_view name) const;

    JournalLink link_;
    com::Ptr<ICallJournal> journal_;
    com::Ptr<IObjectRack> rack_;
    com::Ptr<IObjectRack> frameRack_;
    com::Ptr<AddInManager> addIns_;
    com::Ptr<SettingsPages> pages_;
    std::vector<Content> contents_;
};

}  // namespace tovarin

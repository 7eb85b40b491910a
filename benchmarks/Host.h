// The stand-ins of a host that the measured windows need, and the files that they open.
#pragma once

#include <string>
#include <vector>

#include "HostInterfaces.h"
#include "HostObjects.h"
#include "RecoveryUI.h"
#include "com/Create.h"
#include "com/Guard.h"
#include "objects/store/StoreModel.h"

namespace recoveryui::bench {

class Host {
public:
    Host();
    ~Host();

    IObjectRack* Rack() const { return rack_.Get(); }
    template <class Interface>
    com::Ptr<Interface> New(const wchar_t* progId) const {
        com::Ptr<Interface> object;
        com::Check(com::Create(progId, object));
        if (const auto client = com::Query<IObjectRackClient>(object.Get()))
            com::Check(client->SetRack(rack_.Get()));
        return object;
    }

    // The record string of the open test.
    void StoreRecords(const std::wstring& records) const;

    // A recovery file of so many scenarios; gives its path.
    std::wstring MakeFile(int scenarios);

private:
    com::Ptr<IObjectRack> rack_;
    com::Ptr<ITestOptions> branch_;
    std::wstring folder_;
    std::vector<std::wstring> files_;
};

// Ordinary scenarios of every kind.
std::vector<tovarin::store::NamedScenario> MakeScenarios(int count);
std::string TextOf(const std::vector<tovarin::store::NamedScenario>& scenarios);

// Associations in runs of a hundred for each file.
std::wstring MakeRecords(int count);

}  // namespace recoveryui::bench

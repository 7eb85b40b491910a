// What every journey has around it: the host's objects in a rack, a folder and a registry branch of its own.
#pragma once

#include <windows.h>

#include <string>

#include "HostInterfaces.h"
#include "RecoveryUI.h"
#include "com/Bstr.h"
#include "com/Create.h"
#include "com/Guard.h"
#include "harness/ComTest.h"
#include "harness/TestSettings.h"
#include "proof/Journey.h"
#include "resources/ids.h"

namespace recoveryui::proof {

using test::kEditOfCombo;

// A new object of a class. Throws HResultError.
template <class Interface>
com::Ptr<Interface> New(const wchar_t* progId) {
    com::Ptr<Interface> object;
    com::Check(com::Create(progId, object));
    return object;
}

class Scene : public Stage {
public:
    const std::wstring& Folder() const { return folder_; }

protected:
    Scene();
    ~Scene() override;

    std::wstring Path(const std::wstring& name) const { return folder_ + L"\\" + name; }
    // Gives the full path.
    std::wstring Write(const std::wstring& name, const std::string& bytes) const;
    // Bytes, one character each; "no file".
    static std::wstring Read(const std::wstring& path);
    // A recovery file with one scenario of every kind: "Pop-up", "State", "Error" and "Crash".
    std::wstring WriteEveryKind(const std::wstring& name) const;
    // A scenario of such a file.
    com::Ptr<IUnknown> Scenario(const std::wstring& file, const wchar_t* name) const;
    // All that a scenario holds, as a recovery file would.
    std::wstring Describe(IUnknown* scenario, const std::wstring& name) const;
    // A new repository, loaded.
    com::Ptr<IRecoveryRepository> Load(const std::wstring& path) const;
    // The user's defaults and the values of the open test.
    std::wstring Options() const;

    // A new object of the component that has the rack. Throws HResultError.
    template <class Interface>
    com::Ptr<Interface> Start(const wchar_t* progId) const {
        auto object = New<Interface>(progId);
        const auto client = com::Query<IObjectRackClient>(object.Get());
        com::Check(client ? client->SetRack(rack_.Get()) : E_NOINTERFACE);
        return object;
    }

    // Under HKEY_CURRENT_USER; the process's own, for another one may play at the same time.
    const std::wstring branch_;
    const test::TestSettings settings_{branch_};
    test::Rack rack_;

private:
    std::wstring folder_;
};

}  // namespace recoveryui::proof

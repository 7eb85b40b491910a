// The fixture of every test that reaches the component and the stand-ins the way a host does: by ProgID,
// from the real DLLs beside the test program. Leaks of objects and windows fail the test.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <functional>
#include <string>

#include "HostObjects.h"
#include "RecoveryUI.h"
#include "com/Bstr.h"
#include "com/Ptr.h"
#include "harness/User.h"
#include "harness/UserScreen.h"

namespace recoveryui::test {

// What a function of a module answers that takes nothing, "DllCanUnloadNow"; E_FAIL when there is none.
HRESULT CallEntryPoint(HMODULE module, const char* name);

class ComTest : public testing::Test {
protected:
    using Story = std::function<void(UserScreen&, HWND window)>;

    ComTest();
    // After the members of the test's own fixture: what lives here still has leaked.
    ~ComTest() override;

    // A new object; the test fails and the pointer is empty when there is none.
    template <class Interface>
    static com::Ptr<Interface> New(const wchar_t* progId) {
        com::Ptr<Interface> object;
        Create(progId, __uuidof(Interface), reinterpret_cast<void**>(object.GetAddressOf()));
        return object;
    }

    // Makes a modal call while the story uses its window, which is cancelled when it is still open then.
    static HRESULT Use(const wchar_t* title, const std::function<HRESULT()>& call, const Story& story);

    // The nth matching call on a stand-in from now on answers the code, and `times` calls in all (0: every
    // later one too). Failed creation: the ProgID, and "Create".
    void FailCall(const wchar_t* object, const wchar_t* operation, HRESULT code = E_FAIL, long nth = 1,
                  long times = 1);
    void ClearFaults();
    // The calls on stand-ins since the test began or since `ForgetCalls`, one line each.
    std::wstring Calls();
    void ForgetCalls();

    // Whether nothing of the component is in use.
    bool CanUnload() const { return CallEntryPoint(component_, "DllCanUnloadNow") == S_OK; }

    HMODULE component_ = nullptr;

private:
    static void Create(const wchar_t* progId, REFIID iid, void** object);

    HMODULE standIns_ = nullptr;
    com::Ptr<ICallJournal> journal_;
};

// What another program reads from a recovery file: the names of its scenarios.
Rows NamesInFile(const std::wstring& path);

// An object rack of the host's kind, filled by the test.
class Rack {
public:
    Rack();
    Rack& Put(const wchar_t* name, IUnknown* object);
    // Puts a new stand-in under the name.
    Rack& Put(const wchar_t* name, const wchar_t* progId);
    // Hands the rack to an object of the component.
    void GiveTo(IUnknown* client) const;
    IObjectRack* Get() const { return rack_.Get(); }

private:
    com::Ptr<IObjectRack> rack_;
};

}  // namespace recoveryui::test

// Creating the component's classes beside creating a minimal class of a minimal DLL, both found through the
// program's manifest, both DLLs already loaded.
#include <windows.h>

#include "Compare.h"
#include "Rows.h"
#include "com/Guard.h"
#include "com/Ptr.h"
#include "floor/Floor.h"

namespace recoveryui::bench {
namespace {

constexpr int kTimes = 50;
constexpr const wchar_t* kClasses[] = {L"RecoveryWizard",    L"RecoveryDlg",     L"RecoveryPP",
                                       L"RecoveryAddDlg",    L"RecoveryUIAddin", L"RecoveryPPSpecifier",
                                       L"ScenarioProperties"};

void Create(REFCLSID clsid) {
    for (int i = 0; i < kTimes; ++i) {
        com::Ptr<IUnknown> object;
        com::Check(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown,
                                    reinterpret_cast<void**>(object.GetAddressOf())));
    }
}

}  // namespace

void MeasureCreation() {
    for (const wchar_t* name : kClasses) {
        CLSID clsid{};
        com::Check(CLSIDFromProgID((std::wstring(L"Vantrel.") + name).c_str(), &clsid));
        const std::wstring wide(name);
        Compare({{"create " + std::string(wide.begin(), wide.end()) + ", 50 times", 1.2}}, 21,
                Timed([&] { Create(clsid); }), Timed([] { Create(kClsidFloor); }));
    }
}

}  // namespace recoveryui::bench

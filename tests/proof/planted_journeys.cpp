// Journeys that break a promise as soon as a call fails: whoever does not find these finds nothing.
#include <windows.h>

#include "proof/OutwardCalls.h"
#include "proof/Scene.h"

namespace recoveryui::proof {
namespace {

using Misdeed = void(std::wstring& state, bool& success);

// Makes an object of the component, which costs it some calls, and then does what it should not.
class Planted final : public Scene {
public:
    explicit Planted(Misdeed* misbehave) : misbehave_(misbehave) {}

private:
    bool Play(Actor& actor) override {
        com::Ptr<IRecoveryDlg> dialog;
        static_cast<void>(com::Create(L"Vantrel.RecoveryDlg", dialog));
        if (dialog) dialog->DoModal();  // without a rack it does nothing
        if (!OutwardCalls::HasFailed()) return true;
        bool success = false;
        actor.During([&] { return misbehave_(state_, success), S_OK; }, [](Player&) {});
        return success;
    }
    std::wstring State() override { return state_; }

    Misdeed* misbehave_;
    std::wstring state_ = L"old";
};

template <Misdeed* misbehave>
std::unique_ptr<Stage> Plant() {
    return Make<Planted>(misbehave);
}

}  // namespace

const std::vector<Journey> plantedJourneys = {
    {"planted-crash",
     Plant<[](std::wstring&, bool&) { RaiseException(EXCEPTION_ACCESS_VIOLATION, 0, 0, nullptr); }>,
     "CRASH: exception 0xC0000005"},
    {"planted-leak", Plant<[](std::wstring&, bool&) { CreateCompatibleDC(nullptr); }>,
     "left behind: device contexts +1"},
    {"planted-window", Plant<[](std::wstring&, bool&) {
         CreateWindowW(L"Static", L"left", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
     }>,
     "left behind: windows +1"},
    {"planted-object", Plant<[](std::wstring&, bool&) { New<IUnknown>(L"Tovarin.RecordMgr").Detach(); }>,
     "left behind: live stand-ins +1"},
    {"planted-string", Plant<[](std::wstring&, bool&) { SysAllocString(L"lost"); }>,
     "left behind: task memory blocks +1"},
    {"planted-half", Plant<[](std::wstring& state, bool&) { state = L"half"; }>,
     "neither the old nor the new state"},
    {"planted-success", Plant<[](std::wstring& state, bool& success) {
         state = L"half";
         success = true;
     }>,
     "reported success, but"},
    {"planted-standstill", Plant<[](std::wstring&, bool&) { Sleep(7000); }>, "there is no way out"},
};

}  // namespace recoveryui::proof

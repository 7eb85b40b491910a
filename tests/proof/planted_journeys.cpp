// Journeys that break a promise as soon as a call fails: whoever does not find these finds nothing.
#include <windows.h>

#include "proof/OutwardCalls.h"
#include "proof/Scene.h"

namespace recoveryui::proof {
namespace {

using Misdeed = void(std::wstring& state);

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
        actor.During(
            [&] {
                misbehave_(state_);
                return S_OK;
            },
            [](Player&) {});
        return false;
    }
    std::wstring State() override { return state_; }

    Misdeed* misbehave_;
    std::wstring state_ = L"old";
};

template <Misdeed* misbehave>
std::unique_ptr<Stage> Plant() {
    return Make<Planted>(misbehave);
}

constexpr Journey kJourneys[] = {
    {"planted-crash",
     Plant<[](std::wstring&) { RaiseException(EXCEPTION_ACCESS_VIOLATION, 0, 0, nullptr); }>},
    {"planted-leak", Plant<[](std::wstring&) { CreateCompatibleDC(nullptr); }>},
    {"planted-window", Plant<[](std::wstring&) {
         CreateWindowW(L"Static", L"left", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
     }>},
    {"planted-half", Plant<[](std::wstring& state) { state = L"half"; }>},
    {"planted-standstill", Plant<[](std::wstring&) { Sleep(7000); }>},
};

}  // namespace

std::span<const Journey> PlantedJourneys() {
    return kJourneys;
}

}  // namespace recoveryui::proof

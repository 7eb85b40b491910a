// Journeys that break a promise as soon as a call fails: whoever does not find these finds nothing.
#include <windows.h>

#include "proof/OutwardCalls.h"
#include "proof/Scene.h"

namespace recoveryui::proof {
namespace {

// Registers a class object of the component, which costs it some calls, and then does what it should not.
class Planted : public Scene {
protected:
    virtual void Misbehave() = 0;

private:
    void Play(Actor& actor) override {
        Mark();
        com::Ptr<IRecoveryDlg> dialog;
        static_cast<void>(com::Create(L"Vantrel.RecoveryDlg", dialog));
        if (dialog) dialog->DoModal();  // without a rack it does nothing
        if (OutwardCalls::HasFailed()) {
            actor.During(
                [&] {
                    Misbehave();
                    return S_OK;
                },
                [](Player&) {});
        }
        SetDone(!OutwardCalls::HasFailed());
    }
    std::wstring State() override { return state_; }

protected:
    std::wstring state_ = L"old";
};

struct Crash final : Planted {
    void Misbehave() override { RaiseException(EXCEPTION_ACCESS_VIOLATION, 0, 0, nullptr); }
};
struct Leak final : Planted {
    void Misbehave() override { CreateCompatibleDC(nullptr); }
};
struct WindowLeft final : Planted {
    void Misbehave() override {
        CreateWindowW(L"Static", L"left", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    }
};
struct HalfState final : Planted {
    void Misbehave() override { state_ = L"half"; }
};
struct NoWayOut final : Planted {
    void Misbehave() override {
        const ULONGLONG end = GetTickCount64() + 7000;
        while (GetTickCount64() < end) Sleep(50);
    }
};

constexpr Journey kJourneys[] = {{"planted-crash", MakeStage<Crash>},
                                 {"planted-leak", MakeStage<Leak>},
                                 {"planted-window", MakeStage<WindowLeft>},
                                 {"planted-half", MakeStage<HalfState>},
                                 {"planted-standstill", MakeStage<NoWayOut>}};

}  // namespace

std::span<const Journey> PlantedJourneys() { return kJourneys; }

}  // namespace recoveryui::proof

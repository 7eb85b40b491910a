#include "proof/Openings.h"

#include <array>
#include <stdexcept>

#include "app/SettingsFrame.h"
#include "proof/Counts.h"
#include "proof/OutwardCalls.h"

namespace recoveryui::proof {
namespace {

constexpr wchar_t kWizard[] = L"Recovery Scenario Wizard", kProperties[] = L"Recovery Scenario Properties";
constexpr Openings::Dialog kDialogs[] = {
    {"wizard", kWizard},
    {"wizard, editing", kWizard},
    {"manager", L"Recovery Scenario Manager"},
    {"add dialog", L"Add Recovery Scenario"},
    {"tab", L"Test Settings"},
    {"properties of a pop-up", kProperties},
    {"properties of a state", kProperties},
    {"properties of an error", kProperties},
    {"properties of a crash", kProperties},
};

}  // namespace

Openings::Openings() {
    rack_.Put(L"HelpViewer", help_.Get());
}

std::span<const Openings::Dialog> Openings::Dialogs() {
    return kDialogs;
}

void Openings::Open(size_t dialog, Actor& actor, const Script& script) {
    actor.During([&] { return Show(dialog); },
                 [&](Player& player) { script(player, player.First(kDialogs[dialog].title)); });
}

HRESULT Openings::Show(size_t dialog) {
    if (dialog < 2) {
        const auto wizard = Start<IRecoveryWizard>(L"Vantrel.RecoveryWizard");
        com::Check(wizard->put_Repository(Load({}).Get()));
        if (dialog == 1) {
            com::Check(wizard->put_Scenario(Scenario(file_, L"Pop-up").Get()));
            com::Check(wizard->put_ScenarioName(com::Bstr(L"Pop-up").Get()));
        }
        return com::Query<IRecoveryDlg>(wizard.Get())->DoModal();
    }
    if (dialog == 2) return Start<IRecoveryDlg>(L"Vantrel.RecoveryDlg")->DoModal();
    if (dialog == 3) return Start<IRecoveryAddDlg>(L"Vantrel.RecoveryAddDlg")->DoModal();
    if (dialog == 4) {
        tovarin::SettingsFrame({rack_.Get(), settings_.Get(), {CLSID_RecoveryPP}}).ShowModal(nullptr);
        return S_OK;
    }
    const wchar_t* const name = std::array{L"Pop-up", L"State", L"Error", L"Crash"}[dialog - 5];
    return Start<IScenarioProperties>(L"Vantrel.ScenarioProperties")
        ->DoModal(Scenario(file_, name).Get(), com::Bstr(file_).Get(), com::Bstr(name).Get());
}

void LoadModules() {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    Counts::WatchTaskMemory();
    const HMODULE component = LoadLibraryW(L"RecoveryUI.dll");
    if (!component || !LoadLibraryW(L"TovarinObjects.dll")) throw std::runtime_error("a module is missing");
    OutwardCalls::Catch(component);
    // The platform keeps the device contexts of windows that were in use at once: as many as will ever be are
    // made here.
    std::array<HDC, 48> contexts{};
    for (HDC& context : contexts) context = GetDC(nullptr);
    for (const HDC context : contexts) ReleaseDC(nullptr, context);
}

}  // namespace recoveryui::proof

#include "proof/Openings.h"

#include <array>
#include <stdexcept>

#include "proof/Counts.h"
#include "proof/OutwardCalls.h"
#include "settings/SettingsTest.h"

namespace recoveryui::proof {
namespace {

constexpr const char* kNames[] = {"wizard",           "wizard, editing",  "manager",
                                  "add dialog",       "tab",              "properties of a pop-up",
                                  "properties of a state", "properties of an error", "properties of a crash"};
constexpr const wchar_t* kTitles[] = {L"Recovery Scenario Wizard",
                                      L"Recovery Scenario Wizard",
                                      L"Recovery Scenario Manager",
                                      L"Add Recovery Scenario",
                                      L"Test Settings",
                                      L"Recovery Scenario Properties",
                                      L"Recovery Scenario Properties",
                                      L"Recovery Scenario Properties",
                                      L"Recovery Scenario Properties"};

}  // namespace

Openings::Openings() : file_(WriteEveryKind(L"file.trs")) { rack_.Put(L"HelpViewer", help_.Get()); }

std::span<const char* const> Openings::Names() { return kNames; }

void Openings::Open(size_t dialog, Actor& actor, const Script& script) {
    const auto show = [&] {
        switch (dialog) {
            case 0: return Wizard(nullptr);
            case 1: return Wizard(L"Pop-up");
            case 2: return Manager();
            case 3: return AddDialog();
            case 4: return Tab();
            case 5: return Properties(L"Pop-up");
            case 6: return Properties(L"State");
            case 7: return Properties(L"Error");
            default: return Properties(L"Crash");
        }
    };
    actor.During(show, [&](Player& player) { script(player, player.First(kTitles[dialog])); });
}

HRESULT Openings::Wizard(const wchar_t* edited) {
    const auto wizard = New<IRecoveryWizard>(L"Vantrel.RecoveryWizard");
    HandRack(wizard.Get());
    com::Check(wizard->put_Repository(Load({}).Get()));
    if (edited) {
        com::Check(wizard->put_Scenario(Scenario(file_, edited).Get()));
        com::Check(wizard->put_ScenarioName(com::Bstr(edited).Get()));
    }
    return com::Query<IRecoveryDlg>(wizard.Get())->DoModal();
}

HRESULT Openings::Manager() {
    const auto manager = New<IRecoveryDlg>(L"Vantrel.RecoveryDlg");
    HandRack(manager.Get());
    return manager->DoModal();
}

HRESULT Openings::AddDialog() {
    const auto dialog = New<IRecoveryAddDlg>(L"Vantrel.RecoveryAddDlg");
    HandRack(dialog.Get());
    return dialog->DoModal();
}

HRESULT Openings::Tab() {
    const auto page = New<IPropertyPage>(L"Vantrel.RecoveryPP");
    test::TestFrame(page.Get(), rack_.Get(), options_.Get(), false).ShowModal();
    return S_OK;
}

HRESULT Openings::Properties(const wchar_t* name) {
    const auto sheet = New<IScenarioProperties>(L"Vantrel.ScenarioProperties");
    HandRack(sheet.Get());
    return sheet->DoModal(Scenario(file_, name).Get(), com::Bstr(file_).Get(), com::Bstr(name).Get());
}

void LoadModules() {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    Counts::WatchTaskMemory();
    const HMODULE component = LoadLibraryW(L"RecoveryUI.dll");
    if (!component || !LoadLibraryW(L"TovarinObjects.dll")) throw std::runtime_error("a module is missing");
    OutwardCalls::Catch(component);
    // The platform keeps the device contexts of windows that were in use at once: as many as will ever be are made here.
    std::array<HDC, 48> contexts{};
    for (HDC& context : contexts) context = GetDC(nullptr);
    for (const HDC context : contexts) ReleaseDC(nullptr, context);
}

}  // namespace recoveryui::proof

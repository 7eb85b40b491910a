// The test settings: the tab with its Add dialog, the dialog by itself, and the properties of each kind.
#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include "com/Variant.h"
#include "proof/Scene.h"
#include "settings/SettingsTest.h"

namespace recoveryui::proof {
namespace {

constexpr int kEditOfCombo = 1001;

void ChooseAll(Player& player, HWND dialog, const std::wstring& file) {
    player.Try([&] {
        player.Enter(dialog, kEditOfCombo, file);
        player.Keys({VK_RETURN});
        player.WaitUntil("the scenarios", [&] { return player.RowsOf(dialog, IDC_ADD_SCENARIO_LIST).size() == 4; });
    });
    const HWND list = player.Control(dialog, IDC_ADD_SCENARIO_LIST);
    player.Do([=] { ListView_SetItemState(list, -1, LVIS_SELECTED, LVIS_SELECTED); });
}

class AddDialog final : public Scene {
    void Play(Actor& actor) override {
        Mark();
        if (FAILED(com::Create(L"Vantrel.RecoveryAddDlg", dialog_)) || !HandRack(dialog_.Get())) return;
        const HRESULT hr = actor.During([&] { return dialog_->DoModal(); },
                                        [&](Player& player) {
                                            const HWND window = player.First(L"Add Recovery Scenario");
                                            ChooseAll(player, window, file_);
                                            player.Leave(window, IDOK);
                                        });
        SetDone(hr == S_OK);
        if (hr == S_OK) Mark();
    }
    std::wstring State() override {
        com::Bstr file;
        com::Variant names;
        if (!dialog_ || !IsDone()) return L"nothing chosen";
        com::Check(dialog_->get_FilePath(file.Put()));
        com::Check(dialog_->get_ScenariosNames(names.Put()));
        const LONG count = names.Type() == (VT_ARRAY | VT_BSTR) ? static_cast<LONG>(names.Get().parray->rgsabound[0].cElements) : -1;
        return file.Text() + L": " + std::to_wstring(count);
    }

    const std::wstring file_ = WriteEveryKind(L"file.trs");
    com::Ptr<IRecoveryAddDlg> dialog_;
};

class Tab final : public Scene {
    void Play(Actor& actor) override {
        Mark();
        com::Ptr<IPropertyPage> page;
        if (FAILED(com::Create(L"Vantrel.RecoveryPP", page)) || !HandRack(page.Get())) return;
        test::TestFrame frame(page.Get(), rack_.Get(), options_.Get(), false);
        actor.During(
            [&] {
                frame.ShowModal();
                return S_OK;
            },
            [&](Player& player) { Use(player); });
        SetDone(actor.GaveUp().empty());
    }
    void Use(Player& player) {
        const HWND frame = player.First(L"Test Settings");
        HWND dialog = nullptr;
        player.Try([&] {
            player.Press(frame, IDC_RECOVERY_ADD);
            dialog = player.WaitForWindow(L"Add Recovery Scenario");
        });
        ChooseAll(player, dialog, file_);
        player.Leave(dialog, IDOK);
        player.Try([&] {
            player.WaitUntil("the scenarios in the tab", [&] { return player.RowsOf(frame, IDC_RECOVERY_LIST).size() == 4; });
        });
        const std::wstring before = Options();
        player.Try([&] {
            player.Press(frame, IDC_RECOVERY_SET_DEFAULT);
            player.WaitUntil("the default is stored", [&] { return Options() != before; });
        });
        Mark();
        player.Try([&] { player.Choose(frame, IDC_RECOVERY_ACTIVATION, L"Never"); });
        player.Leave(frame, IDOK);
        Mark();
    }
    std::wstring State() override { return Options(); }

    const std::wstring file_ = WriteEveryKind(L"file.trs");
};

class PropertiesOf : public Scene {
protected:
    explicit PropertiesOf(const wchar_t* name) : name_(name), scenario_(Scenario(file_, name)) {}

private:
    void Play(Actor& actor) override {
        Mark();
        com::Ptr<IScenarioProperties> sheet;
        if (FAILED(com::Create(L"Vantrel.ScenarioProperties", sheet)) || !HandRack(sheet.Get())) return;
        const com::Bstr file(file_), name(name_);
        const HRESULT hr = actor.During([&] { return sheet->DoModal(scenario_.Get(), file.Get(), name.Get()); },
                                        [&](Player& player) {
                                            const HWND window = player.First(L"Recovery Scenario Properties");
                                            for (WPARAM tab : {1, 2, 3, 0})
                                                player.Do([=] { SendMessageW(window, PSM_SETCURSEL, tab, 0); });
                                            player.Leave(window, IDOK);
                                        });
        SetDone(SUCCEEDED(hr));
    }
    std::wstring State() override { return Describe(scenario_.Get(), name_); }

    const std::wstring file_ = WriteEveryKind(L"file.trs");
    const std::wstring name_;
    com::Ptr<IUnknown> scenario_;
};
struct PropertiesOfPopup final : PropertiesOf {
    PropertiesOfPopup() : PropertiesOf(L"Pop-up") {}
};
struct PropertiesOfState final : PropertiesOf {
    PropertiesOfState() : PropertiesOf(L"State") {}
};
struct PropertiesOfError final : PropertiesOf {
    PropertiesOfError() : PropertiesOf(L"Error") {}
};
struct PropertiesOfCrash final : PropertiesOf {
    PropertiesOfCrash() : PropertiesOf(L"Crash") {}
};

constexpr Journey kJourneys[] = {
    {"add-dialog", MakeStage<AddDialog>},
    {"tab", MakeStage<Tab>},
    {"properties-popup", MakeStage<PropertiesOfPopup>},
    {"properties-state", MakeStage<PropertiesOfState>},
    {"properties-error", MakeStage<PropertiesOfError>},
    {"properties-crash", MakeStage<PropertiesOfCrash>},
};

}  // namespace

std::span<const Journey> SettingsJourneys() { return kJourneys; }

}  // namespace recoveryui::proof

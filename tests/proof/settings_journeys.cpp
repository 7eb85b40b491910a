// The test settings: the tab with its Add dialog, the dialog by itself, and the properties of each kind.
#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include "app/SettingsFrame.h"
#include "com/Variant.h"
#include "proof/Scene.h"
#include "support/Text.h"

namespace recoveryui::proof {
namespace {

void ChooseAll(Player& player, HWND dialog, const std::wstring& file) {
    player.Try([&] {
        player.Enter(dialog, kEditOfCombo, file);
        player.Keys({VK_RETURN});
        player.WaitUntil("the scenarios",
                         [&] { return player.RowsOf(dialog, IDC_ADD_SCENARIO_LIST).size() == 4; });
    });
    const HWND list = player.Control(dialog, IDC_ADD_SCENARIO_LIST);
    player.Do([=] { ListView_SetItemState(list, -1, LVIS_SELECTED, LVIS_SELECTED); });
}

class AddDialog final : public Scene {
    bool Play(Actor& actor) override {
        dialog_ = Start<IRecoveryAddDlg>(L"Vantrel.RecoveryAddDlg");
        return actor.During([&] { return dialog_->DoModal(); },
                            [&](Player& player) {
                                const HWND window = player.First(L"Add Recovery Scenario");
                                ChooseAll(player, window, file_);
                                player.Leave(window, IDOK);
                            }) == S_OK;
    }
    std::wstring State() override {
        com::Bstr file;
        com::Variant names;
        if (!dialog_ || !IsDone()) return L"nothing chosen";
        com::Check(dialog_->get_FilePath(file.Put()));
        com::Check(dialog_->get_ScenariosNames(names.Put()));
        const LONG count = names.Type() == (VT_ARRAY | VT_BSTR)
                               ? static_cast<LONG>(names.Get().parray->rgsabound[0].cElements)
                               : -1;
        return file.Text() + L": " + std::to_wstring(count);
    }

    const std::wstring file_ = WriteEveryKind(L"file.trs");
    com::Ptr<IRecoveryAddDlg> dialog_;
};

class Tab final : public Scene {
    bool Play(Actor& actor) override {
        tovarin::SettingsFrame frame({rack_.Get(), settings_.Get(), {CLSID_RecoveryPP}});
        actor.During([&] { return frame.ShowModal(nullptr), S_OK; }, [&](Player& player) { Use(player); });
        return actor.GaveUp().empty();
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
            player.WaitUntil("the scenarios in the tab",
                             [&] { return player.RowsOf(frame, IDC_RECOVERY_LIST).size() == 4; });
        });
        player.Try([&] {
            player.Press(frame, IDC_RECOVERY_SET_DEFAULT);
            player.WaitUntil("the default is stored",
                             [&] { return !player.IsEnabled(frame, IDC_RECOVERY_SET_DEFAULT); });
        });
        Mark();
        player.Try([&] { player.Choose(frame, IDC_RECOVERY_ACTIVATION, L"Never"); });
        player.Leave(frame, IDOK);
    }
    // A file that cannot be told relative to the test is told with its folder, which is the same.
    std::wstring State() override { return support::ReplaceAll(Options(), Folder() + L"\\", L""); }

    const std::wstring file_ = WriteEveryKind(L"file.trs");
};

class PropertiesOf final : public Scene {
public:
    explicit PropertiesOf(const wchar_t* name) : name_(name), scenario_(Scenario(file_, name)) {}

private:
    bool Play(Actor& actor) override {
        const auto sheet = Start<IScenarioProperties>(L"Vantrel.ScenarioProperties");
        const com::Bstr file(file_), name(name_);
        return SUCCEEDED(actor.During([&] { return sheet->DoModal(scenario_.Get(), file.Get(), name.Get()); },
                                      [&](Player& player) {
                                          const HWND window = player.First(L"Recovery Scenario Properties");
                                          for (const int tab : {1, 2, 3, 0}) player.Turn(window, tab);
                                          player.Leave(window, IDOK);
                                      }));
    }
    std::wstring State() override { return Describe(scenario_.Get(), name_); }

    const std::wstring file_ = WriteEveryKind(L"file.trs");
    const std::wstring name_;
    com::Ptr<IUnknown> scenario_;
};

}  // namespace

const std::vector<Journey> settingsJourneys = {
    {"add-dialog", Make<AddDialog>},
    {"tab", Make<Tab>},
    {"properties-popup", [] { return Make<PropertiesOf>(L"Pop-up"); }},
    {"properties-state", [] { return Make<PropertiesOf>(L"State"); }},
    {"properties-error", [] { return Make<PropertiesOf>(L"Error"); }},
    {"properties-crash", [] { return Make<PropertiesOf>(L"Crash"); }},
};

}  // namespace recoveryui::proof

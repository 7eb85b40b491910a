// Recovery files in the Manager: opened, changed, saved, saved under another name.
#include <windows.h>

#include "proof/Scene.h"

namespace recoveryui::proof {
namespace {

constexpr wchar_t kOpen[] = L"Open Recovery File", kSave[] = L"Save Recovery File";

class ManagerStage : public Scene {
protected:
    ManagerStage() : work_(WriteEveryKind(L"work.trs")), second_(Path(L"second.trs")) {}

    virtual void Manage(Player& player, HWND manager) = 0;

    bool Play(Actor& actor) override {
        const auto dialog = Start<IRecoveryDlg>(L"Vantrel.RecoveryDlg");
        const HRESULT hr =
            actor.During([&] { return dialog->DoModal(); },
                         [&](Player& player) {
                             const HWND manager = player.First(L"Recovery Scenario Manager");
                             Manage(player, manager);
                             const bool asked = player.CloseWithAnswer(manager, IDNO);
                             Promise(asked || !hasUnsaved_, "closed without a word about unsaved changes");
                         });
        return hr == S_OK && actor.GaveUp().empty();
    }
    std::wstring State() override { return Read(work_) + L"\n" + Read(second_); }

    void Open(Player& player, HWND manager, const std::wstring& path) {
        player.Try([&] {
            player.Press(manager, IDC_MANAGER_OPEN);
            player.GiveFile(kOpen, path);
            player.WaitUntil("the file is open",
                             [&] { return player.Text(manager, IDC_MANAGER_FILE) == path; });
        });
        player.Try(
            [&] { player.WaitUntil("its scenarios", [&] { return Names(player, manager).size() == 4; }); });
    }
    static test::Rows Names(Player& player, HWND manager) { return player.RowsOf(manager, IDC_MANAGER_LIST); }
    // Until the list shows it; what it shows then is a change that wants to be saved.
    void ChangeBy(Player& player, HWND manager, int command, const test::Rows& after) {
        player.Try([&] {
            player.Press(manager, command);
            player.WaitUntil("the change is seen", [&] { return Names(player, manager) == after; });
        });
        hasUnsaved_ = true;
    }
    void Save(Player& player, HWND manager) {
        const std::wstring before = Read(work_);
        player.Try([&] {
            if (Read(work_) != before) return;
            player.Press(manager, IDC_MANAGER_SAVE);
            player.WaitUntil("the file is saved", [&] { return Read(work_) != before; });
        });
        hasUnsaved_ = false;
        Mark();
    }
    void SaveAs(Player& player, HWND manager) {
        player.Try([&] {
            if (Read(second_) != L"no file") return;
            player.Focus(manager, IDC_MANAGER_SAVE);
            player.Keys({VK_F4});
            player.ChooseMenu(L"Save As");
            player.GiveFile(kSave, second_);
            player.WaitUntil("the file is there", [&] { return Read(second_) != L"no file"; });
        });
        hasUnsaved_ = false;
        Mark();
    }

    const std::wstring work_, second_;

private:
    bool hasUnsaved_ = false;
};

class EditFile final : public ManagerStage {
    void Manage(Player& player, HWND manager) override {
        Open(player, manager, work_);
        player.Try([&] { player.Choose(manager, IDC_MANAGER_LIST, L"Error"); });
        player.Try([&] { player.Press(manager, IDC_MANAGER_COPY); });
        ChangeBy(player, manager, IDC_MANAGER_DELETE, {L"Pop-up", L"State", L"Crash"});
        Save(player, manager);
        ChangeBy(player, manager, IDC_MANAGER_PASTE, {L"Pop-up", L"State", L"Crash", L"Error"});
        SaveAs(player, manager);
    }
};

class ReplaceInFile final : public ManagerStage {
    void Manage(Player& player, HWND manager) override {
        Open(player, manager, work_);
        player.Try([&] { player.Choose(manager, IDC_MANAGER_LIST, L"Crash"); });
        player.Try([&] { player.Press(manager, IDC_MANAGER_COPY); });
        player.Try([&] {
            player.Press(manager, IDC_MANAGER_NEW);
            player.WaitUntil("an empty file", [&] { return Names(player, manager).empty(); });
        });
        ChangeBy(player, manager, IDC_MANAGER_PASTE, {L"Crash"});
        SaveAs(player, manager);
    }
};

class EditInManager final : public ManagerStage {
    void Manage(Player& player, HWND manager) override {
        Open(player, manager, work_);
        HWND wizard = nullptr;
        player.Try([&] {
            player.Choose(manager, IDC_MANAGER_LIST, L"Pop-up");
            player.Press(manager, IDC_MANAGER_EDIT);
            wizard = player.WaitForWindow(L"Recovery Scenario Wizard");
        });
        for (const wchar_t* page : {L"Select Trigger Event", L"Specify Pop-up Window Conditions"})
            player.NextTo(wizard, page);
        player.FinishWizard(wizard, L"Renamed");
        player.Try([&] {
            player.WaitUntil("the new name", [&] {
                const test::Rows names = Names(player, manager);
                return names == test::Rows{L"State", L"Error", L"Crash", L"Renamed"};
            });
        });
        Save(player, manager);
    }
};

}  // namespace

const std::vector<Journey> managerJourneys = {{"manager-edit", Make<EditFile>},
                                              {"manager-new", Make<ReplaceInFile>},
                                              {"manager-wizard", Make<EditInManager>}};

}  // namespace recoveryui::proof

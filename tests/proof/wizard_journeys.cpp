// A scenario of each kind made, and one of each kind edited.
#include <windows.h>

#include <commctrl.h>

#include "harness/ApplicationWindow.h"
#include "proof/Scene.h"

namespace recoveryui::proof {
namespace {

constexpr wchar_t kTitle[] = L"Recovery Scenario Wizard", kTriggers[] = L"Select Trigger Event",
                  kOperations[] = L"Recovery Operations", kTypes[] = L"Recovery Operation";

class WizardStage : public Scene {
protected:
    explicit WizardStage(const wchar_t* edited = nullptr)
        : library_(Write(L"library.vbs", "Function Log(Object)\r\nEnd Function\r\n")), repository_(Load({})) {
        if (!edited) return;
        name_ = edited;
        original_ = Scenario(WriteEveryKind(L"kinds.trs"), edited);
        before_ = Describe(original_.Get(), name_);
    }

    virtual void Walk(Player& player, HWND wizard) = 0;

    bool Play(Actor& actor) override {
        wizard_ = Start<IRecoveryWizard>(L"Vantrel.RecoveryWizard");
        com::Check(wizard_->put_Repository(repository_.Get()));
        if (original_) {
            com::Check(wizard_->put_Scenario(original_.Get()));
            com::Check(wizard_->put_ScenarioName(com::Bstr(name_).Get()));
        }
        const HRESULT hr = actor.During([&] { return com::Query<IRecoveryDlg>(wizard_.Get())->DoModal(); },
                                        [&](Player& player) { Walk(player, player.First(kTitle)); });
        Promise(hr != S_OK || actor.GaveUp().empty(),
                "finished although the user gave up: " + actor.GaveUp());
        return hr == S_OK;
    }
    std::wstring State() override {
        com::Ptr<IUnknown> scenario;
        com::Bstr name;
        if (wizard_) {
            com::Check(wizard_->get_Scenario(scenario.GetAddressOf()));
            com::Check(wizard_->get_ScenarioName(name.Put()));
        }
        // What the caller put in comes out again unless the wizard has made another.
        if (!original_) return Describe(scenario.Get(), name.Text()) + Read(library_);
        const std::wstring now = Describe(original_.Get(), name_);
        Promise(now == before_, "the edited scenario itself has changed");
        return scenario && scenario.Get() != original_.Get() ? Describe(scenario.Get(), name.Text())
                                                             : before_;
    }

    static void ChooseTrigger(Player& player, HWND wizard, int radio) {
        player.NextTo(wizard, kTriggers);
        player.Try([&] { player.Check(wizard, radio); });
    }
    static void AddOperation(Player& player, HWND wizard, int radio, const wchar_t* page) {
        player.Try([&] { player.Check(wizard, IDC_OPERATION_LIST_ANOTHER, true); });
        player.NextTo(wizard, kTypes);
        player.Try([&] { player.Check(wizard, radio); });
        player.NextTo(wizard, page);
    }
    static void FillPopup(Player& player, HWND wizard) {
        player.NextTo(wizard, L"Specify Pop-up Window Conditions");
        player.Fill(wizard, IDC_POPUP_TITLE, L"(Error|Warning).*");
        player.Try([&] { player.Check(wizard, IDC_POPUP_TITLE_REGEX); });
        player.Try([&] { player.Check(wizard, IDC_POPUP_TEXT_CHECK); });
        player.Fill(wizard, IDC_POPUP_TEXT, L"It failed.");
    }
    static void Expect(Player& player, HWND window, int list, const test::Rows& rows) {
        player.Try(
            [&] { player.WaitUntil("the rows", [&] { return player.RowsOf(window, list) == rows; }); });
    }

    const std::wstring library_;

private:
    com::Ptr<IRecoveryRepository> repository_;
    com::Ptr<IRecoveryWizard> wizard_;
    com::Ptr<IUnknown> original_;
    std::wstring name_, before_;
};

class PopupWithKeys final : public WizardStage {
    void Walk(Player& player, HWND wizard) override {
        ChooseTrigger(player, wizard, IDC_SELECT_TRIGGER_POPUP);
        FillPopup(player, wizard);
        player.NextTo(wizard, kOperations);
        AddOperation(player, wizard, IDC_SELECT_OPERATION_CLICK,
                     L"Recovery Operation - Click Button or Press Key");
        player.Try([&] { player.Check(wizard, IDC_CLICK_KEYS); });
        player.Do([page = player.Page(wizard)] {
            SendDlgItemMessageW(page, IDC_CLICK_HOTKEY, HKM_SETHOTKEY,
                                MAKEWORD('D', HOTKEYF_CONTROL | HOTKEYF_ALT), 0);
        });
        player.NextTo(wizard, kOperations);
        AddOperation(player, wizard, IDC_SELECT_OPERATION_RESTART, kOperations);
        Expect(player, wizard, IDC_OPERATION_LIST_ROWS,
               {L"Keyboard click | Control + Alt + D", L"Restart Microsoft Windows | "});
        player.FinishWizard(wizard, L"Pop-up", L"What it does.");
    }
};

class ObjectStateWithButton final : public WizardStage {
public:
    ~ObjectStateWithButton() override { DestroyWindow(login_); }

private:
    void Walk(Player& player, HWND wizard) override {
        ChooseTrigger(player, wizard, IDC_SELECT_TRIGGER_OBJECT_STATE);
        player.NextTo(wizard, L"Select Object");
        player.PointAt(wizard, IDC_SELECT_OBJECT_HAND, FindWindowExW(login_, nullptr, L"Button", L"Cancel"));
        player.Try([&] {
            if (player.RowsOf(wizard, IDC_SELECT_OBJECT_TREE).empty())
                player.Leave(player.WaitForWindow(L"Object Selection - Object State Trigger"), IDOK);
        });
        Expect(player, wizard, IDC_SELECT_OBJECT_TREE, {L"OrderEntry \"Log in\"", L"  Button \"Cancel\""});
        player.NextTo(wizard, L"Set Object Properties and Values");
        player.Try([&] { player.Choose(wizard, IDC_OBJECT_PROPS_TREE, L"Button \"Cancel\""); });
        HWND all = nullptr;
        player.Try([&] {
            player.Press(wizard, IDC_OBJECT_PROPS_ADD_REMOVE);
            all = player.WaitForWindow(L"Edit Properties");
        });
        player.Try([&] {
            if (!IsWindow(all)) return;
            // Where the object refused, the box shows it.
            if (!player.IsRowChecked(all, IDC_EDIT_PROPERTIES_GRID, L"enabled"))
                player.ToggleRow(all, IDC_EDIT_PROPERTIES_GRID, L"enabled");
            player.Press(all, IDOK);
            player.WaitUntilClosed(all);
        });
        player.Try([&] { player.Choose(wizard, IDC_OBJECT_PROPS_GRID, L"text"); });
        player.Fill(wizard, IDC_OBJECT_PROPS_VALUE, L"Can.*");
        player.Try([&] { player.Check(wizard, IDC_OBJECT_PROPS_REGEX); });
        player.NextTo(wizard, kOperations);
        AddOperation(player, wizard, IDC_SELECT_OPERATION_CLICK,
                     L"Recovery Operation - Click Button or Press Key");
        player.Try([&] { player.Check(wizard, IDC_CLICK_LABEL); });
        player.PointAt(wizard, IDC_CLICK_HAND, login_);
        Expect(player, wizard, IDC_CLICK_LABEL_LIST, {L"OK", L"Cancel"});
        player.NextTo(wizard, kOperations);
        Expect(player, wizard, IDC_OPERATION_LIST_ROWS, {L"Keyboard click | Click button with label: OK "});
        player.FinishWizard(wizard, L"State", L"What it does.");
    }

    // Without numbers of their own the buttons are known by their texts.
    const HWND login_ = test::MakeApplication(
        L"Log in", {10, 500, 260, 160},
        {{L"Button", L"&OK", 0, {5, 60, 70, 20}}, {L"Button", L"Cancel", 0, {80, 60, 70, 20}}});
};

class ErrorWithFunction final : public WizardStage {
    void Walk(Player& player, HWND wizard) override {
        ChooseTrigger(player, wizard, IDC_SELECT_TRIGGER_ERROR);
        player.NextTo(wizard, L"Select Test Run Error");
        player.Try([&] {
            player.Choose(wizard, IDC_SELECT_ERROR_LIST, L"Object not found");
            player.WaitUntil("the error is chosen",
                             [&] { return player.Chosen(wizard, IDC_SELECT_ERROR_LIST).size() == 1; });
        });
        player.NextTo(wizard, kOperations);
        AddOperation(player, wizard, IDC_SELECT_OPERATION_FUNCTION, L"Recovery Operation - Function Call");
        player.Try([&] {
            player.Enter(wizard, kEditOfCombo, library_);
            player.Keys({VK_RETURN});
            player.Check(wizard, IDC_FUNC_DEFINE);
        });
        player.Fill(wizard, IDC_FUNC_NAME, L"Restore");
        player.NextTo(wizard, kOperations);
        Expect(player, wizard, IDC_OPERATION_LIST_ROWS, {L"Function call | " + library_ + L"::Restore"});
        player.FinishWizard(wizard, L"Error", L"What it does.");
    }
};

class CrashWithProcess final : public WizardStage {
    void AddRunning(Player& player, HWND wizard) {
        const std::wstring self = L"prove.exe";
        player.Try([&] {
            player.Choose(wizard, IDC_PROCESSES_RUNNING, self);
            player.Press(wizard, IDC_PROCESSES_ADD_SELECTED);
            player.WaitUntil("the process is added",
                             [&] { return player.RowsOf(wizard, IDC_PROCESSES_CHOSEN) == test::Rows{self}; });
        });
    }
    void Walk(Player& player, HWND wizard) override {
        ChooseTrigger(player, wizard, IDC_SELECT_TRIGGER_CRASH);
        player.NextTo(wizard, L"Select Processes");
        AddRunning(player, wizard);
        player.NextTo(wizard, kOperations);
        AddOperation(player, wizard, IDC_SELECT_OPERATION_PROCESS, L"Recovery Operation - Close Processes");
        player.Try([&] {
            player.Press(wizard, IDC_PROCESSES_NEW);
            player.Type(L"order entry.exe");
            player.Keys({VK_RETURN});
            player.WaitUntil("the process is typed", [&] {
                return player.RowsOf(wizard, IDC_PROCESSES_CHOSEN) == test::Rows{L"order entry.exe"};
            });
        });
        player.FinishWizard(wizard, L"Crash", L"What it does.");
    }
};

// From the first page to the last, with another name.
class EditEachPage final : public WizardStage {
public:
    using Pages = std::vector<const wchar_t*>;
    EditEachPage(const wchar_t* name, Pages pages) : WizardStage(name), pages_(std::move(pages)) {}

private:
    void Walk(Player& player, HWND wizard) override {
        player.NextTo(wizard, kTriggers);
        for (const wchar_t* page : pages_) player.NextTo(wizard, page);
        player.FinishWizard(wizard, L"Another name", L"What it does.");
    }
    Pages pages_;
};
using Pages = EditEachPage::Pages;

}  // namespace

const std::vector<Journey> wizardJourneys = {
    {"wizard-popup", Make<PopupWithKeys>},
    {"wizard-state", Make<ObjectStateWithButton>},
    {"wizard-error", Make<ErrorWithFunction>},
    {"wizard-crash", Make<CrashWithProcess>},
    {"edit-popup", [] { return Make<EditEachPage>(L"Pop-up", Pages{L"Specify Pop-up Window Conditions"}); }},
    {"edit-state",
     [] {
         return Make<EditEachPage>(L"State", Pages{L"Select Object", L"Set Object Properties and Values"});
     }},
    {"edit-error", [] { return Make<EditEachPage>(L"Error", Pages{L"Select Test Run Error"}); }},
    {"edit-crash", [] { return Make<EditEachPage>(L"Crash", Pages{L"Select Processes"}); }},
};

}  // namespace recoveryui::proof

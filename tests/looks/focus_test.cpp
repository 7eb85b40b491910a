// Where the keyboard is when a page of the wizard opens, that everything can be done with it alone, and the
// topic that Help and F1 lead to.
#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include <map>
#include <set>

#include "model/LoginName.h"
#include "support/HelpTopics.h"
#include "wizard/WizardTest.h"

namespace recoveryui::test {
namespace {

namespace topics = support::topics;

struct PageFacts {
    int focus;  // whether a user comes to it or returns; of radio buttons it is the chosen one
    const wchar_t* topic;
};
const std::map<std::wstring, PageFacts> kPages = {
    {L"Welcome to the Recovery Scenario Wizard", {kNext, topics::kWelcome}},
    {L"Select Trigger Event", {IDC_SELECT_TRIGGER_POPUP, topics::kSelectTrigger}},
    {L"Specify Pop-up Window Conditions", {IDC_POPUP_TITLE, topics::kPopup}},
    {L"Select Object", {IDC_SELECT_OBJECT_HAND, topics::kSelectObject}},
    {L"Set Object Properties and Values", {IDC_OBJECT_PROPS_TREE, topics::kObjectProps}},
    {L"Select Test Run Error", {IDC_SELECT_ERROR_LIST, topics::kSelectError}},
    {L"Select Processes", {IDC_PROCESSES_RUNNING, topics::kCrash}},
    {L"Recovery Operations", {IDC_OPERATION_LIST_ROWS, topics::kOperationList}},
    {L"Recovery Operation", {IDC_SELECT_OPERATION_CLICK, topics::kSelectOperation}},
    {L"Recovery Operation - Click Button or Press Key", {IDC_CLICK_ENTER, topics::kOperationClick}},
    {L"Recovery Operation - Close Processes", {IDC_PROCESSES_RUNNING, topics::kCloseProcesses}},
    {L"Recovery Operation - Function Call", {kEditOfCombo, topics::kOperationFunc}},
    {L"Post-Recovery Test Run Options", {IDC_TEST_FLOW_FIRST, topics::kTestFlow}},
    {L"Name and Description", {IDC_SCEN_NAME, topics::kScenDescription}},
    {L"Completing the Recovery Scenario Wizard", {IDC_SUMMARY_TEXT, topics::kSummary}},
};

class KeyboardTest : public WizardTest {
protected:
    // Presses a key, and looks where the keyboard is on the page that is shown then.
    void Press(UserScreen& screen, HWND wizard, std::initializer_list<WORD> chord) {
        screen.RealKeys(chord);
        title_ = screen.PageTitle(wizard);
        auto [expected, topic] = kPages.at(title_);
        while (screen.Ask(screen.Control(wizard, expected), WM_GETDLGCODE) & DLGC_RADIOBUTTON &&
               !screen.IsChecked(wizard, expected))
            ++expected;
        EXPECT_EQ(screen.FocusId(), expected) << Utf8(title_);
        // The sheet may also ask.
        NMHDR ask{wizard, 0, static_cast<UINT>(PSN_QUERYINITIALFOCUS)};
        const HWND page = screen.Page(wizard);
        screen.Do([&] {
            SendMessageW(page, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&ask));
            const auto first = reinterpret_cast<HWND>(GetWindowLongPtrW(page, DWLP_MSGRESULT));
            EXPECT_TRUE(!first || first == GetFocus() || IsChild(first, GetFocus())) << Utf8(title_);
        });
        screen.RealKeys({VK_F1});
        screen.Do([=] { SendMessageW(wizard, PSM_PRESSBUTTON, PSBTN_HELP, 0); });
        EXPECT_EQ(help_->Take(), topic + std::wstring(L" ") + topic) << Utf8(title_);
        seen_.insert(title_);
    }
    void Enter(UserScreen& screen, HWND wizard) { Press(screen, wizard, {VK_RETURN}); }
    void AltB(UserScreen& screen, HWND wizard) { Press(screen, wizard, {VK_MENU, 'B'}); }

    std::wstring title_;
    std::set<std::wstring> seen_;
};

TEST_F(KeyboardTest, EveryPageBeginsWhereSomethingIsToBeDoneAlsoOnTheWayBack) {
    const auto state = New<IObjectStateRecoveryTrigger>(L"Vantrel.ObjectStateRecoveryTrigger");
    const auto crash = New<ICrashRecoveryTrigger>(L"Vantrel.CrashRecoveryTrigger");
    EXPECT_EQ(state->SetTestObject(LoginName().Get()), S_OK);
    EXPECT_EQ(crash->SetProcesses(ArrayOf<BSTR>(std::vector<std::wstring>{L"order.exe"}).Get()), S_OK);
    const com::Ptr<IUnknown> triggers[] = {
        com::Query<IUnknown>(PopUp(L"Error").Get()), com::Query<IUnknown>(state.Get()),
        New<IUnknown>(L"Vantrel.ErrorRecoveryTrigger"), com::Query<IUnknown>(crash.Get())};
    for (int kind = 0; kind < 4; ++kind) {
        Edit(triggers[kind].Get());
        const bool finish = kind == 3;
        EXPECT_EQ(
            Run([&](UserScreen& screen, HWND wizard) {
                const auto press = [&](int times, WORD key) {
                    for (; times > 0; --times) screen.RealKeys({key});
                };
                do Enter(screen, wizard);
                while (title_ != L"Recovery Operation");
                press(kind, VK_DOWN);
                Enter(screen, wizard);
                if (kind == 1 || kind == 2) {  // unfinished: Enter stays
                    AltB(screen, wizard);
                    press(kind, VK_UP);
                    Enter(screen, wizard);
                }
                if (kind < 3) Enter(screen, wizard);
                press(4, VK_TAB);
                EXPECT_EQ(screen.FocusId(), IDC_OPERATION_LIST_ANOTHER);
                press(1, VK_SPACE);
                Enter(screen, wizard);
                Enter(screen, wizard);
                EXPECT_EQ(screen.WizardButtons(wizard), L"B n* f");
                screen.Type(L"A");
                press(1, VK_TAB);
                screen.Type(L"one");
                press(1, VK_RETURN);
                screen.Type(L"two");
                EXPECT_EQ(screen.Text(wizard, IDC_SCEN_DESCRIPTION), L"one\r\ntwo") << "Enter makes a line";
                press(1, VK_TAB);
                screen.RealKeys({VK_SHIFT, VK_TAB});
                press(1, VK_RETURN);
                EXPECT_EQ(screen.Text(wizard, IDC_SCEN_DESCRIPTION).size(), 10u) << "and replaces none";
                press(2, VK_TAB);
                Enter(screen, wizard);
                while (!finish && title_ != L"Welcome to the Recovery Scenario Wizard") {
                    AltB(screen, wizard);
                    if (title_ == L"Name and Description") {
                        EXPECT_EQ(screen.Text(wizard, IDC_SCEN_NAME), L"A") << "what was entered is kept";
                    }
                }
                press(1, finish ? VK_RETURN : VK_ESCAPE);
            }),
            finish ? S_OK : S_FALSE);
    }
    EXPECT_EQ(seen_.size(), kPages.size());
}

TEST_F(KeyboardTest, TheFieldForKeysTakesF1AndLettersWithAltAsKeys) {
    Browse([&](UserScreen& screen, HWND wizard) {
        GoToOperations(screen, wizard);
        AddOperation(screen, wizard, IDC_SELECT_OPERATION_CLICK);
        screen.Check(wizard, IDC_CLICK_KEYS);
        const HWND field = screen.Control(wizard, IDC_CLICK_HOTKEY);
        screen.Do([=] { SetFocus(field); });
        screen.RealKeys({VK_F1});
        EXPECT_EQ(screen.Ask(field, HKM_GETHOTKEY), VK_F1);
        EXPECT_EQ(help_->Take(), L"");
        screen.RealKeys({VK_MENU, 'N'});
        EXPECT_EQ(screen.Ask(field, HKM_GETHOTKEY), MAKEWORD('N', HOTKEYF_ALT));
        EXPECT_EQ(screen.PageTitle(wizard), L"Recovery Operation - Click Button or Press Key");
    });
}

}  // namespace
}  // namespace recoveryui::test

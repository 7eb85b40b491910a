// Where the keyboard is when a page opens, and that everything can be done with it alone.
#include <windows.h>

#include <prsht.h>

#include <map>
#include <set>

#include "model/FakeTestObject.h"
#include "settings/SettingsTest.h"
#include "wizard/WizardTest.h"

namespace recoveryui::test {
namespace {

constexpr int kNext = 0x3024, kEditOfCombo = 1001;

// The first focus of a page, whether a user comes to it or returns; of radio buttons it is the chosen one.
const std::map<std::wstring, int> kFirstFocus = {
    {L"Welcome to the Recovery Scenario Wizard", kNext},
    {L"Select Trigger Event", IDC_SELECT_TRIGGER_POPUP},
    {L"Specify Pop-up Window Conditions", IDC_POPUP_TITLE},
    {L"Select Object", IDC_SELECT_OBJECT_HAND},
    {L"Set Object Properties and Values", IDC_OBJECT_PROPS_TREE},
    {L"Select Test Run Error", IDC_SELECT_ERROR_LIST},
    {L"Select Processes", IDC_PROCESSES_RUNNING},
    {L"Recovery Operations", IDC_OPERATION_LIST_ROWS},
    {L"Recovery Operation", IDC_SELECT_OPERATION_CLICK},
    {L"Recovery Operation - Click Button or Press Key", IDC_CLICK_ENTER},
    {L"Recovery Operation - Close Processes", IDC_PROCESSES_RUNNING},
    {L"Recovery Operation - Function Call", kEditOfCombo},
    {L"Post-Recovery Test Run Options", IDC_TEST_FLOW_FIRST},
    {L"Name and Description", IDC_SCEN_NAME},
    {L"Completing the Recovery Scenario Wizard", IDC_SUMMARY_TEXT},
};

class KeyboardTest : public WizardTest {
protected:
    // Presses a key, and looks where the keyboard is on the page that is shown then.
    void Press(UserScreen& screen, HWND wizard, std::initializer_list<WORD> chord) {
        screen.RealKeys(chord);
        title_ = screen.PageTitle(wizard);
        int expected = kFirstFocus.at(title_);
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
    const auto object = FakeTestObject::LoginName();
    EXPECT_EQ(state->SetTestObject(object.Get()), S_OK);
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
    EXPECT_EQ(seen_.size(), kFirstFocus.size());
}

TEST_F(SettingsTest, EnterAndEscapeInTheDescriptionAreTheFrames) {
    for (const auto& [key, seen] : {std::pair{VK_RETURN, "OK"}, std::pair{VK_ESCAPE, "Cancel"}}) {
        const auto all = OpenSettings([key = key](UserScreen& screen, HWND frame) {
            const HWND description = screen.Control(frame, IDC_RECOVERY_DESCRIPTION);
            screen.Do([=] { SetFocus(description); });
            screen.Keys({static_cast<WORD>(key)});
        });
        EXPECT_EQ(all, std::vector<std::string>{seen});
    }
}

}  // namespace
}  // namespace recoveryui::test

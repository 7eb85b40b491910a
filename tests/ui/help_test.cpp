// Help buttons and F1 lead to the topic of the window that the user is in.
#include <windows.h>

#include <prsht.h>

#include "harness/HelpViewer.h"
#include "manager/ManagerTest.h"
#include "model/FakeTestObject.h"
#include "settings/SettingsTest.h"
#include "support/HelpTopics.h"
#include "wizard/WizardTest.h"

namespace recoveryui::test {
namespace {

namespace topics = support::topics;

std::wstring Twice(const wchar_t* topic) {
    return std::wstring(topic) + L" " + topic;
}

// A fixture of windows whose host has a help viewer.
template <class Base>
class WithHelp : public Base {
protected:
    WithHelp() { this->rack_.Put(L"HelpViewer", help_.Get()); }

    std::wstring AskByKey(UserScreen& screen) {
        screen.RealKeys({VK_F1});
        return help_->Take();
    }
    // By the button and by the key.
    std::wstring AskTwice(UserScreen& screen, HWND window) {
        screen.Press(window, IDHELP);
        screen.RealKeys({VK_F1});
        return help_->Take();
    }

    com::Ptr<HelpViewer> help_ = HelpViewer::Make();
};

using WizardHelpTest = WithHelp<WizardTest>;

// The page's font, bold and of ten points.
void ExpectBoldTitle(UserScreen& screen, HWND wizard) {
    const auto fontOf = [&](HWND window) {
        LOGFONTW font{};
        GetObjectW(reinterpret_cast<HFONT>(screen.Ask(window, WM_GETFONT)), sizeof font, &font);
        return font;
    };
    const LOGFONTW title = fontOf(screen.Control(wizard, IDC_PAGE_TITLE));
    EXPECT_EQ(title.lfWeight, FW_BOLD);
    EXPECT_STREQ(title.lfFaceName, fontOf(screen.Page(wizard)).lfFaceName);
    const HDC device = GetDC(wizard);
    EXPECT_EQ(title.lfHeight, MulDiv(-10, GetDeviceCaps(device, LOGPIXELSY), 72));
    ReleaseDC(wizard, device);
}

TEST_F(WizardHelpTest, EveryPageHasABoldTitleAndLeadsToItsTopic) {
    enum Way { Stay, Next, Back };
    const struct {
        Way way;
        int choice;  // pressed before; 0 for none
        const wchar_t* title;
        const wchar_t* topic;
    } walk[] = {
        {Stay, 0, L"Welcome to the Recovery Scenario Wizard", topics::kWelcome},
        {Next, 0, L"Select Trigger Event", topics::kSelectTrigger},
        {Next, IDC_SELECT_TRIGGER_POPUP, L"Specify Pop-up Window Conditions", topics::kPopup},
        {Back, 0, L"Select Trigger Event", topics::kSelectTrigger},
        {Next, IDC_SELECT_TRIGGER_ERROR, L"Select Test Run Error", topics::kSelectError},
        {Back, 0, L"Select Trigger Event", topics::kSelectTrigger},
        {Next, IDC_SELECT_TRIGGER_CRASH, L"Select Processes", topics::kCrash},
        {Back, 0, L"Select Trigger Event", topics::kSelectTrigger},
        {Next, IDC_SELECT_TRIGGER_OBJECT_STATE, L"Select Object", topics::kSelectObject},
        {Next, 0, L"Set Object Properties and Values", topics::kObjectProps},
        {Next, 0, L"Recovery Operations", topics::kOperationList},
        {Next, 0, L"Recovery Operation", topics::kSelectOperation},
        {Next, IDC_SELECT_OPERATION_PROCESS, L"Recovery Operation - Close Processes",
         topics::kCloseProcesses},
        {Back, 0, L"Recovery Operation", topics::kSelectOperation},
        {Next, IDC_SELECT_OPERATION_FUNCTION, L"Recovery Operation - Function Call", topics::kOperationFunc},
        {Back, 0, L"Recovery Operation", topics::kSelectOperation},
        {Next, IDC_SELECT_OPERATION_CLICK, L"Recovery Operation - Click Button or Press Key",
         topics::kOperationClick},
        {Next, 0, L"Recovery Operations", topics::kOperationList},
        {Next, IDC_OPERATION_LIST_ANOTHER, L"Post-Recovery Test Run Options", topics::kTestFlow},
        {Next, 0, L"Name and Description", topics::kScenDescription},
        {Next, 0, L"Completing the Recovery Scenario Wizard", topics::kSummary},
        {Back, 0, L"Name and Description", topics::kScenDescription},
        {Back, 0, L"Post-Recovery Test Run Options", topics::kTestFlow},
        {Back, 0, L"Recovery Operations", topics::kOperationList},
        {Back, 0, L"Set Object Properties and Values", topics::kObjectProps},
        {Back, 0, L"Select Object", topics::kSelectObject},
        {Back, 0, L"Select Trigger Event", topics::kSelectTrigger},
        {Back, 0, L"Welcome to the Recovery Scenario Wizard", topics::kWelcome},
    };
    const auto trigger = New<IObjectStateRecoveryTrigger>(L"Vantrel.ObjectStateRecoveryTrigger");
    EXPECT_EQ(trigger->SetTestObject(FakeTestObject::LoginName().Get()), S_OK);
    Edit(trigger.Get());
    EXPECT_EQ(wizard_->put_ScenarioName(com::Bstr(L"Log in again").Get()), S_OK);
    Run([&](UserScreen& screen, HWND wizard) {
        for (const auto& step : walk) {
            if (step.choice) screen.Press(wizard, step.choice);
            if (step.way == Next) screen.Next(wizard);
            if (step.way == Back) screen.Back(wizard);
            EXPECT_EQ(screen.PageTitle(wizard), step.title);
            ExpectBoldTitle(screen, wizard);
            EXPECT_EQ(AskTwice(screen, wizard), Twice(step.topic)) << "focus on " << screen.FocusId();
            screen.Do([=] { SetFocus(GetDlgItem(wizard, IDCANCEL)); });
            EXPECT_EQ(AskByKey(screen), step.topic);
        }
        screen.Cancel(wizard);
    });
}

using ManagerHelpTest = WithHelp<ManagerTest>;

TEST_F(ManagerHelpTest, TheManagerLeadsToItsTopic) {
    Manage([&](UserScreen& screen, HWND manager) {
        EXPECT_EQ(AskTwice(screen, manager), Twice(topics::kManager));
        FocusList(screen, manager);
        EXPECT_EQ(AskByKey(screen), topics::kManager);
    });
}

using SettingsHelpTest = WithHelp<SettingsTest>;

TEST_F(SettingsHelpTest, TheRecoveryTabAndTheAddDialogLeadToTheirTopics) {
    OpenSettings([&](UserScreen& screen, HWND frame) {
        for (const int id : {IDC_RECOVERY_LIST, IDC_RECOVERY_ACTIVATION}) {
            screen.Do([=, &screen] { SetFocus(screen.Control(frame, id)); });
            EXPECT_EQ(AskByKey(screen), topics::kRecoveryTab) << id;
        }
        screen.Press(frame, IDC_RECOVERY_ADD);
        const HWND dialog = screen.WaitForWindow(L"Add Recovery Scenario");
        EXPECT_EQ(AskTwice(screen, dialog), Twice(topics::kAddScenario));
        screen.Press(dialog, IDCANCEL);
    });
}

}  // namespace
}  // namespace recoveryui::test

// "Recovery Scenario Properties" as its readers meet it.
#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include "harness/ProductTest.h"
#include "model/LoginName.h"

namespace recoveryui::test {
namespace {

// The captions of the pages.
Rows Tabs(UserScreen& screen, HWND sheet) {
    Rows names;
    const auto tabs = reinterpret_cast<HWND>(screen.Ask(sheet, PSM_GETTABCONTROL));
    wchar_t text[100] = L"";
    TCITEMW item{TCIF_TEXT, 0, 0, text, 100, 0, 0};
    for (WPARAM tab = 0; screen.Ask(tabs, TCM_GETITEMW, tab, reinterpret_cast<LPARAM>(&item)); ++tab)
        names.push_back(text);
    return names;
}

constexpr int kTabs = 0x3020;

// Nothing on the page can be typed into, ticked or pressed.
void ExpectReadOnly(UserScreen& screen, HWND sheet) {
    for (const HWND control : Descendants(screen.Page(sheet))) {
        const LONG style = GetWindowLongW(control, GWL_STYLE);
        const LONG wanted = ClassOf(control) == L"Edit" ? ES_READONLY : WS_DISABLED;
        if (ClassOf(control) == L"Edit" || ClassOf(control) == L"Button") {
            EXPECT_TRUE(style & wanted) << GetDlgCtrlID(control);
        }
    }
}

class PropertiesSheetTest : public ProductTest {
protected:
    PropertiesSheetTest()
        : scenario_(New<IRecoveryScenario>(L"Vantrel.ReplayRecoveryScenario")),
          properties_(New<IScenarioProperties>(L"Vantrel.ScenarioProperties")) {
        rack_.GiveTo(properties_.Get());
        SetOperations({});
    }

    template <class Trigger>
    com::Ptr<Trigger> SetTrigger(const wchar_t* progId) {
        auto trigger = New<Trigger>(progId);
        EXPECT_EQ(scenario_->SetTrigger(trigger.Get()), S_OK);
        return trigger;
    }
    void SetOperations(const std::vector<IUnknown*>& elements) {
        EXPECT_EQ(scenario_->SetOperations(ArrayOf<IUnknown*>(elements).Get()), S_OK);
    }
    // A reader opens the sheet at one of its pages.
    void Read(int page, const Story& story) {
        const auto show = [&] {
            return properties_->DoModal(scenario_.Get(), com::Bstr(L"C:\\Tests\\Login.trs").Get(),
                                        com::Bstr(L"Unexpected log-in").Get());
        };
        EXPECT_EQ(Use(L"Recovery Scenario Properties", show,
                      [&](UserScreen& screen, HWND sheet) {
                          screen.Turn(sheet, page);
                          EXPECT_EQ(screen.FocusId(), kTabs) << "no text is selected";
                          story(screen, sheet);
                          screen.Press(sheet, IDOK);
                      }),
                  S_OK);
    }

    com::Ptr<IRecoveryScenario> scenario_;
    com::Ptr<IScenarioProperties> properties_;
};

TEST_F(PropertiesSheetTest, AReaderLeafsThroughAPopUpScenarioAndChangesNothing) {
    const auto trigger = SetTrigger<IPopUpRecoveryTrigger>(L"Vantrel.PopUpRecoveryTrigger");
    EXPECT_EQ(trigger->SetWindowTitle(com::Bstr(L"Log.*").Get(), 1), S_OK);
    EXPECT_EQ(trigger->SetWindowText(com::Bstr(L"Name:\nPassword:").Get(), 0), S_OK);
    EXPECT_EQ(scenario_->SetDescription(com::Bstr(L"Somebody logged us out.\r\nLog in again.").Get()), S_OK);
    EXPECT_EQ(scenario_->SetPostRecoveryOption(2), S_OK);
    Read(0, [&](UserScreen& screen, HWND sheet) {
        EXPECT_EQ(Tabs(screen, sheet),
                  (Rows{L"General", L"Trigger Event", L"Recovery Operation", L"Post-Recovery Operation"}));
        EXPECT_EQ(screen.Text(sheet, IDC_GENERAL_FILE), L"C:\\Tests\\Login.trs");
        EXPECT_EQ(screen.Text(sheet, IDC_GENERAL_NAME), L"Unexpected log-in");
        EXPECT_EQ(screen.Text(sheet, IDC_GENERAL_DESCRIPTION), L"Somebody logged us out.\r\nLog in again.");
        screen.Turn(sheet, 1);
        EXPECT_TRUE(screen.IsChecked(sheet, IDC_PROPERTIES_TITLE_CHECK));
        EXPECT_EQ(screen.Text(sheet, IDC_PROPERTIES_TITLE), L"Log.*");
        EXPECT_TRUE(screen.IsChecked(sheet, IDC_PROPERTIES_TITLE_REGEX));
        EXPECT_TRUE(screen.IsChecked(sheet, IDC_PROPERTIES_TEXT_CHECK));
        EXPECT_EQ(screen.Text(sheet, IDC_PROPERTIES_TEXT), L"Name:\nPassword:");
        EXPECT_FALSE(screen.IsChecked(sheet, IDC_PROPERTIES_TEXT_REGEX));
        constexpr wchar_t kTopic[] = L"Und_Recovery_Scenario_Properties_Dialog_Box.htm";
        for (int page = 0; page < 4; ++page) {
            screen.Turn(sheet, page);
            ExpectReadOnly(screen, sheet);
            screen.Press(sheet, IDHELP);
            screen.RealKeys({VK_F1});
            EXPECT_EQ(help_->Take(), kTopic + std::wstring(L" ") + kTopic);
        }
    });
    // One condition that cannot be read leaves both out.
    FailCall(L"PopUpRecoveryTrigger", L"GetWindowText");
    Read(1, [&](UserScreen& screen, HWND sheet) {
        EXPECT_FALSE(screen.IsChecked(sheet, IDC_PROPERTIES_TITLE_CHECK));
        EXPECT_EQ(screen.Text(sheet, IDC_PROPERTIES_TITLE), L"");
    });
}

TEST_F(PropertiesSheetTest, AnErrorIsNamedAndExplainedUnlessItIsAnyOrUnknown) {
    const auto trigger = SetTrigger<IErrorRecoveryTrigger>(L"Vantrel.ErrorRecoveryTrigger");
    const struct {
        std::uint32_t code;
        const wchar_t *error, *description;
    } rows[] = {
        {0x80040202, L"Object not found",
         L"No object within the specified parent object matches the test object description for the object."},
        {0, L"", L""},
        {0x80040299, L"", L""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(trigger->SetErrorCode(static_cast<long>(row.code)), S_OK);
        Read(1, [&](UserScreen& screen, HWND sheet) {
            EXPECT_EQ(screen.Text(sheet, IDC_PROPERTIES_ERROR), row.error);
            EXPECT_EQ(screen.Text(sheet, IDC_PROPERTIES_ERROR_DESCRIPTION), row.description);
        });
    }
}

TEST_F(PropertiesSheetTest, ListsAndTreesAreShownInOrderAndCanBeCopied) {
    const auto crash = SetTrigger<ICrashRecoveryTrigger>(L"Vantrel.CrashRecoveryTrigger");
    EXPECT_EQ(crash->SetProcesses(ArrayOf<BSTR>(Rows{L"writer.exe", L"", L"agent.exe"}).Get()), S_OK);
    Read(1, [&](UserScreen& screen, HWND sheet) {
        EXPECT_EQ(screen.RowsOf(sheet, IDC_PROPERTIES_PROCESSES), (Rows{L"writer.exe", L"agent.exe"}));
        screen.Choose(sheet, IDC_PROPERTIES_PROCESSES, L"agent.exe");
        screen.RealKeys({VK_CONTROL, 'A'});
        screen.RealKeys({VK_CONTROL, 'C'});
        screen.WaitUntil("the rows are copied", [] { return ClipboardText() == L"writer.exe\r\nagent.exe"; });
    });

    const auto state = SetTrigger<IObjectStateRecoveryTrigger>(L"Vantrel.ObjectStateRecoveryTrigger");
    EXPECT_EQ(state->SetTestObject(LoginName().Get()), S_OK);
    Read(1, [&](UserScreen& screen, HWND sheet) {
        EXPECT_EQ(screen.RowsOf(sheet, IDC_PROPERTIES_TREE), (Rows{L"Login", L"  Name"}));
        EXPECT_EQ(screen.Chosen(sheet, IDC_PROPERTIES_TREE), Rows{L"  Name"});
        EXPECT_EQ(screen.RowsOf(sheet, IDC_PROPERTIES_GRID), (Rows{L"text | Your name", L"x | 12"}));
        screen.Choose(sheet, IDC_PROPERTIES_TREE, L"Login");
        EXPECT_EQ(screen.RowsOf(sheet, IDC_PROPERTIES_GRID), Rows{L"text | Log in"});
        screen.RealKeys({VK_CONTROL, 'C'});
        screen.WaitUntil("the object is copied", [] { return ClipboardText() == L"Login"; });
        screen.Choose(sheet, IDC_PROPERTIES_GRID, L"text");
        screen.RealKeys({VK_SHIFT, VK_F10});
        screen.ChooseMenu(L"Copy");
        screen.WaitUntil("the row is copied", [] { return ClipboardText() == L"text\tLog in"; });
    });
    EXPECT_EQ(state->SetTestObject(Nested(40).Get()), S_OK);
    Read(1, [&](UserScreen& screen, HWND sheet) {
        EXPECT_EQ(screen.RowsOf(sheet, IDC_PROPERTIES_TREE).size(), 40u);
    });
    FailCall(L"ObjectStateRecoveryTrigger", L"GetTestObject");
    Read(1, [&](UserScreen& screen, HWND sheet) {
        EXPECT_TRUE(screen.RowsOf(sheet, IDC_PROPERTIES_TREE).empty());
        EXPECT_TRUE(screen.RowsOf(sheet, IDC_PROPERTIES_GRID).empty());
    });
}

TEST_F(PropertiesSheetTest, OperationsAndTheRestartAreListedAndForeignOnesPassedOver) {
    SetTrigger<IPopUpRecoveryTrigger>(L"Vantrel.PopUpRecoveryTrigger");
    const auto close = New<IProcessControlRecoveryAction>(L"Vantrel.ProcessControlRecoveryAction");
    const auto call = New<IFunctionCallRecoveryAction>(L"Vantrel.FunctionCallRecoveryAction");
    EXPECT_EQ(close->SetProcessNames(ArrayOf<BSTR>(Rows{L"writer.exe"}).Get()), S_OK);
    EXPECT_EQ(call->SetLibraryPath(com::Bstr(L"C:\\Lib\\login.vbs").Get()), S_OK);
    EXPECT_EQ(call->SetFunctionName(com::Bstr(L"LogIn").Get()), S_OK);
    SetOperations({close.Get(), nullptr, help_.Get(), call.Get()});
    const struct {
        long option;
        const wchar_t* text;
        bool restart;
    } rows[] = {{3, L"Proceed to next action or component iteration", false},
                {7, L"Restart current test run", true},
                {9, L"", false}};
    for (const auto& row : rows) {
        EXPECT_EQ(scenario_->SetPostRecoveryOption(row.option), S_OK);
        Read(2, [&](UserScreen& screen, HWND sheet) {
            Rows operations{L"Close process | writer.exe", L"Function call | C:\\Lib\\login.vbs::LogIn"};
            if (row.restart) operations.push_back(L"Restart Microsoft Windows | ");
            EXPECT_EQ(screen.RowsOf(sheet, IDC_PROPERTIES_OPERATIONS), operations);
            screen.Turn(sheet, 3);
            EXPECT_EQ(screen.Text(sheet, IDC_PROPERTIES_OPTION), row.text);
        });
    }
}

TEST_F(PropertiesSheetTest, WhatCannotBeShownIsLeftOutOrRefusedBeforeAnythingAppears) {
    const auto refused = [&](IUnknown* object) { return properties_->DoModal(object, nullptr, nullptr); };
    EXPECT_EQ(refused(nullptr), E_FAIL);
    EXPECT_EQ(refused(help_.Get()), E_NOINTERFACE);
    EXPECT_EQ(refused(scenario_.Get()), E_FAIL) << "no trigger";
    SetTrigger<IPopUpRecoveryTrigger>(L"Vantrel.PopUpRecoveryTrigger");
    FailCall(L"RecoveryScenario", L"GetTrigger");
    EXPECT_EQ(refused(scenario_.Get()), E_FAIL);
    const Rows noTrigger{L"General", L"Recovery Operation", L"Post-Recovery Operation"},
        triggerOnly{L"General", L"Trigger Event"};
    const struct {
        const wchar_t *object, *reading;
        const Rows& tabs;
    } cases[] = {{L"PopUpRecoveryTrigger", L"GetTriggerKind", noTrigger},
                 {L"RecoveryScenario", L"GetOperations", triggerOnly},
                 {L"RecoveryScenario", L"GetPostRecoveryOption", triggerOnly}};
    for (const auto& c : cases) {
        FailCall(c.object, c.reading);
        Read(0, [&](UserScreen& screen, HWND sheet) {
            EXPECT_EQ(Tabs(screen, sheet), c.tabs) << Utf8(c.reading);
        });
    }
    EXPECT_EQ(com::Query<IObjectRackClient>(properties_.Get())->SetRack(nullptr), S_OK);
    EXPECT_EQ(refused(scenario_.Get()), E_FAIL) << "no rack";
}

}  // namespace
}  // namespace recoveryui::test

// "Recovery Scenario Properties" as its readers meet it.
#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include "com/Create.h"
#include "com/SafeArray.h"
#include "harness/ComTest.h"
#include "harness/HelpViewer.h"
#include "harness/ProcessWindows.h"
#include "model/FakeTestObject.h"
#include "resources/ids.h"

namespace recoveryui::test {
namespace {

constexpr const wchar_t* kTitle = L"Recovery Scenario Properties";
constexpr int kHelpButton = 9;

Rows Tabs(UserScreen& screen, HWND sheet) {
    Rows names;
    const auto tabs = reinterpret_cast<HWND>(screen.Ask(sheet, PSM_GETTABCONTROL));
    for (int tab = 0; tab < static_cast<int>(screen.Ask(tabs, TCM_GETITEMCOUNT)); ++tab) {
        wchar_t text[100] = L"";
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = 100;
        screen.Ask(tabs, TCM_GETITEMW, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&item));
        names.push_back(text);
    }
    return names;
}

void Turn(UserScreen& screen, HWND sheet, int page) {
    screen.Do([=] { SendMessageW(sheet, PSM_SETCURSEL, static_cast<WPARAM>(page), 0); });
}

// Nothing on the page can be typed into, ticked or pressed.
void ExpectReadOnly(UserScreen& screen, HWND sheet) {
    for (const HWND control : Descendants(screen.Page(sheet))) {
        const LONG style = GetWindowLongW(control, GWL_STYLE);
        if (ClassOf(control) == L"Edit") {
            EXPECT_TRUE(style & ES_READONLY) << GetDlgCtrlID(control);
        } else if (ClassOf(control) == L"Button") {
            EXPECT_TRUE(style & WS_DISABLED) << GetDlgCtrlID(control);
        }
    }
}

std::wstring Clipboard() {
    std::wstring text;
    if (!OpenClipboard(nullptr)) return L"(closed)";
    if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
        text = static_cast<const wchar_t*>(GlobalLock(data));
        GlobalUnlock(data);
    }
    CloseClipboard();
    return text;
}

class PropertiesSheetTest : public ComTest {
protected:
    PropertiesSheetTest()
        : scenario_(New<IRecoveryScenario>(L"Vantrel.ReplayRecoveryScenario")),
          properties_(New<IScenarioProperties>(L"Vantrel.ScenarioProperties")) {
        rack_.Put(L"HelpViewer", help_.Get());
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
        com::CVtlSafeArray<IUnknown*> array;
        EXPECT_EQ(array.Create(static_cast<ULONG>(elements.size())), S_OK);
        for (size_t i = 0; i < elements.size(); ++i)
            EXPECT_EQ(array.PutElement(static_cast<LONG>(i), com::Ptr<IUnknown>(elements[i])), S_OK);
        EXPECT_EQ(scenario_->SetOperations(array.Get()), S_OK);
    }
    HRESULT Show(IUnknown* object, std::function<void(UserScreen&, HWND)> script) {
        User user([&](UserScreen& screen) {
            const HWND sheet = screen.WaitForWindow(kTitle);
            script(screen, sheet);
            screen.Press(sheet, IDOK);
        });
        return properties_->DoModal(object, com::Bstr(L"C:\\Tests\\Login.trs").Get(),
                                    com::Bstr(L"Unexpected log-in").Get());
    }
    HRESULT Show(std::function<void(UserScreen&, HWND)> script) { return Show(scenario_.Get(), script); }

    com::Ptr<HelpViewer> help_ = HelpViewer::Make();
    Rack rack_;
    com::Ptr<IRecoveryScenario> scenario_;
    com::Ptr<IScenarioProperties> properties_;
};

TEST_F(PropertiesSheetTest, AReaderLeafsThroughAPopUpScenarioAndChangesNothing) {
    const auto trigger = SetTrigger<IPopUpRecoveryTrigger>(L"Vantrel.PopUpRecoveryTrigger");
    EXPECT_EQ(trigger->SetWindowTitle(com::Bstr(L"Log.*").Get(), 1), S_OK);
    EXPECT_EQ(trigger->SetWindowText(com::Bstr(L"Name:\nPassword:").Get(), 0), S_OK);
    EXPECT_EQ(scenario_->SetDescription(com::Bstr(L"Somebody logged us out.\r\nLog in again.").Get()), S_OK);
    EXPECT_EQ(scenario_->SetPostRecoveryOption(2), S_OK);
    EXPECT_EQ(Show([&](UserScreen& screen, HWND sheet) {
                  EXPECT_EQ(Tabs(screen, sheet), (Rows{L"General", L"Trigger Event", L"Recovery Operation",
                                                       L"Post-Recovery Operation"}));
                  EXPECT_EQ(screen.Text(sheet, IDC_GENERAL_FILE), L"C:\\Tests\\Login.trs");
                  EXPECT_EQ(screen.Text(sheet, IDC_GENERAL_NAME), L"Unexpected log-in");
                  EXPECT_EQ(screen.Text(sheet, IDC_GENERAL_DESCRIPTION),
                            L"Somebody logged us out.\r\nLog in again.");
                  screen.Picture(sheet, L"properties-general");
                  ExpectReadOnly(screen, sheet);
                  Turn(screen, sheet, 1);
                  EXPECT_TRUE(screen.IsChecked(sheet, IDC_PROPERTIES_TITLE_CHECK));
                  EXPECT_EQ(screen.Text(sheet, IDC_PROPERTIES_TITLE), L"Log.*");
                  EXPECT_TRUE(screen.IsChecked(sheet, IDC_PROPERTIES_TITLE_REGEX));
                  EXPECT_TRUE(screen.IsChecked(sheet, IDC_PROPERTIES_TEXT_CHECK));
                  EXPECT_EQ(screen.Text(sheet, IDC_PROPERTIES_TEXT), L"Name:\nPassword:");
                  EXPECT_FALSE(screen.IsChecked(sheet, IDC_PROPERTIES_TEXT_REGEX));
                  screen.Picture(sheet, L"properties-popup");
                  ExpectReadOnly(screen, sheet);
                  screen.Press(sheet, kHelpButton);
                  EXPECT_EQ(help_->Take(), L"Und_Recovery_Scenario_Properties_Dialog_Box.htm");
              }),
              S_OK);

    // One condition that cannot be read leaves both out.
    FailCall(L"PopUpRecoveryTrigger", L"GetWindowText");
    EXPECT_EQ(Show([&](UserScreen& screen, HWND sheet) {
                  Turn(screen, sheet, 1);
                  EXPECT_FALSE(screen.IsChecked(sheet, IDC_PROPERTIES_TITLE_CHECK));
                  EXPECT_EQ(screen.Text(sheet, IDC_PROPERTIES_TITLE), L"");
              }),
              S_OK);
}

TEST_F(PropertiesSheetTest, AnErrorIsNamedAndExplainedUnlessItIsAnyOrUnknown) {
    const auto trigger = SetTrigger<IErrorRecoveryTrigger>(L"Vantrel.ErrorRecoveryTrigger");
    const struct {
        std::uint32_t code;
        const wchar_t* error;
        const wchar_t* description;
    } rows[] = {
        {0x80040202, L"Object not found",
         L"No object within the specified parent object matches the test object description for the object."},
        {0x8004020A, L"Item in list or menu is not unique",
         L"More than one item in the list, menu, or tree has the name specified in the method argument."},
        {0, L"", L""},
        {0x80040299, L"", L""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(trigger->SetErrorCode(static_cast<long>(row.code)), S_OK);
        EXPECT_EQ(Show([&](UserScreen& screen, HWND sheet) {
                      Turn(screen, sheet, 1);
                      EXPECT_EQ(screen.Text(sheet, IDC_PROPERTIES_ERROR), row.error);
                      EXPECT_EQ(screen.Text(sheet, IDC_PROPERTIES_ERROR_DESCRIPTION), row.description);
                      screen.Picture(sheet, L"properties-error-" + std::to_wstring(row.code));
                      ExpectReadOnly(screen, sheet);
                  }),
                  S_OK);
    }
}

TEST_F(PropertiesSheetTest, CrashingProcessesAreListedInOrderAndCanBeCopied) {
    const auto trigger = SetTrigger<ICrashRecoveryTrigger>(L"Vantrel.CrashRecoveryTrigger");
    com::CVtlSafeArray<BSTR> names;
    EXPECT_EQ(names.Create(3), S_OK);
    EXPECT_EQ(names.PutElement(0, com::Bstr(L"writer.exe")), S_OK);
    EXPECT_EQ(names.PutElement(1, com::Bstr(L"")), S_OK);
    EXPECT_EQ(names.PutElement(2, com::Bstr(L"agent.exe")), S_OK);
    EXPECT_EQ(trigger->SetProcesses(names.Get()), S_OK);
    EXPECT_EQ(
        Show([&](UserScreen& screen, HWND sheet) {
            Turn(screen, sheet, 1);
            EXPECT_EQ(screen.RowsOf(sheet, IDC_PROPERTIES_PROCESSES), (Rows{L"writer.exe", L"agent.exe"}));
            screen.Choose(sheet, IDC_PROPERTIES_PROCESSES, L"agent.exe");
            screen.RealKeys({VK_CONTROL, 'A'});
            screen.RealKeys({VK_CONTROL, 'C'});
            screen.WaitUntil("the rows are copied", [] { return Clipboard() == L"writer.exe\r\nagent.exe"; });
            screen.Picture(sheet, L"properties-crash");
        }),
        S_OK);
}

TEST_F(PropertiesSheetTest, AWatchedObjectIsShownWithItsParentsAndWhatIdentifiesThem) {
    const auto trigger = SetTrigger<IObjectStateRecoveryTrigger>(L"Vantrel.ObjectStateRecoveryTrigger");
    EXPECT_EQ(trigger->SetTestObject(FakeTestObject::LoginName().Get()), S_OK);
    EXPECT_EQ(
        Show([&](UserScreen& screen, HWND sheet) {
            Turn(screen, sheet, 1);
            EXPECT_EQ(screen.RowsOf(sheet, IDC_PROPERTIES_TREE), (Rows{L"Login", L"  Name"}));
            EXPECT_EQ(screen.Chosen(sheet, IDC_PROPERTIES_TREE), Rows{L"  Name"});
            EXPECT_EQ(screen.RowsOf(sheet, IDC_PROPERTIES_GRID), (Rows{L"text | Your name", L"x | 12"}));
            screen.Picture(sheet, L"properties-object-state");
            screen.Choose(sheet, IDC_PROPERTIES_TREE, L"Login");
            EXPECT_EQ(screen.RowsOf(sheet, IDC_PROPERTIES_GRID), Rows{L"text | Log in"});
            screen.Choose(sheet, IDC_PROPERTIES_GRID, L"text");
            screen.RealKeys({VK_CONTROL, 'C'});
            screen.WaitUntil("the row is copied", [] { return Clipboard() == L"text\tLog in"; });
        }),
        S_OK);

    EXPECT_EQ(trigger->SetTestObject(FakeTestObject::Nested(40).Get()), S_OK);
    EXPECT_EQ(Show([&](UserScreen& screen, HWND sheet) {
                  const ULONGLONG before = GetTickCount64();
                  Turn(screen, sheet, 1);
                  EXPECT_EQ(screen.RowsOf(sheet, IDC_PROPERTIES_TREE).size(), 40u);
                  EXPECT_LT(GetTickCount64() - before, 1000u);
                  screen.Picture(sheet, L"properties-object-state-deep");
              }),
              S_OK);

    FailCall(L"ObjectStateRecoveryTrigger", L"GetTestObject");
    EXPECT_EQ(Show([&](UserScreen& screen, HWND sheet) {
                  Turn(screen, sheet, 1);
                  EXPECT_TRUE(screen.RowsOf(sheet, IDC_PROPERTIES_TREE).empty());
                  EXPECT_TRUE(screen.RowsOf(sheet, IDC_PROPERTIES_GRID).empty());
              }),
              S_OK);
}

TEST_F(PropertiesSheetTest, OperationsAndTheRestartAreListedAndForeignOnesPassedOver) {
    SetTrigger<IPopUpRecoveryTrigger>(L"Vantrel.PopUpRecoveryTrigger");
    const auto close = New<IProcessControlRecoveryAction>(L"Vantrel.ProcessControlRecoveryAction");
    const auto call = New<IFunctionCallRecoveryAction>(L"Vantrel.FunctionCallRecoveryAction");
    com::CVtlSafeArray<BSTR> names;
    EXPECT_EQ(names.Create(1), S_OK);
    EXPECT_EQ(names.PutElement(0, com::Bstr(L"writer.exe")), S_OK);
    EXPECT_EQ(close->SetProcessNames(names.Get()), S_OK);
    EXPECT_EQ(call->SetLibraryPath(com::Bstr(L"C:\\Lib\\login.vbs").Get()), S_OK);
    EXPECT_EQ(call->SetFunctionName(com::Bstr(L"LogIn").Get()), S_OK);
    SetOperations({close.Get(), nullptr, help_.Get(), call.Get()});

    const struct {
        long option;
        const wchar_t* text;
        bool restart;
    } rows[] = {{1, L"Repeat current step and continue", false},
                {2, L"Proceed to next step", false},
                {3, L"Proceed to next action or component iteration", false},
                {4, L"Proceed to next test iteration", false},
                {5, L"Restart current test run", false},
                {6, L"Stop the test run", false},
                {7, L"Restart current test run", true},
                {8, L"Stop the test run", true},
                {9, L"", false}};
    for (const auto& row : rows) {
        EXPECT_EQ(scenario_->SetPostRecoveryOption(row.option), S_OK);
        EXPECT_EQ(
            Show([&](UserScreen& screen, HWND sheet) {
                Turn(screen, sheet, 2);
                Rows operations{L"Close process | writer.exe", L"Function call | C:\\Lib\\login.vbs::LogIn"};
                if (row.restart) operations.push_back(L"Restart Microsoft Windows | ");
                EXPECT_EQ(screen.RowsOf(sheet, IDC_PROPERTIES_OPERATIONS), operations);
                screen.Picture(sheet, L"properties-operations-" + std::to_wstring(row.option));
                Turn(screen, sheet, 3);
                EXPECT_EQ(screen.Text(sheet, IDC_PROPERTIES_OPTION), row.text);
                screen.Picture(sheet, L"properties-option-" + std::to_wstring(row.option));
                ExpectReadOnly(screen, sheet);
            }),
            S_OK);
    }
    for (const wchar_t* reading : {L"GetOperations", L"GetPostRecoveryOption"}) {
        FailCall(L"RecoveryScenario", reading);
        EXPECT_EQ(Show([&](UserScreen& screen, HWND sheet) {
                      EXPECT_EQ(Tabs(screen, sheet), (Rows{L"General", L"Trigger Event"})) << Utf8(reading);
                  }),
                  S_OK);
    }
}

TEST_F(PropertiesSheetTest, WhatCannotBeShownIsRefusedBeforeAnythingAppears) {
    const auto refused = [&](IUnknown* object) { return properties_->DoModal(object, nullptr, nullptr); };
    EXPECT_EQ(refused(nullptr), E_FAIL);
    EXPECT_EQ(refused(help_.Get()), E_NOINTERFACE);
    EXPECT_EQ(refused(scenario_.Get()), E_FAIL) << "no trigger";
    SetTrigger<IPopUpRecoveryTrigger>(L"Vantrel.PopUpRecoveryTrigger");
    FailCall(L"RecoveryScenario", L"GetTrigger");
    EXPECT_EQ(refused(scenario_.Get()), E_FAIL);
    FailCall(L"PopUpRecoveryTrigger", L"GetTriggerKind");
    EXPECT_EQ(Show([&](UserScreen& screen, HWND sheet) {
                  EXPECT_EQ(Tabs(screen, sheet),
                            (Rows{L"General", L"Recovery Operation", L"Post-Recovery Operation"}));
              }),
              S_OK);
    EXPECT_EQ(com::Query<IObjectRackClient>(properties_.Get())->SetRack(nullptr), S_OK);
    EXPECT_EQ(refused(scenario_.Get()), E_FAIL) << "no rack";
}

}  // namespace
}  // namespace recoveryui::test

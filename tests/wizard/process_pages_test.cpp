// The two pages that ask for process names.
#include <windows.h>

#include <prsht.h>

#include "process/RunningProcesses.h"
#include "wizard/WizardTest.h"

namespace recoveryui::test {
namespace {

constexpr const wchar_t* kClosePage = L"Recovery Operation - Close Processes";
constexpr const wchar_t* kSelf = L"recoveryui_tests.exe";

class ProcessPagesTest : public WizardTest {
protected:
    static Rows Chosen(UserScreen& screen, HWND wizard) {
        return screen.RowsOf(wizard, IDC_PROCESSES_CHOSEN);
    }
    // "+", the name, Enter.
    static void TypeNew(UserScreen& screen, HWND wizard, const std::wstring& name) {
        screen.Press(wizard, IDC_PROCESSES_NEW);
        Retype(screen, name);
    }
    // Over the selected text of the open edit box.
    static void Retype(UserScreen& screen, const std::wstring& name) {
        screen.Type(name);
        screen.Keys({VK_RETURN});
    }
};

TEST(RunningProcessesTest, BothWaysListThisProgramByItsFileName) {
    using process::ProcessSource;
    for (const auto source : {ProcessSource::Snapshot, ProcessSource::NativeQuery}) {
        const auto names = process::ProcessesFrom(source);
        // Another process of the program may hold the desktop open.
        EXPECT_GE(std::count(names.begin(), names.end(), kSelf), 1);
    }
    EXPECT_TRUE(process::EnumerateProcesses());
    EXPECT_EQ(process::SourceFor(2, 4), ProcessSource::NativeQuery);
    EXPECT_EQ(process::SourceFor(2, 5), ProcessSource::Snapshot);
    EXPECT_EQ(process::SourceFor(1, 4), ProcessSource::Snapshot);
}

TEST_F(ProcessPagesTest, NamesAreTakenFromTheRunningOnesAndTypedUntilTheyAreRight) {
    Browse([&](UserScreen& screen, HWND wizard) {
        GoToOperations(screen, wizard);
        AddOperation(screen, wizard, IDC_SELECT_OPERATION_PROCESS);
        EXPECT_EQ(screen.PageTitle(wizard), kClosePage);
        EXPECT_FALSE(CanGoOn(screen, wizard));
        screen.Press(wizard, IDC_PROCESSES_ADD_SELECTED);
        screen.Picture(wizard, L"close-fresh");
        for (int twice = 0; twice < 2; ++twice) {
            screen.Choose(wizard, IDC_PROCESSES_RUNNING, kSelf);
            screen.Press(wizard, IDC_PROCESSES_ADD_SELECTED);
        }
        EXPECT_EQ(Chosen(screen, wizard), Rows{kSelf});
        EXPECT_EQ(screen.Chosen(wizard, IDC_PROCESSES_RUNNING), Rows{});
        EXPECT_TRUE(CanGoOn(screen, wizard));
        EXPECT_EQ(screen.FocusId(), IDC_PROCESSES_CHOSEN);

        TypeNew(screen, wizard, L" what?.exe ");
        EXPECT_EQ(screen.AnswerBox(IDOK),
                  L"The process name cannot contain any of the following characters: "
                  L"\r\n\t\t\\ / : * \" < > |");
        Retype(screen, L"RecoveryUI_Tests.exe");
        EXPECT_EQ(screen.AnswerBox(IDOK), L"This process already exists in the list.");
        Retype(screen, L" note pad.exe ");
        EXPECT_EQ(Chosen(screen, wizard), (Rows{kSelf, L"note pad.exe"}));

        // A row that gets no name goes again, a second "+" waits for the first one's message.
        screen.Press(wizard, IDC_PROCESSES_NEW);
        screen.Keys({VK_ESCAPE});
        TypeNew(screen, wizard, L"");
        screen.Press(wizard, IDC_PROCESSES_NEW);
        screen.Type(L"a/b");
        screen.Press(wizard, IDC_PROCESSES_NEW);
        screen.AnswerBox(IDOK);
        EXPECT_EQ(Chosen(screen, wizard), (Rows{kSelf, L"note pad.exe", L""}));
        screen.Type(L"x*y");
        screen.Next(wizard);
        screen.AnswerBox(IDOK);
        EXPECT_EQ(screen.PageTitle(wizard), kClosePage);
        screen.Keys({VK_ESCAPE});

        // In other capitals, emptied, and emptied but given up.
        screen.Choose(wizard, IDC_PROCESSES_CHOSEN, L"note pad.exe");
        screen.Keys({VK_F2});
        Retype(screen, L"Note Pad.EXE");
        for (const WORD end : {WORD{VK_ESCAPE}, WORD{VK_RETURN}}) {
            screen.Keys({VK_F2});
            screen.Keys({VK_DELETE, end});
        }
        EXPECT_EQ(screen.AnswerBox(IDOK), L"You must type a process name");
        screen.Keys({VK_ESCAPE});
        EXPECT_EQ(Chosen(screen, wizard), (Rows{kSelf, L"Note Pad.EXE"}));

        screen.Keys({VK_DELETE});
        EXPECT_EQ(screen.Chosen(wizard, IDC_PROCESSES_CHOSEN), Rows{kSelf});
        TypeNew(screen, wizard, L"calc.exe");
        screen.Next(wizard);
        EXPECT_TRUE(Called(
            L"ProcessControlRecoveryAction.SetProcessNames([\"recoveryui_tests.exe\", \"calc.exe\"])"));
        EXPECT_EQ(screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS),
                  Rows{L"Close process | recoveryui_tests.exe;calc.exe"});

        screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER);
        AddOperation(screen, wizard, IDC_SELECT_OPERATION_PROCESS);
        EXPECT_EQ(Chosen(screen, wizard), Rows{});
        TypeNew(screen, wizard, L"only.exe");
        screen.Press(wizard, IDC_PROCESSES_REMOVE);
        EXPECT_FALSE(CanGoOn(screen, wizard));
        // A refused name is given up with the page.
        screen.Press(wizard, IDC_PROCESSES_NEW);
        screen.Type(L"x?");
        screen.Back(wizard);
        EXPECT_EQ(screen.PageTitle(wizard), L"Recovery Operation");
        screen.Next(wizard);
        EXPECT_EQ(Chosen(screen, wizard), Rows{});

        screen.Do([running = screen.Control(wizard, IDC_PROCESSES_RUNNING)] {
            for (int i = 0; i < 40; ++i) {
                const std::wstring name = std::to_wstring(i) + L".exe";
                SendMessageW(running, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
            }
            SendMessageW(running, LB_SETSEL, TRUE, -1);
        });
        screen.Press(wizard, IDC_PROCESSES_ADD_SELECTED);
        EXPECT_TRUE(screen.IsLastRowInView(wizard, IDC_PROCESSES_CHOSEN));
    });
}

// The buttons are explained unless a trigger of the page's own kind, or of none, gives nothing to show.
TEST_F(ProcessPagesTest, ACrashTriggersNamesComeBackAndItsButtonsExplainThemselves) {
    constexpr const wchar_t* kCrash = L"Vantrel.CrashRecoveryTrigger";
    const struct {
        const wchar_t *trigger, *failing;
        Rows stored, shown;
        bool canGoOn, tips;
    } cases[] = {
        {kCrash, nullptr, {L"a.exe", L"", L"A.exe", L"b.exe"}, {L"a.exe", L"A.exe", L"b.exe"}, true, true},
        {kCrash, nullptr, {}, {}, false, false},
        {kCrash, nullptr, {L""}, {}, true, true},
        {kCrash, L"GetTriggerKind", {L"a"}, {}, false, false},
        {kCrash, L"GetProcesses", {L"a"}, {}, false, false},
        {L"Vantrel.ErrorRecoveryTrigger", nullptr, {}, {}, false, true},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(&each - cases);
        const auto trigger = New<IUnknown>(each.trigger);
        if (const auto crash = com::Query<ICrashRecoveryTrigger>(trigger.Get())) {
            EXPECT_EQ(crash->SetProcesses(ArrayOf<BSTR>(each.stored).Get()), S_OK);
        }
        Edit(trigger.Get());
        if (each.failing) FailCall(L"CrashRecoveryTrigger", each.failing, E_FAIL, 1, 0);
        Browse([&](UserScreen& screen, HWND wizard) {
            screen.Do([&] { SendMessageW(wizard, PSM_SETCURSELID, 0, IDD_CRASH); });
            EXPECT_EQ(Chosen(screen, wizard), each.shown);
            EXPECT_EQ(CanGoOn(screen, wizard), each.canGoOn);
            EXPECT_EQ(screen.Tip(wizard, IDC_PROCESSES_NEW), each.tips ? L"Add New Process" : L"");
            EXPECT_EQ(screen.Tip(wizard, IDC_PROCESSES_REMOVE), each.tips ? L"Remove Process" : L"");
            if (each.canGoOn) screen.Next(wizard);
            EXPECT_EQ(screen.PageTitle(wizard),
                      each.shown.empty() ? L"Select Processes" : L"Recovery Operations");
        });
        ClearFaults();
    }
    EXPECT_TRUE(Called(L"CrashRecoveryTrigger.SetProcesses([\"a.exe\", \"A.exe\", \"b.exe\"])"));
}

}  // namespace
}  // namespace recoveryui::test

// Lists that get more rows than they have room for.
#include <windows.h>

#include <commctrl.h>

#include "settings/SettingsTest.h"
#include "wizard/WizardTest.h"

namespace recoveryui::test {
namespace {

constexpr int kMany = 40;

void ExpectNoBarAcross(HWND list) {
    EXPECT_FALSE(GetWindowLongW(list, GWL_STYLE) & WS_HSCROLL);
}

void ExpectLastRowInView(UserScreen& screen, HWND list) {
    screen.Do([list] {
        RECT row{}, view{};
        GetClientRect(list, &view);
        const int last = ListView_GetItemCount(list) - 1;
        EXPECT_GE(last, kMany - 1);
        ListView_GetItemRect(list, last, &row, LVIR_BOUNDS);
        EXPECT_LE(row.bottom, view.bottom);
        EXPECT_GT(ListView_GetTopIndex(list), 0);
    });
    ExpectNoBarAcross(list);
}

TEST_F(SettingsTest, ManyScenariosAreChosenAndAddedInListsWithoutABarAcross) {
    std::vector<Scenario> scenarios;
    for (int i = 0; i < kMany; ++i) scenarios.push_back({L"Scenario " + std::to_wstring(i)});
    const std::wstring file = MakeFile(L"many.trs", scenarios);
    OpenSettings([&](UserScreen& screen, HWND frame) {
        screen.Press(frame, IDC_RECOVERY_ADD);
        const HWND dialog = screen.WaitForWindow(L"Add Recovery Scenario");
        EnterFile(screen, dialog, file);
        ExpectNoBarAcross(screen.Control(dialog, IDC_ADD_SCENARIO_LIST));
        screen.RealKeys({VK_CONTROL, 'A'});
        screen.Press(dialog, IDOK);
        ExpectLastRowInView(screen, screen.Control(frame, IDC_RECOVERY_LIST));
    });
}

TEST_F(WizardTest, ManyRunningProcessesAreAddedUpToTheLastOneInView) {
    Browse([&](UserScreen& screen, HWND wizard) {
        GoToOperations(screen, wizard);
        AddOperation(screen, wizard, IDC_SELECT_OPERATION_PROCESS);
        screen.Do([running = screen.Control(wizard, IDC_PROCESSES_RUNNING)] {
            for (int i = 0; i < kMany; ++i) {
                const std::wstring name = std::to_wstring(i) + L".exe";
                SendMessageW(running, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
            }
            SendMessageW(running, LB_SETSEL, TRUE, -1);
        });
        screen.Press(wizard, IDC_PROCESSES_ADD_SELECTED);
        ExpectLastRowInView(screen, screen.Control(wizard, IDC_PROCESSES_CHOSEN));
        screen.Cancel(wizard);
    });
}

}  // namespace
}  // namespace recoveryui::test

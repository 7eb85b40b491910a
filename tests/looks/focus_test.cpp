// Where the keyboard is when a page opens, and what Enter and Escape do there.
#include <windows.h>

#include <prsht.h>

#include "wizard/WizardTest.h"

namespace recoveryui::test {
namespace {

TEST_F(WizardTest, AScenarioIsNamedWithTheKeyboardAlone) {
    Edit(New<IUnknown>(L"Vantrel.ErrorRecoveryTrigger").Get());
    EXPECT_EQ(Run([&](UserScreen& screen, HWND wizard) {
                  NextUntil(screen, wizard, L"Recovery Operations");
                  AddOperation(screen, wizard, IDC_SELECT_OPERATION_CLICK);
                  screen.Next(wizard);
                  screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER, false);
                  screen.Next(wizard);
                  screen.Next(wizard);
                  EXPECT_EQ(screen.WizardButtons(wizard), L"B n* f");
                  EXPECT_EQ(screen.FocusId(), IDC_SCEN_NAME) << "Next, which had the focus, cannot be pressed";
                  NMHDR ask{wizard, 0, static_cast<UINT>(PSN_QUERYINITIALFOCUS)};
                  const HWND page = screen.Page(wizard);
                  screen.Do([&] { SendMessageW(page, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&ask)); });
                  EXPECT_EQ(reinterpret_cast<HWND>(GetWindowLongPtrW(page, DWLP_MSGRESULT)),
                            screen.Control(wizard, IDC_SCEN_NAME))
                      << "the file before it is only shown";

                  screen.Type(L"A");
                  screen.Keys({VK_TAB});
                  EXPECT_EQ(screen.FocusId(), IDC_SCEN_DESCRIPTION);
                  screen.Type(L"one");
                  screen.Keys({VK_RETURN});
                  screen.Type(L"two");
                  EXPECT_EQ(screen.Text(wizard, IDC_SCEN_DESCRIPTION), L"one\r\ntwo") << "Enter makes a line";
                  screen.Keys({VK_TAB});
                  screen.Keys({VK_TAB});
                  screen.Keys({VK_RETURN});
                  EXPECT_EQ(screen.PageTitle(wizard), L"Completing the Recovery Scenario Wizard");
                  screen.Keys({VK_ESCAPE});
              }),
              S_FALSE);
}

}  // namespace
}  // namespace recoveryui::test

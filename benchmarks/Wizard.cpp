// The wizard beside a bare sheet of the same fifteen templates, without any code behind them.
#include <windows.h>

#include <commctrl.h>

#include "Compare.h"
#include "Host.h"
#include "Rows.h"
#include "Stage.h"
#include "resources/ids.h"

namespace recoveryui::bench {
namespace {

constexpr int kPages[] = {IDD_WELCOME,          IDD_SELECT_TRIGGER,   IDD_POPUP,          IDD_SELECT_OBJECT,
                          IDD_OBJECT_PROPS,     IDD_SELECT_ERROR,     IDD_CRASH,          IDD_OPERATION_LIST,
                          IDD_SELECT_OPERATION, IDD_OPERATION_CLICK,  IDD_OPERATION_FUNC, IDD_CLOSE_PROCESSES,
                          IDD_TEST_FLOW,        IDD_SCEN_DESCRIPTION, IDD_SUMMARY};
constexpr int kSteps = 2;   // from the welcome page; what comes later needs input
constexpr int kRounds = 5;  // of later visits
// What the window server does in between varies more than the goals are away.
constexpr int kPairs = 101;

// The time until the neighbour page is painted.
double Turn(HWND sheet, int button) {
    const LRESULT before = SendMessageW(sheet, PSM_GETCURRENTPAGEHWND, 0, 0);
    const double start = Now();
    SendMessageW(sheet, PSM_PRESSBUTTON, button, 0);
    Settle(sheet);
    const double time = Now() - start;
    Require(SendMessageW(sheet, PSM_GETCURRENTPAGEHWND, 0, 0) != before, "the page does not change");
    return time;
}

std::vector<double> Visit(const std::function<void()>& show) {
    double open = 0, first = 0, later = 0;
    const double start = Now();
    ShowModal(show, [&](HWND sheet) {
        open = Now() - start;
        for (int step = 0; step < kSteps; ++step) first += Turn(sheet, PSBTN_NEXT);
        for (int round = 0; round < kRounds; ++round) {
            for (int step = 0; step < kSteps; ++step) later += Turn(sheet, PSBTN_BACK);
            for (int step = 0; step < kSteps; ++step) later += Turn(sheet, PSBTN_NEXT);
        }
    });
    return {open, first / kSteps, later / (2 * kRounds * kSteps)};
}

// What the pages' pictures alone come to: one that is there already, of the size that the wizard shows at 96
// DPI.
INT_PTR CALLBACK ShowPicture(HWND page, UINT message, WPARAM, LPARAM) {
    static const HBITMAP picture = [] {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, 135, 374, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
        return CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, nullptr, nullptr, 0);
    }();
    if (message == WM_INITDIALOG)
        SendDlgItemMessageW(page, IDC_PAGE_BITMAP, STM_SETIMAGE, IMAGE_BITMAP,
                            reinterpret_cast<LPARAM>(picture));
    return FALSE;
}

INT_PTR CALLBACK DoNothing(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;
}

void ShowBareSheet(DLGPROC procedure) {
    const HINSTANCE component = GetModuleHandleW(L"RecoveryUI.dll");
    HPROPSHEETPAGE pages[std::size(kPages)];
    for (size_t i = 0; i < std::size(kPages); ++i) {
        PROPSHEETPAGEW page{};
        page.dwSize = sizeof page;
        page.dwFlags = PSP_HASHELP;
        page.hInstance = component;
        page.pszTemplate = MAKEINTRESOURCEW(kPages[i]);
        page.pfnDlgProc = procedure;
        pages[i] = CreatePropertySheetPageW(&page);
    }
    PROPSHEETHEADERW header{};
    header.dwSize = sizeof header;
    header.dwFlags = PSH_WIZARD | PSH_WIZARDHASFINISH | PSH_HASHELP | PSH_NOCONTEXTHELP;
    header.hInstance = component;
    header.nPages = std::size(kPages);
    header.phpage = pages;
    Require(PropertySheetW(&header) >= 0, "no bare sheet");
}

}  // namespace

void MeasureWizard(const Host& host) {
    const auto wizard = host.New<IRecoveryWizard>(L"Vantrel.RecoveryWizard");
    com::Check(wizard->put_Repository(host.New<IUnknown>(L"Vantrel.RecoveryRepository").Get()));
    const auto dialog = com::Query<IRecoveryDlg>(wizard.Get());
    const Side bare = [] { return Visit([] { ShowBareSheet(&DoNothing); }); };
    Compare(
        {{"wizard: open until the first page is painted", 1.10},
         {"wizard: turn to a page for the first time", 1.15},
         {"wizard: turn to a page again", 1.15}},
        kPairs, [&] { return Visit([&] { com::Check(dialog->DoModal()); }); }, bare);
    Compare(
        {{"bare sheet with pictures: open", 0},
         {"bare sheet with pictures: turn, first time", 0},
         {"bare sheet with pictures: turn again", 0}},
        21, [] { return Visit([] { ShowBareSheet(&ShowPicture); }); }, bare);
}

}  // namespace recoveryui::bench

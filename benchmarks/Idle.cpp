// What the process works while every dialog is open and nobody does anything.
#include <windows.h>

#include <ocidl.h>

#include "Compare.h"
#include "Host.h"
#include "Rows.h"
#include "Stage.h"
#include "com/Bstr.h"

namespace recoveryui::bench {
namespace {

constexpr double kSeconds = 3;

double ProcessorMilliseconds() {
    FILETIME created, exited, kernel, user;
    GetProcessTimes(GetCurrentProcess(), &created, &exited, &kernel, &user);
    const auto whole = [](const FILETIME& time) {
        return static_cast<double>(ULONGLONG{time.dwHighDateTime} << 32 | time.dwLowDateTime) / 10'000;
    };
    return whole(kernel) + whole(user);
}

constexpr UINT kSystemTimer = 0x0118;  // the platform's, by which the caret of an edit box blinks

struct Messages {
    int caret = 0, other = 0;
};

// Messages are handled as in any modal loop; gives how many there were.
Messages Wait(double milliseconds) {
    Messages messages;
    for (const double end = Now() + milliseconds; Now() < end;) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - Now()) + 1, QS_ALLINPUT);
        for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE); DispatchMessageW(&message))
            ++(message.message == kSystemTimer ? messages.caret : messages.other);
    }
    return messages;
}

}  // namespace

void MeasureIdle(const Host& host) {
    using tovarin::store::NamedScenario;
    const auto repository = host.New<IRecoveryRepository>(L"Vantrel.RecoveryRepository");
    com::Check(repository->Load(com::Bstr(L"").Get(), VARIANT_FALSE));
    const auto scenario = host.New<IRecoveryScenario>(L"Vantrel.ReplayRecoveryScenario");
    com::Check(scenario->SetTrigger(host.New<IUnknown>(L"Vantrel.PopUpRecoveryTrigger").Get()));
    const auto wizard = host.New<IRecoveryWizard>(L"Vantrel.RecoveryWizard");
    com::Check(wizard->put_Repository(repository.Get()));
    const auto page = host.New<IPropertyPage>(L"Vantrel.RecoveryPP");

    const auto ask = [&](const wchar_t* progId, const std::function<void(HWND)>& act) {
        const auto dialog = host.New<IRecoveryDlg>(progId);
        ShowModal([&] { com::Check(dialog->DoModal()); }, act);
    };
    const auto measure = [&](HWND) {
        Wait(500);  // what opening left to do
        const double before = ProcessorMilliseconds();
        const Messages messages = Wait(kSeconds * 1000);
        const double worked = ProcessorMilliseconds() - before;
        State("idle for 3 s with every dialog open", std::to_string(static_cast<int>(worked)) + " ms CPU",
              std::to_string(messages.other) + " messages", "", std::to_string(messages.caret) + " blinks",
              "0 ms", worked == 0 && messages.other == 0);
    };
    host.StoreRecords(MakeRecords(10));
    const HWND frame = CreateWindowW(L"#32770", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 640, 560,
                                     nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    const RECT place{0, 0, 600, 500};
    com::Check(page->Activate(frame, &place, TRUE));
    com::Check(page->Show(SW_SHOW));
    ask(L"Vantrel.RecoveryDlg", [&](HWND) {
        ShowModal(
            [&] { com::Check(com::Query<IRecoveryDlg>(wizard.Get())->DoModal()); },
            [&](HWND) {
                const auto add = host.New<IRecoveryAddDlg>(L"Vantrel.RecoveryAddDlg");
                ShowModal(
                    [&] { com::Check(add->DoModal()); },
                    [&](HWND) {
                        const auto properties = host.New<IScenarioProperties>(L"Vantrel.ScenarioProperties");
                        const com::Bstr file(L"C:\\printer.trs"), name(L"Out of paper");
                        ShowModal(
                            [&] { com::Check(properties->DoModal(scenario.Get(), file.Get(), name.Get())); },
                            measure);
                    });
            });
    });
    page->Deactivate();
    DestroyWindow(frame);
}

}  // namespace recoveryui::bench

#include "Stage.h"

#include <cstdio>
#include <exception>
#include <stdexcept>

namespace recoveryui::bench {
namespace {

constexpr UINT kVisit = WM_APP;

// The dialog in front that takes input.
HWND FrontDialog() {
    HWND found = nullptr;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM result) -> BOOL {
            wchar_t name[16];
            GetClassNameW(window, name, 16);
            if (lstrcmpW(name, L"#32770") != 0 || !IsWindowVisible(window) || !IsWindowEnabled(window))
                return TRUE;
            *reinterpret_cast<HWND*>(result) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

void Paint(HWND window) {
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

bool MorePosted() {
    return HIWORD(GetQueueStatus(QS_POSTMESSAGE)) != 0;
}

struct Visit {
    const std::function<void(HWND)>& act;
    HWND below;  // the dialog that was in front before
};

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != kVisit && message != WM_TIMER) return DefWindowProcW(window, message, wParam, lParam);
    if (message == WM_TIMER) {
        KillTimer(window, wParam);
        lParam = static_cast<LPARAM>(wParam);
    }
    const auto& visit = *reinterpret_cast<Visit*>(lParam);
    const HWND dialog = FrontDialog();
    if (!dialog || dialog == visit.below) {
        // A plain dialog is shown when the queue is empty, so nothing is posted meanwhile.
        SetTimer(window, static_cast<UINT_PTR>(lParam), USER_TIMER_MINIMUM, nullptr);
        return 0;
    }
    if (MorePosted()) {
        PostMessageW(window, kVisit, 0, lParam);
        return 0;
    }
    Paint(dialog);
    try {
        visit.act(dialog);
    } catch (const std::exception& error) {
        // A window procedure lets nothing out.
        std::printf("cannot measure: %s\n", error.what());
        std::fflush(stdout);
        ExitProcess(1);
    }
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    return 0;
}

HWND MakeMessageWindow() {
    WNDCLASSW definition{};
    definition.lpfnWndProc = &Procedure;
    definition.hInstance = GetModuleHandleW(nullptr);
    definition.lpszClassName = L"BenchStage";
    RegisterClassW(&definition);
    return CreateWindowW(definition.lpszClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                         nullptr);
}

}  // namespace

void ShowModal(const std::function<void()>& call, const std::function<void(HWND)>& act) {
    static const HWND window = MakeMessageWindow();
    Visit visit{act, FrontDialog()};
    PostMessageW(window, kVisit, 0, reinterpret_cast<LPARAM>(&visit));
    call();
}

void Settle(HWND window) {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE | PM_QS_POSTMESSAGE)) DispatchMessageW(&message);
    Paint(window);
}

void Require(bool condition, const char* what) {
    if (!condition) throw std::runtime_error(what);
}

}  // namespace recoveryui::bench

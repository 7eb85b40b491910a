#include "harness/ProcessWindows.h"

#include <atomic>
#include <cstdio>
#include <fstream>
#include <thread>

namespace recoveryui::test {
namespace {

std::atomic<ULONGLONG> testStarted{0};

BOOL CALLBACK Collect(HWND window, LPARAM list) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == GetCurrentProcessId()) reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

std::string Describe(HWND window, const char* indent) {
    std::string line = indent + Utf8(ClassOf(window)) + " " + std::to_string(GetDlgCtrlID(window) & 0xFFFF) +
                       " \"" + Utf8(TextOf(window)) + "\"";
    if (!IsWindowEnabled(window)) line += " disabled";
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info);
    if (info.hwndFocus == window) line += " focus";
    if (info.hwndCapture == window) line += " capture";
    return line + "\n";
}

// An open menu, in the picture of the place that it covers.
void DrawMenu(HDC picture, HWND menu, const RECT& covered) {
    const RECT place = PlaceOf(menu);
    const HDC source = GetWindowDC(menu);
    BitBlt(picture, place.left - covered.left, place.top - covered.top, place.right - place.left,
           place.bottom - place.top, source, 0, 0, SRCCOPY);
    ReleaseDC(menu, source);
}

// Where in a module: "RecoveryUI.dll + 0x1234".
void PrintPlace(DWORD64 address) {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(address), &module);
    wchar_t name[512] = L"";
    GetModuleFileNameW(module, name, 512);
    std::printf("  %s + 0x%llx\n", Utf8(name).c_str(), address - reinterpret_cast<DWORD64>(module));
}

void PrintStack(CONTEXT frame) {
    for (int depth = 0; depth < 24 && frame.Rip; ++depth) {
        PrintPlace(frame.Rip);
        DWORD64 base = 0, establisher = 0;
        void* handlerData = nullptr;
        const PRUNTIME_FUNCTION function = RtlLookupFunctionEntry(frame.Rip, &base, nullptr);
        if (!function) {
            // A jump into nowhere: what is left on the stack tells where from.
            MEMORY_BASIC_INFORMATION stack{};
            VirtualQuery(reinterpret_cast<void*>(frame.Rsp), &stack, sizeof stack);
            const auto* word = reinterpret_cast<const DWORD64*>(frame.Rsp);
            const void* const end = static_cast<const char*>(stack.BaseAddress) + stack.RegionSize;
            for (int left = 400; left > 0 && word < end; --left, ++word)
                if (RtlLookupFunctionEntry(*word, &base, nullptr)) PrintPlace(*word);
            break;
        }
        RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, frame.Rip, function, &frame, &handlerData, &establisher,
                         nullptr);
    }
}

LONG WINAPI OnCrash(EXCEPTION_POINTERS* crash) {
    std::printf("CRASH: exception 0x%08lX\n", crash->ExceptionRecord->ExceptionCode);
    PrintStack(*crash->ContextRecord);
    TerminateProcess(GetCurrentProcess(), 99);
    return EXCEPTION_EXECUTE_HANDLER;
}

}  // namespace

std::string Utf8(std::wstring_view text) {
    const int length = static_cast<int>(text.size());
    std::string result(WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr),
                       '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), static_cast<int>(result.size()),
                        nullptr, nullptr);
    return result;
}

std::vector<HWND> TopLevelWindows() {
    std::vector<HWND> windows;
    EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

std::vector<HWND> Descendants(HWND window) {
    std::vector<HWND> windows;
    EnumChildWindows(window, Collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

HWND FindBox() {
    for (const HWND window : TopLevelWindows())
        if (IsWindowVisible(window) && ClassOf(window) == L"#32770" && GetDlgItem(window, kBoxText))
            return window;
    return nullptr;
}

std::wstring ClassOf(HWND window) {
    wchar_t name[256] = L"";
    GetClassNameW(window, name, 256);
    return name;
}

RECT PlaceOf(HWND window, HWND in) {
    RECT place{};
    GetWindowRect(window, &place);
    if (in) MapWindowPoints(nullptr, in, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

std::wstring TextOf(HWND window) {
    DWORD_PTR length = 0;
    if (!SendMessageTimeoutW(window, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, 1000, &length)) return {};
    std::wstring text(length, L'\0');
    DWORD_PTR copied = 0;
    SendMessageTimeoutW(window, WM_GETTEXT, length + 1, reinterpret_cast<LPARAM>(text.data()),
                        SMTO_ABORTIFHUNG, 1000, &copied);
    text.resize(copied);
    return text;
}

std::string WindowsLeft() {
    std::string text;
    for (const HWND window : TopLevelWindows()) {
        const std::wstring name = ClassOf(window);
        if (name != L"IME" && name != L"MSCTFIME UI")
            text += " window " + Utf8(name) + " \"" + Utf8(TextOf(window)) + "\"";
    }
    return text;
}

std::wstring ClipboardText() {
    std::wstring text;
    if (!OpenClipboard(nullptr)) return text;
    if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
        text = static_cast<const wchar_t*>(GlobalLock(data));
        GlobalUnlock(data);
    }
    CloseClipboard();
    return text;
}

std::string DescribeWindows() {
    std::string report = "Windows on the screen:\n";
    for (const HWND window : TopLevelWindows()) {
        if (!IsWindowVisible(window)) continue;
        report += Describe(window, "  ");
        DWORD_PTR answer = 0;
        if (!SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, 500, &answer)) {
            report += "    (does not answer)\n";
            continue;
        }
        for (const HWND child : Descendants(window)) {
            if (IsWindowVisible(child)) report += Describe(child, "    ");
        }
    }
    return report;
}

void CloseWindows() {
    static int refusals = 0;
    for (const HWND window : TopLevelWindows()) {
        if (!IsWindowVisible(window) || !IsWindowEnabled(window)) continue;
        WORD answer = 0;
        for (const WORD id : {IDOK, IDABORT, IDCANCEL, IDNO}) {
            const HWND button = GetDlgItem(window, id);
            if (button && IsWindowVisible(button) && IsWindowEnabled(button)) answer = id;
        }
        // Where Cancel only takes the closing back, the question comes again until it is answered with OK.
        if (answer == IDCANCEL && GetDlgItem(window, kBoxText) && ++refusals % 8 == 0) answer = IDOK;
        if (ClassOf(window) == L"#32768") {
            PostMessageW(window, WM_CANCELMODE, 0, 0);
        } else if (answer) {
            PostMessageW(window, WM_COMMAND, answer, 0);
        } else {
            PostMessageW(window, WM_CLOSE, 0, 0);
        }
    }
}

bool SaveBmp(HWND window, const std::wstring& path) {
    const RECT place = PlaceOf(window);
    const LONG width = place.right - place.left;
    const LONG height = place.bottom - place.top;
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, width, height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* pixels = nullptr;
    const HDC source = GetWindowDC(window);
    const HDC memory = CreateCompatibleDC(source);
    const HBITMAP bitmap = CreateDIBSection(memory, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    bool saved = false;
    if (bitmap) {
        const HGDIOBJ before = SelectObject(memory, bitmap);
        BitBlt(memory, 0, 0, width, height, source, 0, 0, SRCCOPY);
        for (const HWND menu : TopLevelWindows())
            if (IsWindowVisible(menu) && ClassOf(menu) == L"#32768") DrawMenu(memory, menu, place);
        GdiFlush();
        const DWORD size = static_cast<DWORD>(width * height * 4);
        BITMAPFILEHEADER header{};
        header.bfType = 0x4D42;
        header.bfOffBits = sizeof header + sizeof info.bmiHeader;
        header.bfSize = header.bfOffBits + size;
        std::ofstream file(path.c_str(), std::ios::binary);
        file.write(reinterpret_cast<const char*>(&header), sizeof header);
        file.write(reinterpret_cast<const char*>(&info.bmiHeader), sizeof info.bmiHeader);
        file.write(static_cast<const char*>(pixels), size);
        saved = file.flush().good();
        SelectObject(memory, before);
        DeleteObject(bitmap);
    }
    DeleteDC(memory);
    ReleaseDC(window, source);
    return saved;
}

void StartWatchdog(unsigned seconds) {
    RestartWatchdog();
    HANDLE watched = nullptr;
    DuplicateHandle(GetCurrentProcess(), GetCurrentThread(), GetCurrentProcess(), &watched, 0, FALSE,
                    DUPLICATE_SAME_ACCESS);
    std::thread([=] {
        while (GetTickCount64() < testStarted + seconds * 1000ULL) Sleep(100);
        std::printf("WATCHDOG: nothing ended within %u seconds\n%s", seconds, DescribeWindows().c_str());
        std::fflush(stdout);
        CONTEXT frame{};
        frame.ContextFlags = CONTEXT_FULL;
        SuspendThread(watched);
        if (GetThreadContext(watched, &frame)) PrintStack(frame);
        TerminateProcess(GetCurrentProcess(), 98);
    }).detach();
}

void RestartWatchdog() {
    testStarted = GetTickCount64();
}

void ReportCrashes() {
    SetUnhandledExceptionFilter(OnCrash);
}

}  // namespace recoveryui::test

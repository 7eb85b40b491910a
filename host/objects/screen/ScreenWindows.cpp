#include "objects/screen/ScreenWindows.h"

#include <algorithm>
#include <memory>

#include <dwmapi.h>

namespace tovarin {
namespace {

constexpr UINT kPatienceMilliseconds = 300;
constexpr size_t kMostCharacters = 1 << 20;
constexpr DWORD kCloaked = 14;  // DWMWA_CLOAKED

std::wstring ClassOf(HWND window) {
    wchar_t name[257] = {};  // the platform's limit
    return {name, static_cast<size_t>(GetClassNameW(window, name, static_cast<int>(std::size(name))))};
}

bool Holds(const RECT& place, POINT point) {
    return PtInRect(&place, point);
}

RECT PlaceOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

// Shown by its application, but not by the desktop.
bool IsCloaked(HWND window) {
    DWORD cloaked = 0;
    return SUCCEEDED(DwmGetWindowAttribute(window, kCloaked, &cloaked, sizeof cloaked)) && cloaked != 0;
}

bool ShapeHolds(HWND window, POINT point, const RECT& place) {
    const std::unique_ptr<void, decltype(&DeleteObject)> shape(CreateRectRgn(0, 0, 0, 0), &DeleteObject);
    const auto region = static_cast<HRGN>(shape.get());
    return GetWindowRgn(window, region) == ERROR ||
           PtInRegion(region, point.x - place.left, point.y - place.top);
}

bool IsThere(HWND window, POINT point) {
    constexpr LONG_PTR kPassesClicks = WS_EX_LAYERED | WS_EX_TRANSPARENT;
    const RECT place = PlaceOf(window);
    return IsWindowVisible(window) && !IsIconic(window) && Holds(place, point) &&
           (GetWindowLongPtrW(window, GWL_EXSTYLE) & kPassesClicks) != kPassesClicks && !IsCloaked(window) &&
           ShapeHolds(window, point, place);
}

bool IsGroupBox(HWND window) {
    return (GetWindowLongPtrW(window, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX &&
           ClassOf(window) == L"Button";
}

// A group box may lie before or behind the controls that it surrounds.
HWND ChildAt(HWND parent, POINT point) {
    POINT inside = point;
    RECT client{};
    GetClientRect(parent, &client);
    if (!ScreenToClient(parent, &inside) || !Holds(client, inside)) return nullptr;
    HWND box = nullptr;
    for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (!IsWindowVisible(child) || !Holds(PlaceOf(child), point)) continue;
        if (!IsGroupBox(child)) return child;
        if (!box) box = child;
    }
    return box;
}

std::wstring Unify(std::wstring text) {
    std::wstring lines;
    for (size_t at = 0; at < text.size(); ++at) {
        if (text[at] == L'\r' && at + 1 < text.size() && text[at + 1] == L'\n') continue;
        lines += text[at] == L'\r' ? L'\n' : text[at];
    }
    return lines;
}

bool IsLabel(HWND window) {
    std::wstring name = ClassOf(window);
    CharLowerBuffW(name.data(), static_cast<DWORD>(name.size()));
    if (name != L"static") return name.find(L".static.") != name.npos;
    const LONG_PTR type = GetWindowLongPtrW(window, GWL_STYLE) & SS_TYPEMASK;
    return type == SS_LEFT || type == SS_CENTER || type == SS_RIGHT || type == SS_SIMPLE ||
           type == SS_LEFTNOWORDWRAP;
}

std::wstring ProcessNameOf(HWND window) {
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    const std::unique_ptr<void, decltype(&CloseHandle)> process(
        OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id), &CloseHandle);
    if (!process) return {};
    std::wstring path(1024, L'\0');
    for (;;) {
        auto length = static_cast<DWORD>(path.size());
        if (QueryFullProcessImageNameW(process.get(), 0, path.data(), &length)) {
            path.resize(length);
            return path.substr(path.rfind(L'\\') + 1);
        }
        if (GetLastError() != ERROR_INSUFFICIENT_BUFFER || path.size() > kMostCharacters) return {};
        path.resize(path.size() * 2);
    }
}

}  // namespace

HWND InnermostWindowAt(POINT point, std::span<const HWND> except) {
    HWND window = GetTopWindow(nullptr);
    while (window &&
           (std::find(except.begin(), except.end(), window) != except.end() || !IsThere(window, point)))
        window = GetWindow(window, GW_HWNDNEXT);
    for (HWND child = window; child; child = ChildAt(window, point)) window = child;
    return window;
}

HWND ParentOf(HWND window) noexcept {
    const HWND parent = GetAncestor(window, GA_PARENT);
    return parent == GetDesktopWindow() ? nullptr : parent;
}

std::wstring WindowText(HWND window) {
    constexpr UINT kFlags = SMTO_ABORTIFHUNG | SMTO_BLOCK;
    DWORD_PTR length = 0;
    if (!SendMessageTimeoutW(window, WM_GETTEXTLENGTH, 0, 0, kFlags, kPatienceMilliseconds, &length) ||
        length == 0)
        return {};
    std::wstring text(std::min<size_t>(length, kMostCharacters) + 1, L'\0');
    if (!SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), kFlags,
                             kPatienceMilliseconds, &length))
        return {};
    text.resize(std::min<size_t>(length, text.size() - 1));
    return text;
}

std::wstring VisibleText(HWND window) {
    std::wstring lines = Unify(WindowText(window));
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (!IsWindowVisible(child) || !IsLabel(child)) continue;
        const std::wstring text = Unify(WindowText(child));
        if (!text.empty() && !lines.empty()) lines += L'\n';
        lines += text;
    }
    return lines;
}

WindowFacts FactsOf(HWND window) {
    const HWND parent = ParentOf(window);
    RECT place = PlaceOf(window);
    if (parent) MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
    WindowFacts facts;
    facts.text = WindowText(window);
    facts.className = ClassOf(window);
    facts.processName = ProcessNameOf(window);
    facts.topLevel = !parent;
    facts.id = parent ? GetDlgCtrlID(window) : 0;
    facts.enabled = IsWindowEnabled(window);
    facts.visible = IsWindowVisible(window);
    facts.x = place.left;
    facts.y = place.top;
    facts.width = std::abs(place.right - place.left);
    facts.height = place.bottom - place.top;
    return facts;
}

}  // namespace tovarin

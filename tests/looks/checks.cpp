#include "looks/checks.h"

#include <oleacc.h>

#include <algorithm>
#include <map>
#include <set>

#include "com/Bstr.h"
#include "com/Ptr.h"
#include "com/Variant.h"
#include "harness/ProcessWindows.h"
#include "resources/ids.h"

namespace recoveryui::looks {
namespace {

constexpr int kMargin = 7, kLabelGap = 3, kButtonGap = 4, kButtonWidth = 50, kButtonHeight = 14,
              kMostOfAGroup = 50;
// At 96 DPI: what a button draws around its text, a check box before it, a drop-down box behind it.
constexpr int kPushFrame = 4, kBoxAndGap = 18, kArrowAndFrame = 24;

bool IsShown(const Control& control) {
    return (control.style & WS_VISIBLE) != 0;
}
bool HasOwnName(Kind kind) {
    return kind == Kind::Push || kind == Kind::IconButton || kind == Kind::Check || kind == Kind::Radio;
}
bool NeedsLabel(Kind kind) {
    return kind == Kind::Edit || kind == Kind::Combo || kind == Kind::List || kind == Kind::Other;
}
bool IsLabel(const Control& control) {
    return control.kind == Kind::Static && control.text.find_first_not_of(L' ') != std::wstring::npos;
}
bool IsBlank(const RECT& place) {
    return place.right <= place.left || place.bottom <= place.top;
}

std::wstring Named(const Screen& screen, const Control& control) {
    return screen.name + L": " + std::to_wstring(control.id) + L" \"" + control.text + L"\" ";
}
std::wstring Size(SIZE size) {
    return std::to_wstring(size.cx) + L" x " + std::to_wstring(size.cy);
}

bool IsButton(HWND window) {
    return test::ClassOf(window) == L"Button";
}

std::wstring SpokenName(HWND window) {
    com::Ptr<IAccessible> object;
    com::Variant self(static_cast<long>(CHILDID_SELF));
    com::Bstr name;
    if (FAILED(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                          reinterpret_cast<void**>(object.GetAddressOf()))) ||
        object->get_accName(self.Get(), name.Put()) != S_OK)
        return {};
    return name.Text();
}

// Whether cuts across the whole area, each with everything before it on one side, lead through the order.
bool IsRead(const std::vector<const Control*>& order, size_t begin, size_t end) {
    if (end - begin < 2) return true;
    for (size_t cut = begin + 1; cut < end; ++cut) {
        LONG right = 0, bottom = 0, left = MAXLONG, top = MAXLONG;
        for (size_t i = begin; i < cut; ++i) {
            right = std::max(right, order[i]->place.right);
            bottom = std::max(bottom, order[i]->place.bottom);
        }
        for (size_t i = cut; i < end; ++i) {
            left = std::min(left, order[i]->place.left);
            top = std::min(top, order[i]->place.top);
        }
        if (bottom <= top || right <= left) return IsRead(order, begin, cut) && IsRead(order, cut, end);
    }
    return false;
}

}  // namespace

std::wstring Clipped(const Screen& screen, const Ruler& ruler) {
    std::wstring found;
    for (const Control& control : screen.controls) {
        if (!IsShown(control) || control.text.empty()) continue;
        const SIZE room = ruler.Pixels(control.place);
        const bool prefix = control.kind != Kind::Static || !(control.style & SS_NOPREFIX);
        UINT format = prefix ? 0u : DT_NOPREFIX;
        SIZE needed{};
        switch (control.kind) {
            case Kind::Static:
                needed = ruler.Text(control.text, room.cx, format | DT_WORDBREAK | DT_EXPANDTABS,
                                    control.id == IDC_PAGE_TITLE);
                break;
            case Kind::Push:
                needed = ruler.Text(control.text, 0, DT_SINGLELINE, false);
                needed.cx += 2 * ruler.Scaled(kPushFrame);
                needed.cy += 2 * ruler.Scaled(kPushFrame);
                break;
            case Kind::Check:
            case Kind::Radio:
                needed = ruler.Text(control.text, 0, DT_SINGLELINE, false);
                needed.cx += ruler.Scaled(kBoxAndGap);
                break;
            case Kind::Combo:
                if (control.window) continue;  // its text is a user's
                needed = ruler.Text(control.text, 0, DT_SINGLELINE | DT_NOPREFIX, false);
                needed.cx += ruler.Scaled(kArrowAndFrame);
                break;
            default: continue;
        }
        if (needed.cx > room.cx || needed.cy > room.cy)
            found += Named(screen, control) + L"needs " + Size(needed) + L" of " + Size(room) + L" at " +
                     std::to_wstring(ruler.Dpi()) + L" DPI\n";
    }
    return found;
}

std::wstring Overlapping(const Screen& screen) {
    std::wstring found;
    for (size_t i = 0; i < screen.controls.size(); ++i) {
        const Control& one = screen.controls[i];
        if (!IsShown(one) || IsBlank(one.place)) continue;
        if (one.place.left < 0 || one.place.top < 0 || one.place.right > screen.size.cx ||
            one.place.bottom > screen.size.cy)
            found += Named(screen, one) + L"leaves the dialog\n";
        for (size_t j = i + 1; j < screen.controls.size(); ++j) {
            const Control& other = screen.controls[j];
            RECT both{};
            const bool framed = one.kind == Kind::Frame || other.kind == Kind::Frame;
            if (IsShown(other) && !framed && IntersectRect(&both, &one.place, &other.place))
                found += Named(screen, one) + L"overlaps " + Named(screen, other) + L"\n";
        }
    }
    return found;
}

std::wstring OutOfOrder(const Screen& screen) {
    // Tab comes once to a group of radio buttons, wherever what belongs to each stands.
    std::vector<const Control*> order;
    for (const Control& control : screen.controls) {
        const bool goesOn = !order.empty() && order.back()->kind == Kind::Radio &&
                            control.kind == Kind::Radio && !(control.style & WS_GROUP) &&
                            control.place.top >= order.back()->place.top;
        if (IsShown(control) && control.IsStop() && !goesOn) order.push_back(&control);
    }
    if (IsRead(order, 0, order.size())) return {};
    std::wstring found = screen.name + L": the tab order is not the reading order:";
    for (const Control* control : order) found += L" " + std::to_wstring(control->id);
    return found + L"\n";
}

std::wstring Ambiguous(const Screen& screen, const std::wstring& frameLetters) {
    std::wstring found;
    std::map<wchar_t, std::wstring> owners;
    for (const wchar_t letter : frameLetters) owners[letter] = L"the frame";
    for (const Control& control : screen.controls) {
        if (control.kind == Kind::Edit || control.kind == Kind::Combo ||
            control.style & (control.kind == Kind::Static ? SS_NOPREFIX : 0))
            continue;
        size_t mark = 0;
        while ((mark = control.text.find(L'&', mark)) != std::wstring::npos && control.text[mark + 1] == L'&')
            mark += 2;
        if (mark == std::wstring::npos || mark + 1 >= control.text.size()) continue;
        const auto upper = static_cast<wchar_t>(reinterpret_cast<ULONG_PTR>(
            CharUpperW(reinterpret_cast<LPWSTR>(static_cast<ULONG_PTR>(control.text[mark + 1])))));
        std::wstring& owner = owners[upper];
        if (!owner.empty()) found += Named(screen, control) + L"has the letter of " + owner + L"\n";
        owner = control.text;
    }
    return found;
}

std::wstring Nameless(const Screen& screen) {
    std::wstring found;
    const Control* before = nullptr;
    for (const Control& control : screen.controls) {
        const bool named = HasOwnName(control.kind)
                               ? !control.text.empty()
                               : !NeedsLabel(control.kind) || (before && IsLabel(*before));
        if (IsShown(control) && !named) found += Named(screen, control) + L"has no name\n";
        before = &control;
    }
    return found;
}

std::wstring OffGrid(const Screen& screen) {
    std::wstring found;
    const Control* before = nullptr;
    for (const Control& control : screen.controls) {
        const RECT& place = control.place;
        const auto complain = [&](bool wrong, const wchar_t* rule) {
            if (wrong && IsShown(control)) found += Named(screen, control) + rule + L"\n";
        };
        const LONG width = place.right - place.left, height = place.bottom - place.top;
        complain(control.kind != Kind::Picture &&
                     (place.left < kMargin || place.top < kMargin || place.right > screen.size.cx - kMargin ||
                      place.bottom > screen.size.cy - kMargin),
                 L"leaves the margin of 7");
        complain(control.kind == Kind::Push && height != kButtonHeight, L"is not 14 high");
        complain(control.kind == Kind::Push && width < kButtonWidth && control.text != L"...",
                 L"is less than 50 wide");
        if (before && IsShown(*before)) {
            const bool below = before->kind == Kind::Static && before->place.left == place.left &&
                               NeedsLabel(control.kind) && place.top >= before->place.bottom;
            complain(below && place.top - before->place.bottom != kLabelGap, L"is not 3 below its label");
            const bool beside =
                before->kind == Kind::Push && control.kind == Kind::Push && before->place.top == place.top;
            complain(beside && place.left - before->place.right != kButtonGap,
                     L"is not 4 beside the button before it");
        }
        before = &control;
    }
    return found;
}

std::wstring Unreachable(const Screen& screen, HWND dialog) {
    std::set<HWND> stops, reached;
    HWND stop = nullptr;
    while ((stop = GetNextDlgTabItem(dialog, stop, FALSE)) != nullptr && stops.insert(stop).second) {
        reached.insert(stop);
        // The arrow keys lead on from a button, to the others of its group.
        HWND member = stop;
        for (int step = 0; step < kMostOfAGroup && IsButton(member); ++step) {
            member = GetNextDlgGroupItem(dialog, member, FALSE);
            reached.insert(member);
        }
    }
    std::wstring found;
    for (const Control& control : screen.controls) {
        const bool takesInput = HasOwnName(control.kind) || NeedsLabel(control.kind);
        if (takesInput && IsShown(control) && IsWindowEnabled(control.window) &&
            !reached.count(control.window))
            found += Named(screen, control) + L"is reached by no key\n";
    }
    const HWND focus = GetFocus();
    if (GetActiveWindow() == GetAncestor(dialog, GA_ROOT) &&
        !(focus && IsWindowVisible(focus) && IsWindowEnabled(focus)))
        found += screen.name + L": the focus is where no key is taken\n";
    return found;
}

std::wstring Unspoken(const Screen& screen) {
    std::wstring found, label;
    for (const Control& control : screen.controls) {
        // The platform of the tests speaks for these alone.
        if (control.window && IsShown(control) && (control.kind == Kind::Edit || HasOwnName(control.kind))) {
            std::wstring expected = control.kind == Kind::Edit ? label : control.text;
            expected.erase(std::remove(expected.begin(), expected.end(), L'&'), expected.end());
            const std::wstring name = SpokenName(control.window);
            if (name.empty() || name != expected)
                found += Named(screen, control) + L"is called \"" + name + L"\" by a screen reader\n";
        }
        if (control.kind == Kind::Static) label = control.text;
    }
    return found;
}

// The frames and boxes of the platform are its own business.
bool IsOurs(HWND dialog) {
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(reinterpret_cast<HMODULE>(GetWindowLongPtrW(dialog, GWLP_HINSTANCE)), path, MAX_PATH);
    const std::wstring name = path;
    return test::ClassOf(dialog) == L"#32770" && name.find(L"\\system32\\") == std::wstring::npos &&
           name.find(L"\\winsxs\\") == std::wstring::npos;
}

std::wstring ComplaintsAbout(HWND window) {
    std::wstring found;
    std::vector<HWND> dialogs = test::Descendants(window);
    dialogs.insert(dialogs.begin(), window);
    for (const HWND dialog : dialogs) {
        if (!IsWindowVisible(dialog) || !IsOurs(dialog)) continue;
        const Screen screen = FromWindow(dialog);
        found += Clipped(screen, Ruler(dialog)) + Overlapping(screen) + OutOfOrder(screen) +
                 Ambiguous(screen) + Nameless(screen) + Unspoken(screen) + Unreachable(screen, dialog);
    }
    return found;
}

}  // namespace recoveryui::looks

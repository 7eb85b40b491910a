// Users without a plan: valid inputs to whatever is on the screen, and raw messages.
#include <windows.h>

#include <commctrl.h>
#include <commdlg.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <random>
#include <stdexcept>
#include <utility>
#include <vector>

#include "harness/Children.h"
#include "harness/Pointing.h"
#include "harness/ProcessWindows.h"
#include "proof/Counts.h"
#include "proof/ImportTable.h"
#include "proof/Openings.h"
#include "proof/Options.h"
#include "resources/ids.h"

namespace recoveryui::proof {
namespace {

constexpr DWORD kPatience = 15'000;
constexpr int kInputsOfOneOpening = 400, kInputsAtOnce = 24;
constexpr long kWizardPages = 15, kLongestAnswer = 5'000;

// What must be found, and what must be said of it.
constexpr struct {
    void (*misbehave)();
    const char* sign;
} kPlanted[] = {
    {[] { RaiseException(EXCEPTION_ACCESS_VIOLATION, 0, 0, nullptr); }, "CRASH: exception 0xC0000005"},
    {[] { Sleep(kPatience + 3000); }, "PROBLEM no answer for a long time"},
    {[] { CreateWindowW(L"Static", L"left", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr); },
     "PROBLEM left behind: "},
};

class Monkey {
public:
    Monkey(unsigned seed, bool raw) : random_(seed), raw_(raw) {}

    // Until the window is gone or the monkey has had enough of it; gives its inputs.
    long Use(Player& player, HWND window) {
        const long before = inputs_;
        while (inputs_ - before < kInputsOfOneOpening && IsWindow(window)) {
            test::RestartWatchdog();
            Act(player);
        }
        test::RestartWatchdog();
        return inputs_ - before;
    }
    // The inputs to each window, or page of one.
    const std::map<std::string, long>& Places() const { return places_; }
    // The longest that the windows took to answer some inputs.
    ULONGLONG Longest() const { return longest_; }

private:
    unsigned Below(unsigned limit) { return random_() % limit; }
    template <class Thing, size_t size>
    Thing OneOf(const Thing (&things)[size]) {
        return things[Below(size)];
    }

    static HWND Active() {
        HWND active = nullptr;
        for (const HWND window : test::TopLevelWindows())
            if (IsWindowVisible(window) && IsWindowEnabled(window) && !active) active = window;
        return active;
    }
    HWND ControlOf(HWND window) {
        for (int tries = 0; tries < 20 && !controls_.empty(); ++tries) {
            const HWND control = controls_[Below(static_cast<unsigned>(controls_.size()))];
            const int id = GetDlgCtrlID(control);
            // What ends a window is spared mostly, so that something happens before; not what a box waits
            // for.
            if ((id == IDCANCEL || id == IDOK) && Below(GetDlgItem(window, test::kBoxText) ? 2 : 8)) continue;
            if (IsWindowVisible(control) && IsWindowEnabled(control)) return control;
        }
        return window;
    }

    // A handful of inputs to what is on the screen now.
    void Act(Player& player) {
        const HWND window = Active();
        ++inputs_;
        if (!window) return player.Do([] {});
        const std::wstring kind = test::ClassOf(window);
        if (kind == test::kHandClass || FindWindowW(test::kHandClass, nullptr))
            return player.RealKeys({VK_ESCAPE});
        const bool isMenu = kind == L"#32768";
        if (isMenu && Below(4) == 0)
            return player.Do([=] { PostMessageW(window, WM_KEYDOWN, VK_ESCAPE, 1); });
        controls_ = test::Descendants(window);
        const long before = --inputs_;
        const std::string place = PlaceOf(window);
        const ULONGLONG begun = GetTickCount64();
        // Nothing reaches a window that a message box or its end has taken from the user.
        player.DoWhile([=, this, left = kInputsAtOnce]() mutable {
            if (left-- == 0 || !IsWindowVisible(window) || !IsWindowEnabled(window)) return false;
            ++inputs_;
            // Often on to the next page, or a wizard would hardly ever be seen beyond its first ones.
            const HWND next = GetDlgItem(window, test::kNext);
            if (Below(6) == 0 && IsWindowVisible(next) && IsWindowEnabled(next))
                return PostMessageW(next, BM_CLICK, 0, 0) != FALSE;
            const HWND control = ControlOf(window);
            if (raw_ && !isMenu) {
                GiveMessage(window, control);
            } else {
                GiveInput(control);
            }
            return true;
        });
        longest_ = std::max(longest_, GetTickCount64() - begun);
        places_[place] += inputs_ - before;
    }
    std::string PlaceOf(HWND window) const {
        if (GetDlgItem(window, test::kBoxText)) return "a message box";
        std::wstring page;
        for (const HWND control : controls_)
            if (IsWindowVisible(control) && (GetDlgCtrlID(control) == IDC_PAGE_TITLE ||
                                             (page.empty() && test::ClassOf(control) == L"#32770")))
                page = L", " + test::TextOf(control);
        const std::wstring title = test::TextOf(window);
        return test::Utf8((title.empty() ? test::ClassOf(window) : title) + page);
    }
    // As the system does it: keys go to the focus, and to no window that has been hidden with its page
    // meanwhile. (The platform looks for mnemonics in a circle from the window with the key, endlessly where
    // it is hidden.)
    static void PostKey(UINT message, WPARAM key, LPARAM more) {
        const HWND focus = GetFocus();
        if (focus && IsWindowVisible(focus)) PostMessageW(focus, message, key, more);
    }

    void GiveInput(HWND control) {
        constexpr WORD kKeys[] = {VK_TAB,    VK_RETURN, VK_ESCAPE, VK_SPACE, VK_UP,     VK_DOWN,
                                  VK_LEFT,   VK_RIGHT,  VK_HOME,   VK_END,   VK_DELETE, VK_F1,
                                  VK_INSERT, VK_F4,     VK_BACK,   VK_PRIOR};
        constexpr wchar_t kLetters[] = {L'a', L'Z',      L'0',    L' ', L'\\', L';',
                                        L'*', L'\x4e2d', L'\xfc', L'"', L'.',  L'1'};
        RECT place{};
        GetClientRect(control, &place);
        const LPARAM at = MAKELPARAM(Below(std::max(1L, place.right)), Below(std::max(1L, place.bottom)));
        const unsigned choice = Below(10);
        WORD key = OneOf(kKeys);
        if ((key == VK_ESCAPE || key == VK_RETURN) && Below(8)) key = VK_TAB;  // spared like their buttons
        const wchar_t letter = OneOf(kLetters);
        if (choice < 4) {
            PostMessageW(control, WM_LBUTTONDOWN, MK_LBUTTON, at);
            PostMessageW(control, WM_LBUTTONUP, 0, at);
        } else if (choice < 5) {
            PostMessageW(control, WM_LBUTTONDBLCLK, MK_LBUTTON, at);
            PostMessageW(control, WM_LBUTTONUP, 0, at);
        } else if (choice < 7) {
            PostKey(WM_KEYDOWN, key, 1);
            PostKey(WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
        } else {
            PostKey(WM_CHAR, letter, 1);
        }
    }

    // Messages whose parameters hold neither addresses nor drawing surfaces, with any parameters;
    // notifications come from real controls.
    void GiveMessage(HWND window, HWND control) {
        constexpr UINT kMessages[] = {
            WM_COMMAND,      WM_COMMAND,       WM_COMMAND,     WM_COMMAND,        WM_SIZE,
            WM_MOVE,         WM_ENABLE,        WM_SETFOCUS,    WM_KILLFOCUS,      WM_TIMER,
            WM_HSCROLL,      WM_VSCROLL,       WM_CONTEXTMENU, WM_INITMENU,       WM_SYSCOLORCHANGE,
            WM_FONTCHANGE,   WM_PAINT,         WM_NCPAINT,     WM_MOUSEMOVE,      WM_LBUTTONDOWN,
            WM_LBUTTONUP,    WM_RBUTTONDOWN,   WM_RBUTTONUP,   WM_MOUSELEAVE,     WM_KEYDOWN,
            WM_KEYUP,        WM_CHAR,          WM_SYSCHAR,     WM_CAPTURECHANGED, WM_CANCELMODE,
            WM_THEMECHANGED, WM_DISPLAYCHANGE, WM_SHOWWINDOW,  WM_ACTIVATE,       WM_CLOSE,
            WM_NEXTDLGCTL,   WM_APP,           WM_APP + 1,     WM_APP + 2,        WM_APP + 61,
            WM_APP + 62,     WM_USER + 5000};
        const UINT message = OneOf(kMessages);
        const bool isCommand = message == WM_COMMAND;
        // The platform's own controls need not bear what only their parts tell them, and closed they are
        // gone: the list of a combo box too, without which the file dialog looks for its folders endlessly.
        const bool forDialogs = isCommand || message == WM_CLOSE || message >= WM_USER;
        HWND dialog = GetParent(control);
        while (dialog && test::ClassOf(dialog) != L"#32770") dialog = GetParent(dialog);
        const HWND target = forDialogs ? dialog ? dialog : window : Below(2) ? window : control;
        const WORD id = Below(4) ? static_cast<WORD>(GetDlgCtrlID(control)) : static_cast<WORD>(Below(3000));
        const WPARAM wParam = isCommand ? MAKEWPARAM(id, Below(3) ? 0 : Below(1100)) : Below(300);
        const LPARAM lParam = isCommand ? reinterpret_cast<LPARAM>(Below(4) ? control : nullptr)
                              : message == WM_NEXTDLGCTL ? FALSE
                              : message == WM_CAPTURECHANGED || message == WM_TIMER
                                  ? 0
                                  : static_cast<LPARAM>(Below(0x10000) | Below(0x400) << 16);
        const bool isKey = message >= WM_KEYFIRST && message <= WM_KEYLAST;
        const bool isBare = message == WM_PAINT || message == WM_NCPAINT;
        const bool isSwitch = message == WM_ACTIVATE || message == WM_SHOWWINDOW || message == WM_INITMENU;
        if (isKey) return PostKey(message, wParam, lParam);
        if (isBare || isSwitch) {
            PostMessageW(target, message, isSwitch ? wParam & 1 : 0, 0);
        } else {
            PostMessageW(target, message, wParam, lParam);
        }
        // A list waits for the end of a press, and whoever presses lets go.
        if (message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN)
            PostMessageW(target, message + 1, 0, lParam);
    }

    std::mt19937 random_;
    bool raw_;
    long inputs_ = 0;
    ULONGLONG longest_ = 0;
    std::map<std::string, long> places_;
    std::vector<HWND> controls_;
};

// The platform's file dialog shows the machine's own files, and deletes and renames them on a key: monkeys
// never see it. Whoever asks for a file gets one of theirs, or none, in turns.
class Files {
public:
    static void Offer(std::vector<std::wstring> paths) { paths_ = std::move(paths); }
    // In the host's objects, which are the ones that ask.
    static void StandInForTheDialog() {
        const HMODULE objects = GetModuleHandleW(L"TovarinObjects.dll");
        for (const char* ask : {"GetOpenFileNameW", "GetSaveFileNameW"})
            if (!PutImport(objects, ask, reinterpret_cast<void*>(&Choose)))
                throw std::runtime_error("the file dialog would be the platform's");
    }

private:
    static BOOL WINAPI Choose(OPENFILENAMEW* dialog) {
        const size_t turn = asked_++ % (paths_.size() + 1);
        if (turn == paths_.size() || paths_[turn].size() >= dialog->nMaxFile) return FALSE;
        *std::copy(paths_[turn].begin(), paths_[turn].end(), dialog->lpstrFile) = L'\0';
        return TRUE;
    }

    static inline std::vector<std::wstring> paths_;
    static inline size_t asked_ = 0;
};

}  // namespace

// A process that monkeys about: openings one after the other, until it has made its inputs.
int PlayMonkey(const Options& options) {
    test::ReportCrashes();
    test::StartWatchdog(60);
    LoadModules();
    Files::StandInForTheDialog();
    const long wanted = options.Number(L"--inputs", 1000);
    const auto seed = static_cast<unsigned>(options.Number(L"--seed", 1));
    Monkey monkey(seed, options.Number(L"--raw", 0) != 0);
    const size_t dialogs = Openings::Dialogs().size();
    const auto only = static_cast<size_t>(options.Number(L"--dialog", static_cast<long>(dialogs)));
    long inputs = 0;
    int problems = 0;
    for (size_t opening = only < dialogs ? only : seed; inputs < wanted;
         opening += only < dialogs ? dialogs : 1) {
        const Counts before = Counts::Take();
        {
            Openings openings;
            SetCurrentDirectoryW(openings.Folder().c_str());
            Files::Offer({openings.Folder() + L"\\file.trs", openings.Folder() + L"\\new"});
            std::printf("%s after %ld inputs\n", Openings::Dialogs()[opening % dialogs].name, inputs);
            test::RestartWatchdog();
            Actor actor(kPatience, [] {});
            openings.Open(opening % dialogs, actor, [&](Player& player, HWND window) {
                inputs += monkey.Use(player, window);
                if (const long plant = options.Number(L"--plant", 0))
                    player.Do(kPlanted[plant - 1].misbehave);
            });
            for (const std::string& problem : actor.Problems()) std::printf("PROBLEM %s\n", problem.c_str());
            problems += static_cast<int>(actor.Problems().size());
            SetCurrentDirectoryW(L"\\");
        }
        const Counts after = Counts::Take();
        const auto differs = [&](const char* name) {
            return after.others.at(name) != before.others.at(name);
        };
        if (differs("live component") || differs("live stand-ins") || differs("windows")) {
            std::printf("PROBLEM left behind: %s\n", after.Against(before).c_str());
            ++problems;
        }
    }
    for (const auto& [place, count] : monkey.Places()) std::printf("place %ld %s\n", count, place.c_str());
    std::printf("longest %llu\n", monkey.Longest());
    std::printf("made %ld\n", inputs);
    TerminateProcess(GetCurrentProcess(), problems ? 1 : 0);
    return 0;
}

int Monkeys(const Options& options) {
    const long wanted = options.Number(L"--inputs", 1'000'000), seed = options.Number(L"--seed", 1),
               ofOne = 20'000;
    const bool raw = options.Number(L"--raw", 0) != 0;
    const ULONGLONG begun = GetTickCount64();
    long made = 0, longest = 0;
    int problems = 0, processes = 0;
    std::map<std::string, long> places;
    // A process of its own for some of the inputs; gives what was wrong.
    const auto play = [&](long inputs, long own, size_t plant) {
        const std::wstring arguments = L"monkey --raw " + std::to_wstring(raw) + L" --inputs " +
                                       std::to_wstring(inputs) + L" --seed " + std::to_wstring(own) +
                                       L" --plant " + std::to_wstring(plant);
        std::string said;
        const DWORD code = test::RunChild(arguments, [&](const std::string& line) {
            long count = 0;
            int end = 0;
            if (std::sscanf(line.c_str(), "made %ld", &count) == 1) {
                if (!plant) made += count;
            } else if (std::sscanf(line.c_str(), "longest %ld", &count) == 1) {
                if (!plant) longest = std::max(longest, count);
            } else if (std::sscanf(line.c_str(), "place %ld %n", &count, &end) == 1) {
                if (!plant) places[line.substr(static_cast<size_t>(end))] += count;
            } else if (line.find(" after ") == line.npos) {
                said += "\n    " + line;
            } else if (said.find("PROBLEM") == said.npos) {
                said = "\n    in the " + line;  // of the openings, the last one is told
            }
        });
        if (code == 0) return std::string();
        said = "code " + std::to_string(code) + said;
        if (!plant)
            std::printf("  PROBLEM %s\n    again: prove %s\n", said.c_str(), test::Utf8(arguments).c_str());
        return said;
    };
    for (long done = 0; done < wanted; done += ofOne, ++processes)
        problems += !play(std::min(ofOne, wanted - done), seed + processes, 0).empty();
    if (longest > kLongestAnswer) {
        std::printf("  PROBLEM an answer took %ld ms\n", longest);
        ++problems;
    }
    size_t found = 0;
    for (size_t plant = 1; plant <= std::size(kPlanted); ++plant)
        found += play(10, seed, plant).find(kPlanted[plant - 1].sign) != std::string::npos;
    long pages = 0;
    for (const auto& [place, count] : places) {
        std::printf("  %7ld %s\n", count, place.c_str());
        pages += place.starts_with("Recovery Scenario Wizard, ");
    }
    // Raw messages seldom make the choices that lead to every page.
    if (!raw && wanted >= 20'000 && pages < kWizardPages) {
        std::printf("  PROBLEM only %ld pages of the wizard were seen\n", pages);
        ++problems;
    }
    std::printf(
        "PROOF monkeys: %ld %s at %zu places in %d processes, %d problems, the slowest answer after %ld ms; "
        "planted %zu, found %zu; seed %ld, %llu s\n",
        made, raw ? "raw messages" : "valid inputs", places.size(), processes, problems, longest,
        std::size(kPlanted), found, seed, (GetTickCount64() - begun) / 1000);
    return problems == 0 && found == std::size(kPlanted) ? 0 : 1;
}

}  // namespace recoveryui::proof

#include "proof/Actor.h"

#include <algorithm>
#include <stdexcept>

#include "harness/Pointing.h"
#include "harness/ProcessWindows.h"
#include "resources/ids.h"

namespace recoveryui::proof {
namespace {

constexpr int kTries = 3;
constexpr DWORD kHandComes = 1500;
constexpr ULONGLONG kHang = 5000;
// What the harness says when the message loop stands still.
constexpr const char* kStandsStill = "the windows do not answer";

}  // namespace

Player::Player(const test::UiThread& ui, Actor& actor, DWORD patience)
    : UserScreen(ui, GetTickCount64() + 60'000), actor_(actor), patience_(patience) {
    SetPatience(patience);
}

HWND Player::First(const wchar_t* title, const wchar_t* windowClass) {
    SetPatience(10'000);
    const HWND window = WaitForWindow(title, windowClass);
    SetPatience(patience_);
    return window;
}

bool Player::ReadBoxAway() {
    const HWND box = test::FindBox();
    if (!box) return false;
    const std::wstring caption = test::TextOf(box), text = test::TextOf(GetDlgItem(box, test::kBoxText));
    if (caption != L"Tovarin" && !caption.empty())
        actor_.problems_.push_back("an unexpected message: " + test::Utf8(caption) + ": " + test::Utf8(text));
    for (const WORD id : {IDCANCEL, IDNO, IDOK}) {
        if (!GetDlgItem(box, id)) continue;
        Press(box, id);
        break;
    }
    WaitUntilClosed(box);
    return true;
}

void Player::Try(const std::function<void()>& step) {
    for (int attempt = 1;; ++attempt) {
        try {
            step();
            return;
        } catch (const std::runtime_error& problem) {
            if (std::string(problem.what()) == kStandsStill) throw;
            SetPatience(patience_);
            const bool boxed = ReadBoxAway();
            if (attempt == kTries ||
                (!boxed && std::string(problem.what()).find("has returned") != std::string::npos))
                throw;
        }
    }
}

void Player::NextTo(HWND wizard, const wchar_t* title) {
    Try([&] {
        if (PageTitle(wizard) == title) return;
        Next(wizard);
        WaitUntil("the next page", [&] { return PageTitle(wizard) == title; });
    });
}

void Player::FinishWizard(HWND wizard, const wchar_t* name, const wchar_t* description) {
    NextTo(wizard, L"Recovery Operations");
    Try([&] { Check(wizard, IDC_OPERATION_LIST_ANOTHER, false); });
    NextTo(wizard, L"Post-Recovery Test Run Options");
    Try([&] {
        // A restart of Windows leaves fewer options.
        if (IsVisible(wizard, IDC_TEST_FLOW_FIRST + 1)) Check(wizard, IDC_TEST_FLOW_FIRST + 1);
    });
    NextTo(wizard, L"Name and Description");
    Fill(wizard, IDC_SCEN_NAME, name);
    if (description) Fill(wizard, IDC_SCEN_DESCRIPTION, description);
    NextTo(wizard, L"Completing the Recovery Scenario Wizard");
    Leave(wizard, test::kFinish);
}

void Player::Leave(HWND window, int button) {
    Try([&] {
        if (!IsWindow(window)) return;
        Press(window, button);
        WaitUntilClosed(window);
    });
}

void Player::Fill(HWND window, int id, const std::wstring& text) {
    Try([&] {
        Enter(window, id, text);
        if (Text(window, id) != text) throw std::runtime_error("the text does not stay");
    });
}

void Player::PointAt(HWND wizard, int hand, HWND target) {
    Try([&] {
        Press(wizard, hand);
        // The hand comes a while after it was asked for.
        SetPatience(std::max(patience_, kHandComes));
        WaitUntil("the hand, or what is wrong",
                  [] { return FindWindowW(test::kHandClass, nullptr) || test::FindBox(); });
        SetPatience(patience_);
        const POINT middle = test::MiddleOf(target);
        SetCursorPos(middle.x, middle.y);
        test::Click();
        WaitUntil("the hand is back", [] { return !FindWindowW(test::kHandClass, nullptr); });
        Do([] {});
    });
}

bool Player::CloseWithAnswer(HWND window, WORD answer) {
    bool asked = false;
    Try([&] {
        if (!IsWindow(window)) return;
        Press(window, IDCANCEL);
        WaitUntil("an end or a question", [&] { return !IsWindow(window) || test::FindBox(); });
        const HWND box = IsWindow(window) ? test::FindBox() : nullptr;
        if (!box || !GetDlgItem(box, answer)) return;
        asked = true;
        Press(box, answer);
        WaitUntilClosed(window);
    });
    return asked;
}

HRESULT Actor::During(const std::function<HRESULT()>& call, const Script& script) {
    const test::Beside user([&](const test::UiThread& ui) { Act(ui, script); });
    return call();
}

void Actor::Act(const test::UiThread& ui, const Script& script) {
    try {
        Player player(ui, *this, patience_);
        script(player);
    } catch (const std::exception& problem) {
        gaveUp_ = problem.what();
        if (gaveUp_ == kStandsStill)
            problems_.push_back("no answer for a long time\n" + test::DescribeWindows());
    }
    CloseAll(ui);
}

void Actor::CloseAll(const test::UiThread& ui) {
    const ULONGLONG begun = GetTickCount64();
    for (int grace = 0; grace < 10 && !ui.Ended(); ++grace) Sleep(1);
    bool lifted = false;
    while (!ui.Ended()) {
        const ULONGLONG passed = GetTickCount64() - begun;
        if (passed > kHang && !lifted) {
            problems_.push_back("there is no way out while calls fail\n" + test::DescribeWindows());
            lift_();
            lifted = true;
        }
        // Nothing but Escape ends the pointing hand, which comes a while after it was asked for.
        if (FindWindowW(test::kHandClass, nullptr)) {
            keybd_event(VK_ESCAPE, 1, 0, 0);
            keybd_event(VK_ESCAPE, 1, KEYEVENTF_KEYUP, 0);
        }
        test::CloseWindows();
        Sleep(3);
    }
}

}  // namespace recoveryui::proof

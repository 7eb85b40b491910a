// A user who does not know that calls fail: tries again when nothing happens, reads message boxes away, and
// leaves when there is no going on.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "harness/UserScreen.h"

namespace recoveryui::proof {

class Actor;

// The user's screen, with patience for what goes wrong.
class Player : public test::UserScreen {
public:
    Player(const test::UiThread& ui, Actor& actor, DWORD patience);

    // The window that the call shows; the user waits for it longer than for anything else.
    HWND First(const wchar_t* title, const wchar_t* windowClass = L"#32770");
    // Once more, and once more, when the step cannot be taken; message boxes are answered in between.
    void Try(const std::function<void()>& step);
    // Walks on to the page of that title.
    void NextTo(HWND wizard, const wchar_t* title);
    // From the list of operations to the wizard's end. Without a description it is left as it is.
    void FinishWizard(HWND wizard, const wchar_t* name, const wchar_t* description = nullptr);
    // Presses a button until its window is gone.
    void Leave(HWND window, int button);
    // The whole text of an edit box, seen to be there.
    void Fill(HWND window, int id, const std::wstring& text);
    // Presses a page's pointing hand and clicks into a window.
    void PointAt(HWND wizard, int hand, HWND target);
    // Closes a window that may ask a question first; true when it did.
    bool CloseWithAnswer(HWND window, WORD answer);

private:
    bool ReadBoxAway();

    Actor& actor_;
    DWORD patience_;
};

class Actor {
public:
    using Script = std::function<void(Player&)>;

    // `patience`: milliseconds for which a window or a change is waited for. `lift` ends all faults, for a
    // user whom they do not let go.
    Actor(DWORD patience, std::function<void()> lift) : patience_(patience), lift_(std::move(lift)) {}

    // Makes the modal call on this thread while the script runs on another; whatever is open when the
    // script ends is closed.
    HRESULT During(const std::function<HRESULT()>& call, const Script& script);

    // Why the script ended early; empty when it came to its end.
    const std::string& GaveUp() const { return gaveUp_; }
    // What must not be, whatever fails: a window that does not answer, no way out.
    const std::vector<std::string>& Problems() const { return problems_; }

private:
    friend class Player;
    void Act(const test::UiThread& ui, const Script& script);
    void CloseAll(const test::UiThread& ui);

    DWORD patience_;
    std::function<void()> lift_;
    std::string gaveUp_;
    std::vector<std::string> problems_;
};

}  // namespace recoveryui::proof

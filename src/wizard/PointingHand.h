// The pointing hand: the user clicks a window of the application under test.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "RecoveryUI.h"
#include "com/Ptr.h"
#include "com/SafeArray.h"

namespace recoveryui::wizard {

// What was clicked.
struct PointedAt {
    com::CVtlSafeArray<VARIANT> objects;  // the test objects at the point, innermost first; may be none
    HWND window = nullptr;                // the window under the point, of any process

    // Those that can be asked by name.
    std::vector<com::Ptr<IDispatch>> Objects() const;
    // The caption of the top-level window that the clicked window belongs to.
    std::wstring Title() const;
};

class PointingHand {
public:
    // Moves the page's sheet and the windows that own it out of the way for as long as it takes. Nothing when
    // the user gave up, or when the host lacks what it needs for it.
    std::optional<PointedAt> Point(HWND page, IObjectRack* rack);

private:
    bool pointing_ = false;  // the keyboard can still press the hand's button meanwhile
};

}  // namespace recoveryui::wizard

// How a window of the application under test is identified, decided from what is known of it.
#pragma once

#include <cstdint>
#include <string>

#include "objects/store/StoreModel.h"

namespace tovarin {

struct WindowFacts {
    std::wstring text;
    std::wstring className;
    std::wstring processName;
    std::int32_t id = 0;  // of a child window
    bool topLevel = false;
    bool enabled = false;
    bool visible = false;
    // A top-level window's place on the screen, a child's in its parent.
    std::int32_t x = 0, y = 0, width = 0, height = 0;
};

// The name that people see, and every property with its value. Checked are those that a later run of the
// application is likely to show again: the class, and a title, a control's number or a caption.
store::TestObject Identify(const WindowFacts& facts);

}  // namespace tovarin

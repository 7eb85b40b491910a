// Which controls of the function-call page can be used.
#pragma once

#include <string_view>

namespace recoveryui::wizard {

enum class FunctionMode { Select, Define };

// The page as it stands.
struct FunctionPageState {
    bool libraryLoaded = false;
    bool hasFunctions = false;  // the library's own and those waiting to be written to it
    FunctionMode mode = FunctionMode::Select;
    bool functionSelected = false;
    std::wstring_view newName{};
    std::wstring_view newText{};
};

struct FunctionControls {
    bool selectRadio = false;
    bool defineRadio = false;
    bool functionList = false;
    bool nameAndText = false;  // enabled at all
    bool editable = false;     // not read-only
    bool canAdvance = false;

    bool operator==(const FunctionControls&) const = default;
};

// The mode that a freshly loaded library starts in.
FunctionMode ModeAfterLoading(bool hasFunctions);

FunctionControls ControlsFor(const FunctionPageState& state);

}  // namespace recoveryui::wizard

#include "wizard/FunctionControls.h"

namespace recoveryui::wizard {

FunctionMode ModeAfterLoading(bool hasFunctions) {
    return hasFunctions ? FunctionMode::Select : FunctionMode::Define;
}

FunctionControls ControlsFor(const FunctionPageState& state) {
    if (!state.libraryLoaded) return {};
    const bool defining = state.mode == FunctionMode::Define;
    FunctionControls controls;
    controls.selectRadio = state.hasFunctions;
    controls.defineRadio = true;
    controls.functionList = !defining;
    controls.nameAndText = true;
    controls.editable = defining;
    controls.canAdvance =
        defining ? !state.newName.empty() && !state.newText.empty() : state.functionSelected;
    return controls;
}

}  // namespace recoveryui::wizard

#include "manager/SaveQuestion.h"

namespace recoveryui::manager {

SaveStep StepOfSave(const ManagerState& state) {
    if (!state.hasRepository) return SaveStep::Nothing;
    if (state.untitled) return SaveStep::AskForPath;
    return state.dirty && !state.readOnly ? SaveStep::Write : SaveStep::Nothing;
}

}  // namespace recoveryui::manager

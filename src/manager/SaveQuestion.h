#pragma once

#include "manager/CommandStates.h"

namespace recoveryui::manager {

// What Save has to do. Nothing counts as saved.
enum class SaveStep { Nothing, AskForPath, Write };
SaveStep StepOfSave(const ManagerState& state);

// The answers to "Do you want to save changes before closing?".
enum class SaveAnswer { Yes, No, Cancel };

// Whether the open file may be left. `ask` gives a SaveAnswer and is called for a changed file only;
// `save` tells whether the file was saved (a cancelled file dialog: no).
template <class Ask, class Save>
bool MayLeaveFile(bool dirty, Ask&& ask, Save&& save) {
    if (!dirty) return true;
    switch (ask()) {
        case SaveAnswer::Yes: return save();
        case SaveAnswer::No: return true;
        case SaveAnswer::Cancel: break;
    }
    return false;
}

}  // namespace recoveryui::manager

#pragma once

#include <array>

namespace recoveryui::manager {

// Every command of the Manager; the six of the toolbar stand together in its order.
enum class Command { New, Open, Save, SaveAs, NewScenario, Edit, Properties, Copy, Paste, Delete, Close };
inline constexpr int kCommands = 11;
inline constexpr std::array kToolbarCommands = {Command::NewScenario, Command::Edit,  Command::Properties,
                                                Command::Copy,        Command::Paste, Command::Delete};

// What the states depend on.
struct ManagerState {
    bool readOnly = false;
    bool rowSelected = false;
    bool clipboardFull = false;  // holds both a name and a scenario
    bool hasRepository = true;
    bool untitled = true;
    bool dirty = false;
};

// Whether a button, a menu entry and a key of this command do something. The save button itself
// follows SaveAs: with nothing to save its menu must still open.
bool IsEnabled(Command command, const ManagerState& state);

}  // namespace recoveryui::manager

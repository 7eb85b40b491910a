#include "manager/CommandStates.h"

#include "manager/SaveQuestion.h"

namespace recoveryui::manager {
namespace {

struct Rule {
    Command command;
    bool (*enabled)(const ManagerState&);
};

bool Always(const ManagerState&) {
    return true;
}
bool OnChangeableRow(const ManagerState& state) {
    return !state.readOnly && state.rowSelected;
}

constexpr Rule kRules[] = {
    {Command::New, Always},
    {Command::Open, Always},
    {Command::Save, [](const ManagerState& state) { return StepOfSave(state) != SaveStep::Nothing; }},
    {Command::SaveAs, [](const ManagerState& state) { return state.hasRepository; }},
    {Command::NewScenario, [](const ManagerState& state) { return !state.readOnly; }},
    {Command::Edit, OnChangeableRow},
    {Command::Properties, [](const ManagerState& state) { return state.rowSelected; }},
    {Command::Copy, OnChangeableRow},
    {Command::Paste, [](const ManagerState& state) { return !state.readOnly && state.clipboardFull; }},
    {Command::Delete, OnChangeableRow},
    {Command::Close, Always},
};
static_assert(std::size(kRules) == kCommands);

}  // namespace

bool IsEnabled(Command command, const ManagerState& state) {
    for (const Rule& rule : kRules)
        if (rule.command == command) return rule.enabled(state);
    return false;
}

}  // namespace recoveryui::manager

#include "model/PostRecovery.h"

#include "model/Words.h"

namespace recoveryui::model {
namespace {

struct Choice {
    PostRecoveryOption plain;
    std::optional<PostRecoveryOption> withRestart;
};

constexpr Choice kChoices[kChoiceCount] = {
    {PostRecoveryOption::RepeatStep, std::nullopt},
    {PostRecoveryOption::NextStep, std::nullopt},
    {PostRecoveryOption::NextAction, std::nullopt},
    {PostRecoveryOption::NextIteration, std::nullopt},
    {PostRecoveryOption::RestartRun, PostRecoveryOption::RestartWindowsAndRun},
    {PostRecoveryOption::StopRun, PostRecoveryOption::RestartWindowsAndStop},
};
constexpr int kFirstWithRestart = 4;

}  // namespace

bool IsOffered(int choice, bool restart) {
    return OptionOf(choice, restart).has_value();
}

std::optional<PostRecoveryOption> OptionOf(int choice, bool restart) {
    if (choice < 0 || choice >= kChoiceCount) return std::nullopt;
    return restart ? kChoices[choice].withRestart : kChoices[choice].plain;
}

int ChoiceOf(std::int32_t option) {
    const std::optional<PostRecoveryOption> known = PostRecoveryOptionFrom(option);
    for (int choice = 0; known && choice < kChoiceCount; ++choice) {
        if (kChoices[choice].plain == *known || kChoices[choice].withRestart == *known) return choice;
    }
    return kNoChoice;
}

int CaptionOf(int choice) {
    return OptionWord(kChoices[choice].plain);
}

int InitialChoice(std::optional<std::int32_t> option, bool restart) {
    if (option) return ChoiceOf(*option);
    return restart ? kFirstWithRestart : 0;
}

int ChoiceOnActivation(int choice, bool restart) {
    return restart && !IsOffered(choice, restart) ? kFirstWithRestart : choice;
}

}  // namespace recoveryui::model

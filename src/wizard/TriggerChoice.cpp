#include "wizard/TriggerChoice.h"

#include <iterator>

namespace recoveryui::wizard {
namespace {

constexpr model::TriggerKind kRadios[] = {model::TriggerKind::PopUp, model::TriggerKind::ObjectState,
                                          model::TriggerKind::Error, model::TriggerKind::Crash};

}  // namespace

std::optional<model::TriggerKind> TriggerKindAt(int radio) {
    if (radio < 0 || radio >= std::ssize(kRadios)) return std::nullopt;
    return kRadios[radio];
}

int RadioOfTriggerKind(std::int32_t kind) {
    for (int radio = 0; radio < std::ssize(kRadios); ++radio) {
        if (static_cast<std::int32_t>(kRadios[radio]) == kind) return radio;
    }
    return kNoRadio;
}

int InitialTriggerRadio(bool hasTrigger, std::optional<std::int32_t> kind) {
    if (!hasTrigger) return 0;
    return kind ? RadioOfTriggerKind(*kind) : kNoRadio;
}

}  // namespace recoveryui::wizard

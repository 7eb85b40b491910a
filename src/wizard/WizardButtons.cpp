#include "wizard/WizardButtons.h"

namespace recoveryui::wizard {
namespace {

// PSWIZB_BACK and its sisters.
constexpr std::uint32_t kBack = 0x1;
constexpr std::uint32_t kNext = 0x2;
constexpr std::uint32_t kFinish = 0x4;
constexpr std::uint32_t kDisabledFinish = 0x8;

}  // namespace

std::optional<std::uint32_t> WizardButtons(Position position, bool canAdvance) {
    switch (position) {
        case Position::First: return canAdvance ? kNext | kDisabledFinish : kDisabledFinish;
        case Position::Middle: return canAdvance ? kBack | kNext | kDisabledFinish : kBack | kDisabledFinish;
        case Position::Last: return canAdvance ? kBack | kFinish : kBack | kDisabledFinish;
    }
    return std::nullopt;
}

}  // namespace recoveryui::wizard

#include "model/KeySequence.h"

namespace recoveryui::model {
namespace {

constexpr std::uint32_t kKeyDown = 1;
constexpr std::uint32_t kKeyUp = 3;
constexpr std::uint32_t kReleases = 2;  // the bit that tells the two apart

constexpr std::uint32_t Entry(std::uint32_t event, std::uint16_t key) {
    return event << 16 | key;
}

struct Modifier {
    unsigned flag;
    std::uint16_t key;
};

// Shift is released last although it is not pressed first; the order is part of the stored form.
constexpr Modifier kDownOrder[] = {{kWithControl, kKeyControl}, {kWithShift, kKeyShift}, {kWithAlt, kKeyAlt}};
constexpr Modifier kUpOrder[] = {{kWithAlt, kKeyAlt}, {kWithControl, kKeyControl}, {kWithShift, kKeyShift}};

}  // namespace

std::vector<std::uint32_t> Press(std::uint16_t key) {
    return {Entry(kKeyDown, key), Entry(kKeyUp, key)};
}

std::vector<std::uint32_t> PressCombination(std::uint16_t key, unsigned modifiers) {
    std::vector<std::uint32_t> sequence;
    for (const Modifier& modifier : kDownOrder) {
        if (modifiers & modifier.flag) sequence.push_back(Entry(kKeyDown, modifier.key));
    }
    sequence.push_back(Entry(kKeyDown, key));
    for (const Modifier& modifier : kUpOrder) {
        if (modifiers & modifier.flag) sequence.push_back(Entry(kKeyUp, modifier.key));
    }
    return sequence;
}

std::vector<std::uint16_t> PressedKeys(std::span<const std::uint32_t> sequence) {
    std::vector<std::uint16_t> keys;
    for (const std::uint32_t entry : sequence) {
        if ((entry >> 16 & kReleases) == 0) keys.push_back(static_cast<std::uint16_t>(entry));
    }
    return keys;
}

}  // namespace recoveryui::model

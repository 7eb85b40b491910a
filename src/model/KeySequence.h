// Key sequences as a keyboard operation stores them: an event in the high half of each entry, a
// virtual-key code in the low half.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace recoveryui::model {

inline constexpr std::uint16_t kKeyEnter = 0x0D;
inline constexpr std::uint16_t kKeyShift = 0x10;
inline constexpr std::uint16_t kKeyControl = 0x11;
inline constexpr std::uint16_t kKeyAlt = 0x12;
inline constexpr std::uint16_t kKeyEscape = 0x1B;

// Modifier flags as a hot-key control gives them; it may add others, which are ignored.
inline constexpr unsigned kWithShift = 1;
inline constexpr unsigned kWithControl = 2;
inline constexpr unsigned kWithAlt = 4;

// One key pressed and released.
std::vector<std::uint32_t> Press(std::uint16_t key);

// Modifiers down, the key, modifiers up. The key itself is never released: whoever replays the sequence
// counts on that.
std::vector<std::uint32_t> PressCombination(std::uint16_t key, unsigned modifiers);

// The virtual-key codes of the entries that do not release a key, in order.
std::vector<std::uint16_t> PressedKeys(std::span<const std::uint32_t> sequence);

}  // namespace recoveryui::model

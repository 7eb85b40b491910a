// The keys of a stored sequence as people read them.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>

#include "support/Text.h"

namespace recoveryui::model {

// Gives the character of a virtual key on the keyboard layout in use, 0 when it has none.
using CharacterOfKey = std::function<wchar_t(std::uint16_t key)>;

// The names of the pressed keys, joined with " + ". A key without a visible character is left out.
std::wstring KeyNames(std::span<const std::uint32_t> sequence, const support::Strings& strings,
                      const CharacterOfKey& characterOf);

}  // namespace recoveryui::model

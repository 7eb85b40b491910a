#include "model/KeyNames.h"

#include "model/KeySequence.h"
#include "resources/ids.h"

namespace recoveryui::model {
namespace {

constexpr wchar_t kFirstVisible = 0x21;

std::wstring NameOf(std::uint16_t key, const support::Strings& strings, const CharacterOfKey& characterOf) {
    switch (key) {
        case kKeyEnter: return strings(IDS_KEY_ENTER);
        case kKeyShift: return strings(IDS_KEY_SHIFT);
        case kKeyControl: return strings(IDS_KEY_CONTROL);
        case kKeyAlt: return strings(IDS_KEY_ALT);
        case kKeyEscape: return strings(IDS_KEY_ESCAPE);
        default: break;
    }
    const wchar_t character = characterOf(key);
    return character < kFirstVisible ? std::wstring() : std::wstring(1, character);
}

}  // namespace

std::wstring KeyNames(std::span<const std::uint32_t> sequence, const support::Strings& strings,
                      const CharacterOfKey& characterOf) {
    std::wstring names;
    for (const std::uint16_t key : PressedKeys(sequence)) {
        const std::wstring name = NameOf(key, strings, characterOf);
        if (name.empty()) continue;
        if (!names.empty()) names += L" + ";
        names += name;
    }
    return names;
}

}  // namespace recoveryui::model

#include <gtest/gtest.h>

#include "harness/FakeStrings.h"
#include "model/KeyNames.h"
#include "model/KeySequence.h"

namespace recoveryui::model {
namespace {

using Sequence = std::vector<std::uint32_t>;

wchar_t CharacterOf(std::uint16_t key) {
    return key >= 'A' && key <= 'Z' ? static_cast<wchar_t>(key)
           : key == 0x20            ? L' '
           : key == 0x09            ? L'\t'
                                    : L'\0';
}

TEST(KeysTest, ASequenceHasItsStoredFormAndReadsAsTheKeysPressed) {
    struct {
        Sequence sequence, stored;
        std::wstring names;
    } const rows[] = {
        {Press(kKeyEnter), {0x0001000D, 0x0003000D}, L"Enter"},
        {Press(kKeyEscape), {0x0001001B, 0x0003001B}, L"Esc"},
        {PressCombination('D', kWithControl | kWithAlt),
         {0x00010011, 0x00010012, 0x00010044, 0x00030012, 0x00030011},
         L"Control + Alt + D"},
        {PressCombination(0x71, kWithShift | kWithControl | kWithAlt),  // F2, which has no character
         {0x00010011, 0x00010010, 0x00010012, 0x00010071, 0x00030012, 0x00030011, 0x00030010},
         L"Control + Shift + Alt"},
        {PressCombination('A', kWithControl | 8), {0x00010011, 0x00010041, 0x00030011}, L"Control + A"},
        {PressCombination(0x20, 0), {0x00010020}, L""},
        {PressCombination(0x09, kWithAlt), {0x00010012, 0x00010009, 0x00030012}, L"Alt"},
        {{}, {}, L""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.sequence, row.stored);
        EXPECT_EQ(KeyNames(row.sequence, test::FakeStrings(), CharacterOf), row.names);
    }
}

TEST(KeysTest, OnlyTheReleaseBitOfAnEventHidesAKey) {
    EXPECT_EQ(PressedKeys(Sequence{0x00000041, 0x00010042, 0x00020043, 0x00030044, 0xFFFD0045}),
              (std::vector<std::uint16_t>{0x41, 0x42, 0x45}));
}

}  // namespace
}  // namespace recoveryui::model

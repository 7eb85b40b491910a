#include "support/Text.h"

#include <algorithm>
#include <type_traits>

namespace recoveryui::support {
namespace {

constexpr std::wstring_view kWhiteSpace = L" \t\r\n\v\f";

std::wstring_view WithoutLeading(std::wstring_view text, std::wstring_view dropped) {
    return text.substr(std::min(text.find_first_not_of(dropped), text.size()));
}

std::wstring_view WithoutTrailing(std::wstring_view text, std::wstring_view dropped) {
    return text.substr(0, text.find_last_not_of(dropped) + 1);
}

// Capitals `first`, `first + step`, ... `last` have their small letter `distance` further on.
struct Capitals {
    unsigned first;
    unsigned last;
    unsigned step;
    int distance;
};

constexpr Capitals kCapitals[] = {
    // Latin; U+0130 is left out, it has no small letter of its own
    {'A', 'Z', 1, 32},
    {0x00C0, 0x00D6, 1, 32},
    {0x00D8, 0x00DE, 1, 32},
    {0x0100, 0x012E, 2, 1},
    {0x0132, 0x0136, 2, 1},
    {0x0139, 0x0147, 2, 1},
    {0x014A, 0x0176, 2, 1},
    {0x0178, 0x0178, 1, -121},
    {0x0179, 0x017D, 2, 1},
    {0x01CD, 0x01DB, 2, 1},
    {0x01DE, 0x01EE, 2, 1},
    {0x01F8, 0x021E, 2, 1},
    {0x0222, 0x0232, 2, 1},
    // Greek
    {0x0386, 0x0386, 1, 38},
    {0x0388, 0x038A, 1, 37},
    {0x038C, 0x038C, 1, 64},
    {0x038E, 0x038F, 1, 63},
    {0x0391, 0x03A1, 1, 32},
    {0x03A3, 0x03AB, 1, 32},
    // Cyrillic
    {0x0400, 0x040F, 1, 80},
    {0x0410, 0x042F, 1, 32},
    {0x0460, 0x0480, 2, 1},
    {0x048A, 0x04BE, 2, 1},
    {0x04C0, 0x04C0, 1, 15},
    {0x04C1, 0x04CD, 2, 1},
    {0x04D0, 0x052E, 2, 1},
    // Armenian, more Latin, full-width Latin
    {0x0531, 0x0556, 1, 48},
    {0x1E00, 0x1E94, 2, 1},
    {0x1EA0, 0x1EFE, 2, 1},
    {0xFF21, 0xFF3A, 1, 32},
};

}  // namespace

std::wstring TrimBlanks(std::wstring_view text) {
    return std::wstring(WithoutTrailing(WithoutLeading(text, L" "), L" "));
}

std::wstring TrimWhiteSpace(std::wstring_view text) {
    return std::wstring(WithoutTrailing(WithoutLeading(text, kWhiteSpace), kWhiteSpace));
}

std::wstring TrimLeadingWhiteSpace(std::wstring_view text) {
    return std::wstring(WithoutLeading(text, kWhiteSpace));
}

std::wstring ToEditLineEnds(std::wstring_view text) {
    return ReplaceAll(text, L"\n", L"\r\n");
}

std::wstring ToStoredLineEnds(std::wstring_view text) {
    return ReplaceAll(text, L"\r\n", L"\n");
}

std::wstring ReplaceAll(std::wstring_view text, std::wstring_view from, std::wstring_view to) {
    std::wstring result;
    result.reserve(text.size());
    for (std::size_t at = text.find(from); at != std::wstring_view::npos; at = text.find(from)) {
        result.append(text.substr(0, at)).append(to);
        text.remove_prefix(at + from.size());
    }
    return result.append(text);
}

std::wstring Fill(std::wstring_view pattern, std::initializer_list<std::wstring_view> values) {
    std::wstring result;
    for (const std::wstring_view value : values) {
        const std::size_t at = pattern.find(L"%s");
        if (at == std::wstring_view::npos) break;
        result.append(pattern.substr(0, at)).append(value);
        pattern.remove_prefix(at + 2);
    }
    return result.append(pattern);
}

// Not towlower: in the "C" locale, which is what a DLL finds, it knows the letters A to Z only.
wchar_t Lower(wchar_t character) {
    const unsigned code{static_cast<std::make_unsigned_t<wchar_t>>(character)};
    for (const Capitals& row : kCapitals) {
        if (code < row.first) break;
        if (code <= row.last && (code - row.first) % row.step == 0) {
            return static_cast<wchar_t>(static_cast<int>(code) + row.distance);
        }
    }
    return character;
}

std::wstring Lower(std::wstring_view text) {
    std::wstring result(text);
    for (wchar_t& character : result) character = Lower(character);
    return result;
}

bool EqualIgnoringCase(std::wstring_view left, std::wstring_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](wchar_t a, wchar_t b) { return a == b || Lower(a) == Lower(b); });
}

}  // namespace recoveryui::support

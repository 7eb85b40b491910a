#include "objects/store/StoreText.h"

#include <cstdint>

namespace tovarin::store {
namespace {

constexpr char32_t kEscape = 0x1a;

bool IsHigh(char32_t unit) {
    return unit >= 0xd800 && unit < 0xdc00;
}
bool IsLow(char32_t unit) {
    return unit >= 0xdc00 && unit < 0xe000;
}

void AppendUtf8(std::string& bytes, char32_t point) {
    const auto put = [&](char32_t byte) { bytes += static_cast<char>(byte); };
    const auto tail = [&](int shift) { put(0x80 | (point >> shift & 0x3f)); };
    if (point < 0x80) {
        put(point);
    } else if (point < 0x800) {
        put(0xc0 | point >> 6);
        tail(0);
    } else if (point < 0x10000) {
        put(0xe0 | point >> 12);
        tail(6);
        tail(0);
    } else {
        put(0xf0 | point >> 18);
        tail(12);
        tail(6);
        tail(0);
    }
}

void AppendEscape(std::string& bytes, char32_t unit) {
    bytes += static_cast<char>(kEscape);
    for (int shift = 12; shift >= 0; shift -= 4) bytes += "0123456789abcdef"[unit >> shift & 15];
}

void AppendWide(std::wstring& text, char32_t point) {
    if (sizeof(wchar_t) == 2 && point >= 0x10000) {
        text += static_cast<wchar_t>(0xd7c0 + (point >> 10));
        text += static_cast<wchar_t>(0xdc00 | (point & 0x3ff));
    } else {
        text += static_cast<wchar_t>(point);
    }
}

// The character that starts at a position, which moves on.
char32_t NextPoint(std::string_view bytes, std::size_t& at) {
    const auto lead = static_cast<unsigned char>(bytes[at++]);
    const int more = lead < 0x80 ? 0 : lead < 0xe0 ? 1 : lead < 0xf0 ? 2 : 3;
    char32_t point = more == 0 ? lead : lead & (0x3f >> more);
    for (int i = 0; i < more && at < bytes.size(); ++i) point = point << 6 | (bytes[at++] & 0x3f);
    return point;
}

// A character of one byte that is no escape.
bool IsPlain(char byte) {
    return static_cast<unsigned char>(byte) < 0x80 && byte != static_cast<char>(kEscape);
}

// Four digits as ToUtf8 writes them; nothing for other digits or another value.
std::optional<char32_t> EscapedUnit(std::string_view digits) {
    if (digits.size() != 4) return std::nullopt;
    char32_t unit = 0;
    for (char digit : digits) {
        const auto value = std::string_view("0123456789abcdef").find(digit);
        if (value == std::string_view::npos) return std::nullopt;
        unit = unit << 4 | static_cast<char32_t>(value);
    }
    if (unit != kEscape && !IsHigh(unit) && !IsLow(unit)) return std::nullopt;
    return unit;
}

}  // namespace

std::string ToUtf8(std::wstring_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto unit = static_cast<char32_t>(text[i]);
        const auto next = i + 1 < text.size() ? static_cast<char32_t>(text[i + 1]) : 0;
        if (IsHigh(unit) && IsLow(next)) {
            AppendUtf8(bytes, 0x10000 + ((unit & 0x3ff) << 10) + (next & 0x3ff));
            ++i;
        } else if (unit == kEscape || IsHigh(unit) || IsLow(unit)) {
            AppendEscape(bytes, unit);
        } else {
            AppendUtf8(bytes, unit);
        }
    }
    return bytes;
}

std::optional<std::wstring> FromUtf8(std::string_view bytes) {
    std::wstring text;
    text.reserve(bytes.size());
    for (std::size_t at = 0; at < bytes.size();) {
        std::size_t plain = at;
        while (plain < bytes.size() && IsPlain(bytes[plain])) ++plain;
        text.append(bytes.begin() + at, bytes.begin() + plain);
        at = plain;
        if (at == bytes.size()) break;
        const char32_t point = NextPoint(bytes, at);
        if (point != kEscape) {
            AppendWide(text, point);
            continue;
        }
        const auto unit = EscapedUnit(bytes.substr(at, 4));
        if (!unit) return std::nullopt;
        text += static_cast<wchar_t>(*unit);
        at += 4;
    }
    return text;
}

}  // namespace tovarin::store

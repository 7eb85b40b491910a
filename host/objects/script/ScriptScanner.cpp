#include "objects/script/ScriptScanner.h"

#include <array>
#include <cstdint>

using namespace std::string_view_literals;

namespace tovarin {
namespace {

// What a character can be, as bits.
constexpr unsigned kBlank = 1, kLineEnd = 2, kDigit = 4, kLetter = 8, kUnderscore = 16, kDot = 32;
constexpr unsigned kControl = 64;
constexpr unsigned kSign = 128;       // begins or ends something within a statement
constexpr unsigned kKeyLetter = 256;  // the last of "end" or "rem"
constexpr unsigned kWordPart = kDigit | kLetter | kUnderscore;

constexpr unsigned ClassOf(unsigned c) {
    if (c == '\n' || c == '\r') return kLineEnd;
    if (c == ' ' || c == '\t' || c == '\v' || c == '\f' || c == 0xA0) return kBlank;
    if (c < ' ' || c == 0x7F) return kControl;
    if (c >= '0' && c <= '9') return kDigit;
    if (c == 'd' || c == 'D' || c == 'm' || c == 'M') return kLetter | kKeyLetter;
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c >= 0xC0) return kLetter;
    if (c == '\'' || c == '"' || c == '[' || c == '#' || c == ':') return kSign;
    return c == '_' ? kUnderscore : c == '.' ? kDot : 0;
}

constexpr std::array<std::uint16_t, 256> MakeClasses() {
    std::array<std::uint16_t, 256> classes{};
    for (unsigned c = 0; c < classes.size(); ++c) classes[c] = static_cast<std::uint16_t>(ClassOf(c));
    return classes;
}
constexpr auto kClasses = MakeClasses();

// What lies beyond the table is a letter.
constexpr bool In(wchar_t c, unsigned classes) {
    const auto code = static_cast<unsigned long>(c);
    return ((code < kClasses.size() ? kClasses[code] : kLetter) & classes) != 0;
}

// The first place from `at` on where the text is not of these classes.
std::size_t Past(std::wstring_view text, std::size_t at, unsigned classes) {
    while (at < text.size() && In(text[at], classes)) ++at;
    return at;
}

// The first place from `at` on where it is.
std::size_t Until(std::wstring_view text, std::size_t at, unsigned classes) {
    while (at < text.size() && !In(text[at], classes)) ++at;
    return at;
}

// The next place where the line ends, or where it holds one of these or a control character.
std::size_t Find(std::wstring_view text, std::size_t at, wchar_t one = 0, wchar_t other = 0) {
    while (at < text.size() && text[at] != one && text[at] != other && !In(text[at], kLineEnd | kControl))
        ++at;
    return at;
}

}  // namespace

std::wstring_view ScriptScanner::Text() const {
    std::wstring_view text = text_.substr(start_, at_ - start_);
    return text.starts_with(L'[') ? text.substr(1, text.size() - 2) : text;
}

ScriptToken ScriptScanner::Next() {
    const bool afterDot = afterDot_;
    for (;;) {
        start_ = at_ = Past(text_, at_, kBlank);
        if (AtEnd()) return ScriptToken::End;
        const wchar_t first = text_[at_];
        if (In(first, kLetter)) {
            afterDot_ = false;
            at_ = Past(text_, at_, kWordPart);
            if (afterDot) return ScriptToken::Name;
            if (!Is(L"rem"sv)) return ScriptToken::Word;
            SkipToLineEnd();
            continue;
        }
        if (first == L'\'') {
            SkipToLineEnd();
            continue;
        }
        if (first == L'_' && SkipContinuation()) continue;
        afterDot_ = first == L'.';
        if (first == L':' || In(first, kLineEnd)) {
            ++at_;
            return ScriptToken::Separator;
        }
        if (first == L'"') return String();
        if (first == L'[') return BracketedName();
        if (first == L'#') {
            Date();
            return ScriptToken::Other;
        }
        if (In(first, kControl)) return ScriptToken::Error;
        // A number is taken whole, so that its letters are no word.
        ++at_;
        if (In(first, kDigit)) at_ = Past(text_, at_, kWordPart | kDot);
        return ScriptToken::Other;
    }
}

ScriptToken ScriptScanner::NextMark() {
    for (;;) {
        if (at_ >= unsure_) PassOver();
        const ScriptToken token = Next();
        const bool passed = token == ScriptToken::Other || token == ScriptToken::Name ||
                            (token == ScriptToken::Word && !Is(L"end"sv));
        if (!passed) return token;
    }
}

// Goes on to the next character that can matter. What may be a keyword or a continued line is left to Next.
void ScriptScanner::PassOver() {
    constexpr unsigned kUnsure = kUnderscore | kKeyLetter;
    const auto unsure = [&](std::size_t at) {
        if (text_[at] == L'_') return at == at_ || !In(text_[at - 1], kWordPart);
        const auto small = [&](std::size_t back) { return text_[at - back] | 0x20; };
        return at >= at_ + 2 && (small(0) == L'd' ? small(1) == L'n' && small(2) == L'e'
                                                  : small(1) == L'e' && small(2) == L'r');
    };
    for (std::size_t at = at_;; ++at) {
        at = Until(text_, at, kLineEnd | kControl | kSign | kUnsure);
        if (at == text_.size() || !In(text_[at], kUnsure)) {
            at_ = at;
            return;
        }
        if (unsure(at)) {
            unsure_ = at + 1;
            return;
        }
    }
}

// A line goes on after "_" when nothing follows it there.
bool ScriptScanner::SkipContinuation() {
    std::size_t next = Past(text_, at_ + 1, kBlank);
    if (next < text_.size() && !In(text_[next], kLineEnd)) return false;
    if (next + 1 < text_.size() && text_[next] == L'\r' && text_[next + 1] == L'\n') ++next;
    at_ = next < text_.size() ? next + 1 : next;
    return true;
}

// Stops at a control character as well, which is no comment's either.
void ScriptScanner::SkipToLineEnd() {
    at_ = Find(text_, at_);
}

// A doubled quotation mark stands for one.
ScriptToken ScriptScanner::String() {
    do {
        at_ = Find(text_, at_ + 1, L'"');
        if (AtEnd() || text_[at_] != L'"') return ScriptToken::Error;
        ++at_;
    } while (!AtEnd() && text_[at_] == L'"');
    return ScriptToken::Other;
}

ScriptToken ScriptScanner::BracketedName() {
    at_ = Find(text_, at_, L']');
    if (AtEnd() || text_[at_] != L']') return ScriptToken::Error;
    ++at_;
    return ScriptToken::Name;
}

// "#10:30:00#" holds colons that separate nothing; a lone "#" is a sign like any other.
void ScriptScanner::Date() {
    const std::size_t next = Find(text_, at_ + 1, L'#', L'"');
    at_ = next < text_.size() && text_[next] == L'#' ? next + 1 : at_ + 1;
}

}  // namespace tovarin

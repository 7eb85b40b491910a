#include "objects/script/ScriptScanner.h"

namespace tovarin {
namespace {

constexpr bool IsLineEnd(wchar_t c) {
    return c == L'\n' || c == L'\r';
}
constexpr bool IsBlank(wchar_t c) {
    return c == L' ' || c == L'\t' || c == L'\v' || c == L'\f' || c == 0xA0;
}
constexpr bool IsDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}
constexpr bool IsLetter(wchar_t c) {
    return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || static_cast<unsigned long>(c) >= 0xC0;
}
constexpr bool IsWordPart(wchar_t c) {
    return IsLetter(c) || IsDigit(c) || c == L'_';
}
constexpr wchar_t Small(wchar_t c) {
    return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c + 32) : c;
}

}  // namespace

std::wstring_view ScriptScanner::Text() const {
    std::wstring_view text = text_.substr(start_, at_ - start_);
    return text.starts_with(L'[') ? text.substr(1, text.size() - 2) : text;
}

bool ScriptScanner::Is(std::wstring_view small) const {
    if (at_ - start_ != small.size()) return false;
    for (std::size_t index = 0; index < small.size(); ++index) {
        if (Small(text_[start_ + index]) != small[index]) return false;
    }
    return true;
}

ScriptToken ScriptScanner::Next() {
    const bool afterDot = afterDot_;
    for (;;) {
        while (!AtEnd() && IsBlank(text_[at_])) ++at_;
        start_ = at_;
        if (AtEnd()) return ScriptToken::End;
        const wchar_t first = text_[at_];
        if (first == L'\'') {
            SkipToLineEnd();
            continue;
        }
        if (first == L'_' && SkipContinuation()) continue;
        afterDot_ = first == L'.';
        if (IsLineEnd(first) || first == L':') {
            ++at_;
            return ScriptToken::Separator;
        }
        if (first == L'"') return String();
        if (first == L'[') return BracketedName();
        if (first == L'#') {
            Date();
            return ScriptToken::Other;
        }
        if (!IsLetter(first)) {
            // A number is taken whole, so that its letters are no word.
            do ++at_;
            while (IsDigit(first) && !AtEnd() && (IsWordPart(text_[at_]) || text_[at_] == L'.'));
            return ScriptToken::Other;
        }
        while (!AtEnd() && IsWordPart(text_[at_])) ++at_;
        if (afterDot) return ScriptToken::Name;
        if (!Is(L"rem")) return ScriptToken::Word;
        SkipToLineEnd();
    }
}

// A line goes on after "_" when nothing follows it there.
bool ScriptScanner::SkipContinuation() {
    std::size_t next = at_ + 1;
    while (next < text_.size() && IsBlank(text_[next])) ++next;
    if (next < text_.size() && !IsLineEnd(text_[next])) return false;
    if (next + 1 < text_.size() && text_[next] == L'\r' && text_[next + 1] == L'\n') ++next;
    at_ = next < text_.size() ? next + 1 : next;
    return true;
}

void ScriptScanner::SkipToLineEnd() {
    while (!AtEnd() && !IsLineEnd(text_[at_])) ++at_;
}

// A doubled quotation mark stands for one.
ScriptToken ScriptScanner::String() {
    for (++at_; !AtEnd() && !IsLineEnd(text_[at_]); ++at_) {
        if (text_[at_] != L'"') continue;
        ++at_;
        if (AtEnd() || text_[at_] != L'"') return ScriptToken::Other;
    }
    return ScriptToken::Error;
}

ScriptToken ScriptScanner::BracketedName() {
    while (!AtEnd() && !IsLineEnd(text_[at_])) {
        if (text_[at_++] == L']') return ScriptToken::Name;
    }
    return ScriptToken::Error;
}

// "#10:30:00#" holds colons that separate nothing; a lone "#" is a sign like any other.
void ScriptScanner::Date() {
    std::size_t next = at_ + 1;
    while (next < text_.size() && !IsLineEnd(text_[next]) && text_[next] != L'#' && text_[next] != L'"')
        ++next;
    at_ = next < text_.size() && text_[next] == L'#' ? next + 1 : at_ + 1;
}

}  // namespace tovarin

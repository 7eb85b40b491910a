// Small rules about text that every floor needs.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace recoveryui::support {

// Gives the text of a string-table id. Plain units take their words through it.
using Strings = std::function<std::wstring(int id)>;

// Without the blanks (U+0020 only) at both ends.
std::wstring TrimBlanks(std::wstring_view text);

// Without the white space (blank, tab, CR, LF, VT, FF) at both ends, or at the beginning only.
std::wstring TrimWhiteSpace(std::wstring_view text);
std::wstring TrimLeadingWhiteSpace(std::wstring_view text);

// Line ends of stored text ("\n") to those of an edit box ("\r\n") and back. Both are plain textual
// replacements, so that a stored "\r\n" survives the round trip.
std::wstring ToEditLineEnds(std::wstring_view text);
std::wstring ToStoredLineEnds(std::wstring_view text);

// The text with `from` replaced by `to` everywhere; `from` is not empty.
std::wstring ReplaceAll(std::wstring_view text, std::wstring_view from, std::wstring_view to);

// The pattern with each "%s" replaced by the next value. What a value contains is never a pattern.
std::wstring Fill(std::wstring_view pattern, std::initializer_list<std::wstring_view> values);

// Small letters and comparison for names that people type; the same answer whatever the locale is.
wchar_t Lower(wchar_t character);
std::wstring Lower(std::wstring_view text);
bool EqualIgnoringCase(std::wstring_view left, std::wstring_view right);

}  // namespace recoveryui::support

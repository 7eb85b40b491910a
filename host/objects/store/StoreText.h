// Text between wide characters and the UTF-8 of a recovery file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tovarin::store {

// Any text survives: what UTF-8 cannot carry (a surrogate without its partner) becomes U+001A followed by
// four hexadecimal digits, and so does U+001A itself.
std::string ToUtf8(std::wstring_view text);

// Takes well-formed UTF-8. Nothing when U+001A is not followed by what ToUtf8 writes.
std::optional<std::wstring> FromUtf8(std::string_view bytes);

}  // namespace tovarin::store

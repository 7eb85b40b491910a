#include "support/RepositoryPath.h"

#include "support/Text.h"

namespace recoveryui::support {
namespace {

// Only one of the two needs the blank behind its bracket: the host accepts "[Ondrafel]name".
constexpr std::wstring_view kPrefixes[] = {L"[ondrafel]", L"[brevalon] "};

std::wstring AsciiLower(std::wstring text) {
    for (wchar_t& character : text) {
        if (character >= L'A' && character <= L'Z') character = Lower(character);
    }
    return text;
}

}  // namespace

bool IsRepositoryPath(std::wstring_view path) {
    const std::wstring lowered = AsciiLower(TrimLeadingWhiteSpace(path));
    for (const std::wstring_view prefix : kPrefixes) {
        if (lowered.starts_with(prefix)) return true;
    }
    return false;
}

std::wstring DisplayForm(std::wstring_view path) {
    return std::wstring(path);
}

}  // namespace recoveryui::support

#include "objects/services/DialogFilter.h"

namespace tovarin {

std::wstring PlatformFilter(std::wstring_view filter) {
    while (filter.ends_with(L'|')) filter.remove_suffix(1);
    if (filter.empty()) return {};
    std::wstring list(filter);
    for (wchar_t& character : list) {
        if (character == L'|') character = L'\0';
    }
    return list.append(2, L'\0');
}

std::wstring FirstExtension(std::wstring_view filter) {
    const size_t bar = filter.find(L'|');
    if (bar == filter.npos) return {};
    std::wstring_view pattern = filter.substr(bar + 1);
    pattern = pattern.substr(0, pattern.find_first_of(L"|;"));
    const size_t dot = pattern.rfind(L'.');
    if (dot == pattern.npos || pattern.find_first_of(L"*?", dot) != pattern.npos) return {};
    return std::wstring(pattern.substr(dot));
}

}  // namespace tovarin

// What a file dialog makes of the filter text that it is given.
#pragma once

#include <string>
#include <string_view>

namespace tovarin {

// "Name|*.ext|...||" in the form that the platform wants: fields ended by NULs, the list by one more.
std::wstring PlatformFilter(std::wstring_view filter);

// The extension of the first pattern with its dot; empty for "*.*" and for no filter.
std::wstring FirstExtension(std::wstring_view filter);

}  // namespace tovarin

#include "support/LibraryAppend.h"

#include "support/Text.h"

namespace recoveryui::support {

LibraryEnd EndOfLibrary(std::string_view lastBytes) {
    const std::size_t size = lastBytes.size();
    lastBytes = lastBytes.substr(0, lastBytes.find_last_not_of('\x1A') + 1);
    const std::size_t last = lastBytes.find_last_not_of(" \t\v\f\xA0");
    return {size - lastBytes.size(), last != std::string_view::npos && lastBytes[last] == '_'};
}

std::wstring AppendedText(std::wstring_view functionText, const LibraryEnd& end) {
    std::wstring lines = (end.goesOn ? L"\n\n" : L"\n") + TrimWhiteSpace(functionText);
    std::erase(lines, L'\r');
    return ReplaceAll(lines, L"\n", L"\r\n");
}

}  // namespace recoveryui::support

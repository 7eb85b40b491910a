#include "support/LibraryAppend.h"

#include "support/Text.h"

namespace recoveryui::support {

std::wstring AppendedText(std::wstring_view functionText) {
    std::wstring lines = L"\n" + TrimWhiteSpace(functionText);
    std::erase(lines, L'\r');
    return ReplaceAll(lines, L"\n", L"\r\n");
}

}  // namespace recoveryui::support

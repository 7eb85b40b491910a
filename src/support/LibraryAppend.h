// The characters that a new function adds to the end of its library file.
#pragma once

#include <string>
#include <string_view>

namespace recoveryui::support {

// What is written for a function's text, line ends included: the file is opened in binary mode and only
// the code page conversion remains to be done.
std::wstring AppendedText(std::wstring_view functionText);

}  // namespace recoveryui::support

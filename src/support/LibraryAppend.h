// The characters that a new function adds to the end of its library file.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace recoveryui::support {

// How a library ends, as far as it matters to what is put behind it.
struct LibraryEnd {
    std::size_t marks = 0;  // Ctrl+Z at the very end, left by an old editor: nothing may stand behind them
    bool goesOn = false;    // its last line asks for another one with an underscore
};
LibraryEnd EndOfLibrary(std::string_view lastBytes);

// What is written for a function's text in place of the end's marks, line ends included: the file is opened
// in binary mode and only the code page conversion remains to be done.
std::wstring AppendedText(std::wstring_view functionText, const LibraryEnd& end);

}  // namespace recoveryui::support

// Finds the functions of a VBScript library in its text.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace tovarin {

// A function or sub outside every class, and where its text stands: from its first modifier to the end of
// "End Function" or "End Sub".
struct ScriptFunction {
    std::wstring_view name;  // in the text
    std::size_t start;
    std::size_t length;
};

// In file order. Nothing when the text cannot be a script: control characters, a string or a bracketed
// name that does not end on its line, procedures or classes that nest, overlap or never end. Takes time
// in proportion to the text.
std::optional<std::vector<ScriptFunction>> ParseScript(std::wstring_view text);

}  // namespace tovarin

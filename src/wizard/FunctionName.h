// The rules for the name of a new recovery function.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "wizard/NewFunctions.h"

namespace recoveryui::wizard {

enum class FunctionNameVerdict { Accepted, Empty, ContainsBlank, InLibrary, Pending };

// Judges a trimmed name for a library: its functions, and those that wait to be written to it, keep their
// names to themselves. Every refusal has the same message.
FunctionNameVerdict JudgeFunctionName(std::wstring_view trimmedName,
                                      const std::vector<std::wstring>& libraryFunctions,
                                      const NewFunctionList& pending, std::wstring_view fullLibraryPath);

}  // namespace recoveryui::wizard

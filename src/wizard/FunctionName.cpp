#include "wizard/FunctionName.h"

#include <algorithm>

#include "support/Text.h"

namespace recoveryui::wizard {

FunctionNameVerdict JudgeFunctionName(std::wstring_view trimmedName,
                                      const std::vector<std::wstring>& libraryFunctions,
                                      const NewFunctionList& pending, std::wstring_view fullLibraryPath) {
    using enum FunctionNameVerdict;
    if (trimmedName.empty()) return Empty;
    if (trimmedName.find(L' ') != std::wstring_view::npos) return ContainsBlank;
    const auto isTheName = [&](const std::wstring& name) {
        return support::EqualIgnoringCase(name, trimmedName);
    };
    if (std::any_of(libraryFunctions.begin(), libraryFunctions.end(), isTheName)) return InLibrary;
    return pending.Find(fullLibraryPath, trimmedName) ? Pending : Accepted;
}

}  // namespace recoveryui::wizard

// The script text of a new recovery function.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace recoveryui::wizard {

inline constexpr const wchar_t* kDefaultFunctionName = L"RecoveryFunction1";

// How a function is called for a kind of trigger: its first line, and the number that tells the operation.
struct Prototype {
    std::wstring head;
    std::int32_t mode = 0;
};

// The prototype for a trigger's kind; nothing for a kind without meaning.
std::optional<Prototype> PrototypeFor(std::int32_t triggerKind);

// The text that a new function starts with.
std::wstring FunctionTemplate(const Prototype& prototype);

// The text with the function's name replaced. A text that does not begin with the word Function, or has no
// opening parenthesis, is given back unchanged.
std::wstring RenameFunction(const std::wstring& text, std::wstring_view name);

}  // namespace recoveryui::wizard

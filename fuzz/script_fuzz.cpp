// A function library, and what the wizard adds to it.
#include "objects/script/ScriptParser.h"

#include <algorithm>

#include "Fuzz.h"
#include "support/LibraryAppend.h"
#include "wizard/FunctionText.h"

namespace recoveryui::fuzz {
namespace {

// Nothing can be added behind a line that goes on, or behind the end mark of old editors.
bool EndsOpen(std::wstring_view text) {
    const std::size_t last = text.find_last_not_of(L" \t\v\f\r\n\xa0");
    return last != std::wstring_view::npos && (text[last] == L'_' || text.find(L'\x1a') != text.npos);
}

}  // namespace

void Fuzz(Input input) {
    const std::wstring text = Input(input).Rest();
    const auto functions = tovarin::ParseScript(text);
    if (functions) {
        std::size_t end = 0;
        for (const auto& function : *functions) {
            Require(function.start >= end && function.length > 0, "functions follow each other");
            end = function.start + function.length;
            Require(end <= text.size(), "a function lies in the text");
            const auto alone =
                tovarin::ParseScript(std::wstring_view(text).substr(function.start, function.length));
            Require(alone && alone->size() == 1 && alone->front().name == function.name &&
                        alone->front().start == 0 && alone->front().length == function.length,
                    "a function by itself is the same function");
        }
    }

    const auto prototype = wizard::PrototypeFor(input.Byte() % 4);
    Require(prototype.has_value(), "every kind of trigger has a prototype");
    const std::wstring added =
        support::AppendedText(wizard::RenameFunction(wizard::FunctionTemplate(*prototype), L"Added"));
    Require(added.starts_with(L"\r\n") && std::count(added.begin(), added.end(), L'\r') ==
                                              std::count(added.begin(), added.end(), L'\n'),
            "every line ends as lines of a library do");
    if (!functions || EndsOpen(text)) return;
    const auto more = tovarin::ParseScript(text + added);
    Require(more && more->size() == functions->size() + 1 && more->back().name == L"Added",
            "an added function is found behind the others");
}

}  // namespace recoveryui::fuzz

// A function library, and what the wizard adds to it.
#include "objects/script/ScriptParser.h"

#include <algorithm>

#include "Fuzz.h"
#include "support/LibraryAppend.h"
#include "wizard/FunctionText.h"

namespace recoveryui::fuzz {
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
    std::string bytes(text.size(), '?');
    std::transform(text.begin(), text.end(), bytes.begin(),
                   [](wchar_t letter) { return letter < 256 ? static_cast<char>(letter) : '?'; });
    const support::LibraryEnd end = support::EndOfLibrary(bytes);
    const std::wstring added =
        support::AppendedText(wizard::RenameFunction(wizard::FunctionTemplate(*prototype), L"Added"), end);
    Require(added.starts_with(L"\r\n") && std::count(added.begin(), added.end(), L'\r') ==
                                              std::count(added.begin(), added.end(), L'\n'),
            "every line ends as lines of a library do");
    if (!functions) return;
    const auto more = tovarin::ParseScript(text.substr(0, text.size() - end.marks) + added);
    Require(more && more->size() == functions->size() + 1 && more->back().name == L"Added",
            "an added function is found behind the others");
}

}  // namespace recoveryui::fuzz

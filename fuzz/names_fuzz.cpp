// Names that people type: of processes, functions and scenarios.
#include <algorithm>

#include "Fuzz.h"
#include "model/NameSearch.h"
#include "process/ProcessNames.h"
#include "support/Text.h"
#include "wizard/FunctionName.h"
#include "wizard/FunctionText.h"
#include "wizard/ScenarioName.h"

namespace recoveryui::fuzz {
namespace {

using support::EqualIgnoringCase;

void Processes(const std::vector<std::wstring>& rows, std::size_t row, const std::wstring& typed) {
    using process::EditEnd;
    const EditEnd end = process::EndEdit(rows, row, typed);
    Require((end.action == EditEnd::Action::Reopen) == (end.messageId != 0), "a refusal has a message");
    if (end.action == EditEnd::Action::Store) {
        Require(!end.text.empty() && end.text == support::TrimBlanks(typed), "a stored name is trimmed");
        Require(end.text.find_first_of(L"\\/:*?\"<>|") == std::wstring::npos, "and legal");
        for (std::size_t other = 0; other < rows.size(); ++other)
            Require(other == row || !EqualIgnoringCase(rows[other], end.text), "and in the list once");
    }
    Require(process::FileNameOf(typed).find(L'\\') == std::wstring::npos, "a file name has no folders");

    const std::vector<std::wstring> first(rows.begin(), rows.begin() + static_cast<std::ptrdiff_t>(row));
    auto all = first;
    const auto added = process::NamesToAppend(first, rows);
    all.insert(all.end(), added.begin(), added.end());
    Require(process::NamesToAppend(all, rows).empty(), "every name is appended, and once");
}

void Functions(const std::vector<std::wstring>& names, const std::wstring& text) {
    wizard::NewFunctionList pending;
    for (const std::wstring& name : names) {
        const auto verdict = wizard::JudgeFunctionName(name, {}, pending, L"l.vbs");
        const bool taken = pending.Add({L"l.vbs", L"l.vbs", name, text});
        Require(taken || verdict != wizard::FunctionNameVerdict::Accepted, "an accepted name can be added");
        Require(pending.Find(L"L.VBS", name) != nullptr, "and is found");
    }
    Require(pending.NamesIn(L"l.vbs").size() == pending.All().size(), "no name is lost");
    const std::wstring once = wizard::RenameFunction(text, L"Name");
    Require(wizard::RenameFunction(once, L"Name") == once, "a name is set once");
    Require(once.size() <= text.size() + 13, "and nothing else grows");
}

void Search(const std::vector<std::wstring>& names, const std::wstring& text, int start) {
    const auto count = static_cast<int>(names.size());
    const auto nameAt = [&](int row) -> std::wstring_view { return names[static_cast<std::size_t>(row)]; };
    for (const bool prefix : {true, false}) {
        const int found = model::FindName(count, nameAt, text, start, {prefix, true});
        Require(found >= -1 && found < count, "a found row exists");
        const int forward = model::FindName(count, nameAt, text, start, {prefix, false});
        Require(forward == -1 || forward == found, "rows below come first");
        const bool exists = std::any_of(names.begin(), names.end(), [&](const std::wstring& name) {
            return EqualIgnoringCase(prefix ? name.substr(0, text.size()) : name, text);
        });
        Require(exists == (found != -1), "what is there is found");
    }
}

}  // namespace

void Fuzz(Input input) {
    const std::size_t place = input.Byte();
    const std::wstring typed = input.Line();
    const auto names = input.Lines(6);
    if (!names.empty()) Processes(names, place % names.size(), typed);
    Functions(names, typed);
    Search(names, typed, static_cast<int>(place) - 100);
    Require(wizard::IsScenarioName(typed) != typed.empty(), "any text is a scenario's name");
    Require(!wizard::NeedsCheck(typed, support::Lower(typed)), "a name in another case is the same name");
}

}  // namespace recoveryui::fuzz

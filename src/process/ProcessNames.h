// The rules for the names of processes that a person chooses.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace recoveryui::process {

// The name behind the last backslash of an executable's path; the whole text when there is none.
std::wstring FileNameOf(std::wstring_view path);

// What becomes of a row whose in-place editing has ended.
struct EditEnd {
    enum class Action {
        Keep,    // nothing changes
        Delete,  // the row was new and the person gave up
        Store,   // `text` becomes the row's text
        Reopen,  // show the message, then edit `text` in the same row
    };
    Action action = Action::Keep;
    std::wstring text;
    int messageId = 0;
};

// Judges the text typed into `rows[row]`; nothing typed means that the edit was cancelled.
EditEnd EndEdit(const std::vector<std::wstring>& rows, std::size_t row,
                const std::optional<std::wstring>& typed);

// The names out of `selected` that are to be appended to `rows`, in order: names compare ignoring case.
std::vector<std::wstring> NamesToAppend(const std::vector<std::wstring>& rows,
                                        const std::vector<std::wstring>& selected);

}  // namespace recoveryui::process

// Splits a script into the few kinds of token that matter for finding its procedures.
#pragma once

#include <cstddef>
#include <string_view>

namespace tovarin {

enum class ScriptToken {
    Word,       // a keyword or a name
    Name,       // a name that cannot be a keyword: in brackets, or after a dot
    Separator,  // a line end or ":"
    Other,      // a string, a date, a number, a sign
    End,        // of the text
    Error,      // what no script holds
};

class ScriptScanner {
public:
    explicit ScriptScanner(std::wstring_view text) : text_(text) {}

    // Comments and continued lines are passed over.
    ScriptToken Next();

    // Of the last token. The text of a bracketed name is without its brackets.
    std::size_t Start() const { return start_; }
    std::size_t Stop() const { return at_; }
    std::wstring_view Text() const;
    // Whether the last token is this word; `small` is in small letters.
    bool Is(std::wstring_view small) const;

private:
    bool AtEnd() const { return at_ >= text_.size(); }
    bool SkipContinuation();
    void SkipToLineEnd();
    ScriptToken String();
    ScriptToken BracketedName();
    void Date();

    std::wstring_view text_;
    std::size_t at_ = 0;
    std::size_t start_ = 0;
    bool afterDot_ = false;
};

}  // namespace tovarin

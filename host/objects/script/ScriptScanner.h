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
    Error,      // what no script holds, such as a control character
};

class ScriptScanner {
public:
    explicit ScriptScanner(std::wstring_view text) : text_(text) {}

    // Comments and continued lines are passed over.
    ScriptToken Next();
    // The next one that can matter behind the beginning of a statement: a separator, the word "end", the
    // end of the text or an error.
    ScriptToken NextMark();

    // Of the last token. The text of a bracketed name is without its brackets.
    std::size_t Start() const { return start_; }
    std::size_t Stop() const { return at_; }
    std::wstring_view Text() const;
    // Whether the last token is this word; `small` is in small letters.
    bool Is(std::wstring_view small) const {
        if (at_ - start_ != small.size()) return false;
        for (std::size_t index = 0; index < small.size(); ++index) {
            const wchar_t c = text_[start_ + index];
            if ((c >= L'A' && c <= L'Z' ? c + 32 : c) != small[index]) return false;
        }
        return true;
    }

private:
    bool AtEnd() const { return at_ >= text_.size(); }
    void PassOver();
    bool SkipContinuation();
    void SkipToLineEnd();
    ScriptToken String();
    ScriptToken BracketedName();
    void Date();

    std::wstring_view text_;
    std::size_t at_ = 0;
    std::size_t start_ = 0;
    std::size_t unsure_ = 0;  // what stands before it is taken token by token
    bool afterDot_ = false;
};

}  // namespace tovarin

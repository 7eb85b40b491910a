// The small rules about text.
#include "support/Text.h"

#include <algorithm>

#include "Fuzz.h"
#include "app/JournalRows.h"
#include "wizard/PopupConditions.h"

namespace recoveryui::fuzz {

void Fuzz(Input input) {
    using namespace support;
    const std::wstring other = input.Line(), text = input.Rest();
    Require(TrimBlanks(TrimBlanks(text)) == TrimBlanks(text), "blanks are trimmed once");
    Require(TrimWhiteSpace(TrimWhiteSpace(text)) == TrimWhiteSpace(text), "white space is trimmed once");
    Require(text.find(TrimWhiteSpace(text)) != std::wstring::npos, "what is inside stays");
    Require(text.ends_with(TrimLeadingWhiteSpace(text)), "the end stays");
    Require(ToStoredLineEnds(ToEditLineEnds(text)) == text, "stored text survives an edit box");
    Require(ReplaceAll(text, L"ab", L"ab") == text, "replacing by itself changes nothing");

    const std::wstring lowered = Lower(text);
    Require(lowered.size() == text.size() && Lower(lowered) == lowered, "small letters stay small");
    Require(EqualIgnoringCase(text, lowered) && EqualIgnoringCase(lowered, text), "case does not matter");
    Require(EqualIgnoringCase(text, other) == (Lower(text) == Lower(other)), "comparing is lowering");

    const std::wstring filled = Fill(L"<%s|%s>", {text, other});
    Require(filled == L"<" + text + L"|" + other + L">", "a value is never a pattern");
    Require(Fill(text, {}) == text, "without values a pattern stays");

    const auto condition = wizard::TextOfTrigger(text, true);
    Require(condition.checked == !text.empty(), "an empty value was never set");
    wizard::PopupConditions conditions;
    conditions.text = condition;
    Require(conditions.StoredText() == text, "a condition survives the page");

    tovarin::JournalRows rows(10);
    for (int i = 0; i < 25; ++i) rows.Add({{{text, other, text, other, std::to_wstring(i)}}});
    Require(rows.Count() <= 10, "a journal has its limit");
    const std::wstring copied = rows.TextOf({rows.Count() - 1});
    Require(std::count(copied.begin(), copied.end(), L'\t') == 4 && copied.ends_with(L"\t24\r\n"),
            "a row is one line of five cells");
}

}  // namespace recoveryui::fuzz

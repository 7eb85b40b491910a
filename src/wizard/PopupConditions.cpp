#include "wizard/PopupConditions.h"

#include "support/Text.h"

namespace recoveryui::wizard {
namespace {

bool Satisfied(const PopupCondition& condition) {
    return !condition.checked || !condition.value.empty();
}

}  // namespace

bool PopupConditions::Complete() const {
    return (title.checked || text.checked) && Satisfied(title) && Satisfied(text);
}

std::wstring PopupConditions::StoredText() const {
    return support::ToStoredLineEnds(text.value);
}

PopupConditions FreshConditions() {
    PopupConditions fresh;
    fresh.title.checked = true;
    return fresh;
}

PopupCondition TitleOfTrigger(const std::wstring& title, bool isRegex) {
    return title.empty() ? PopupCondition{} : PopupCondition{true, title, isRegex};
}

PopupCondition TextOfTrigger(const std::wstring& text, bool isRegex) {
    return TitleOfTrigger(support::ToEditLineEnds(text), isRegex);
}

PopupConditions CapturedConditions(const std::wstring& title, const std::wstring& text) {
    return {TitleOfTrigger(title, false), TextOfTrigger(text, false)};
}

}  // namespace recoveryui::wizard

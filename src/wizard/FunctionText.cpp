#include "wizard/FunctionText.h"

#include "model/Kinds.h"
#include "support/Text.h"

namespace recoveryui::wizard {
namespace {

std::wstring_view FirstWord(std::wstring_view text) {
    const std::size_t start = text.find_first_not_of(L' ');
    if (start == std::wstring_view::npos) return {};
    text.remove_prefix(start);
    return text.substr(0, text.find(L' '));
}

Prototype WithArguments(const wchar_t* arguments, std::int32_t mode) {
    return {support::Fill(L"Function %s(%s)", {kDefaultFunctionName, arguments}), mode};
}

}  // namespace

std::optional<Prototype> PrototypeFor(std::int32_t triggerKind) {
    const std::optional<model::TriggerKind> kind = model::TriggerKindFrom(triggerKind);
    if (!kind) return std::nullopt;
    switch (*kind) {
        case model::TriggerKind::ObjectState:
        case model::TriggerKind::PopUp: return WithArguments(L"Object", 1);
        case model::TriggerKind::Error: return WithArguments(L"Object, Method, Arguments, retVal", 0);
        case model::TriggerKind::Crash: break;
    }
    return WithArguments(L"ProcessName, ProcessID", 2);
}

std::wstring FunctionTemplate(const Prototype& prototype) {
    return prototype.head + L"\r\n\r\nEnd Function\r\n";
}

std::wstring RenameFunction(const std::wstring& text, std::wstring_view name) {
    const std::size_t parenthesis = text.find(L'(');
    if (parenthesis == std::wstring::npos || !support::EqualIgnoringCase(FirstWord(text), L"function"))
        return text;
    return L"Function " + std::wstring(name) + text.substr(parenthesis);
}

}  // namespace recoveryui::wizard

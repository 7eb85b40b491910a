#include "objects/screen/ObjectIdentity.h"

#include <algorithm>
#include <string_view>

namespace tovarin {
namespace {

constexpr size_t kMostNameCharacters = 60;

store::Property Text(const wchar_t* name, std::wstring text, bool checked) {
    return {name, {store::ValueType::Text, 0, 0, std::move(text)}, 0, checked};
}
store::Property Number(const wchar_t* name, std::int32_t number, bool checked) {
    return {name, {store::ValueType::Int32, number, 0, {}}, 0, checked};
}
store::Property Truth(const wchar_t* name, bool yes) {
    return {name, {store::ValueType::Boolean, yes, 0, {}}, 0, false};
}

// A label that carries no number of its own has one of these.
bool HasNumber(const WindowFacts& facts) {
    return !facts.topLevel && facts.id != 0 && static_cast<std::uint16_t>(facts.id) != 0xFFFF;
}

// What the user types is no mark of the control.
bool TextIsContent(const WindowFacts& facts) {
    std::wstring name = facts.className;
    std::transform(name.begin(), name.end(), name.begin(),
                   [](wchar_t c) { return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c + 32) : c; });
    return name.find(L"edit") != name.npos || name.find(L"combobox") != name.npos;
}

std::wstring NameOf(const WindowFacts& facts) {
    std::wstring text = facts.text.substr(0, facts.text.find_first_of(L"\r\n"));
    if (text.size() > kMostNameCharacters) text.replace(kMostNameCharacters, text.npos, L"...");
    return text.empty() ? facts.className : facts.className + L" \"" + text + L"\"";
}

}  // namespace

store::TestObject Identify(const WindowFacts& facts) {
    const bool byText = !facts.text.empty() && !HasNumber(facts) && !TextIsContent(facts);
    return {NameOf(facts),
            {Text(L"class", facts.className, true), Text(L"text", facts.text, byText),
             Number(L"window id", facts.id, HasNumber(facts)),
             Text(L"process name", facts.processName, false), Truth(L"enabled", facts.enabled),
             Truth(L"visible", facts.visible), Number(L"x", facts.x, false), Number(L"y", facts.y, false),
             Number(L"width", facts.width, false), Number(L"height", facts.height, false)}};
}

}  // namespace tovarin

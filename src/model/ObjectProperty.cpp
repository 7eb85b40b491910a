#include "model/ObjectProperty.h"

#include <algorithm>
#include <utility>

#include "com/Bstr.h"
#include "com/Guard.h"

namespace recoveryui::model {
namespace {

bool IsSimple(VARTYPE type) {
    switch (type) {
        case VT_EMPTY:
        case VT_NULL:
        case VT_BSTR:
        case VT_BOOL:
        case VT_I1:
        case VT_I2:
        case VT_I4:
        case VT_I8:
        case VT_INT:
        case VT_UI1:
        case VT_UI2:
        case VT_UI4:
        case VT_UI8:
        case VT_UINT:
        case VT_R4:
        case VT_R8:
        case VT_CY:
        case VT_DATE:
        case VT_DECIMAL: return true;
        default: return false;
    }
}

// No object has more; a count beyond it is no count.
constexpr long kMostProperties = 10'000;

HRESULT Convert(const com::Variant& from, VARTYPE type, com::Variant& to) {
    return VariantChangeTypeEx(to.Put(), const_cast<VARIANT*>(&from.Get()), LOCALE_INVARIANT,
                               VARIANT_ALPHABOOL, type);
}

}  // namespace

std::vector<ObjectProperty> PropertiesOf(ITestObject* object) {
    std::vector<ObjectProperty> properties;
    long count = 0;
    if (!object || FAILED(object->GetPropertyCount(&count))) return properties;
    for (long index = 0; index < std::min(count, kMostProperties); ++index) {
        ObjectProperty property;
        com::Bstr name;
        long isRegex = 0, isChecked = 0;
        if (FAILED(object->GetProperty(index, name.Put(), property.value.Put(), &isRegex, &isChecked)))
            continue;
        property.index = index;
        property.name = name.Text();
        property.isRegex = isRegex != 0;
        property.isChecked = isChecked != 0;
        properties.push_back(std::move(property));
    }
    return properties;
}

std::vector<ObjectProperty> Identifying(std::vector<ObjectProperty> properties) {
    const auto isChecked = [](const ObjectProperty& property) { return property.isChecked; };
    if (std::any_of(properties.begin(), properties.end(), isChecked))
        std::erase_if(properties, [&](const ObjectProperty& property) { return !isChecked(property); });
    return properties;
}

std::optional<std::wstring> TextOfValue(const com::Variant& value) {
    com::Variant text;
    if (!IsSimple(value.Type())) return std::nullopt;
    if (value.Type() == VT_EMPTY || value.Type() == VT_NULL) return std::wstring();
    if (FAILED(Convert(value, VT_BSTR, text))) return std::nullopt;
    return std::wstring(text.Text());
}

com::Variant ValueFromText(const std::wstring& text, const com::Variant& like, bool isRegex) {
    com::Variant typed(text), converted;
    const VARTYPE type = like.Type();
    if (isRegex || type == VT_EMPTY || type == VT_NULL || FAILED(Convert(typed, type, converted)))
        return typed;
    return converted;
}

}  // namespace recoveryui::model

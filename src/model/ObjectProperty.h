// One property by which a test object is identified.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "HostInterfaces.h"
#include "com/Variant.h"

namespace recoveryui::model {

struct ObjectProperty {
    long index = 0;  // by which the object knows it
    std::wstring name;
    com::Variant value;
    bool isRegex = false;
    bool isChecked = false;  // takes part in the identification
};

// All properties in the object's order; those that cannot be read are left out.
std::vector<ObjectProperty> PropertiesOf(ITestObject* object);
// The checked ones; all of them when none is checked, so that there is something to choose from.
std::vector<ObjectProperty> Identifying(std::vector<ObjectProperty> properties);

// A simple value as text; nothing for arrays, objects and the like. The same in every locale.
std::optional<std::wstring> TextOfValue(const com::Variant& value);
// What a person typed, as a value of the same type as `like` where the text allows it. A regular expression
// is always a text.
com::Variant ValueFromText(const std::wstring& text, const com::Variant& like, bool isRegex);

}  // namespace recoveryui::model

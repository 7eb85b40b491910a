// Test objects without windows.
#pragma once

#include "objects/screen/TestObject.h"

namespace recoveryui::test {

// An edit box "Name" in a dialog "Login" with properties of every sort; "text" and "x" are checked.
inline com::Ptr<tovarin::TestObject> LoginName() {
    using enum tovarin::store::ValueType;
    constexpr auto kComplex = static_cast<tovarin::store::ValueType>(VT_UNKNOWN);
    const tovarin::store::TestObject dialog{
        L"Login", {{L"text", {Text, 0, 0, L"Log in"}, 0, 1}, {L"enabled", {Boolean, 1}}}},
        edit{L"Name",
             {{L"text", {Text, 0, 0, L"Your name"}, 0, 1},
              {L"x", {Int32, 12}, 0, 1},
              {L"items", {kComplex}},
              {L"visible", {Boolean, 1}}}};
    return tovarin::TestObject::Make(edit,
                                     tovarin::TestObject::Make(dialog, com::Ptr<tovarin::TestObject>()));
}

// `levels` objects of no properties, of which the innermost is given.
inline com::Ptr<tovarin::TestObject> Nested(int levels) {
    com::Ptr<tovarin::TestObject> object;
    for (; levels > 0; --levels)
        object = tovarin::TestObject::Make(tovarin::store::TestObject{L"object", {}}, object);
    return object;
}

}  // namespace recoveryui::test

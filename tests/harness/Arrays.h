// The arrays that host objects take, filled in one go.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

#include "com/SafeArray.h"

namespace recoveryui::test {

// A safe array of elements that each are made of one of the values.
template <class Element, class Value>
com::CVtlSafeArray<Element> ArrayOf(const std::vector<Value>& values) {
    com::CVtlSafeArray<Element> array;
    EXPECT_EQ(array.Create(static_cast<ULONG>(values.size())), S_OK);
    for (size_t i = 0; i < values.size(); ++i) {
        EXPECT_EQ(array.PutElement(static_cast<LONG>(i),
                                   static_cast<typename com::CVtlSafeArray<Element>::Owner>(values[i])),
                  S_OK);
    }
    return array;
}

}  // namespace recoveryui::test

// The hierarchy of a test object as objects: built from its parents, kept in an array, named for people.
#pragma once

#include <string>
#include <vector>

#include "com/Ptr.h"
#include "com/SafeArray.h"

namespace recoveryui::model {

using ObjectChain = std::vector<com::Ptr<IDispatch>>;

// The object and its parents, the top-level one first. Empty when the chain of parents does not end.
ObjectChain ChainOf(IDispatch* object);

// The same as an array of objects, and back; elements that hold no object are left out.
com::CVtlSafeArray<VARIANT> ToArray(const ObjectChain& chain);
ObjectChain FromArray(const com::CVtlSafeArray<VARIANT>& array);

// What a person knows the object by: its own name, else its class.
std::wstring DisplayNameOf(IDispatch* object);

}  // namespace recoveryui::model

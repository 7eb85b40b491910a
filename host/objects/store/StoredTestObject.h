// Test objects as they come out of a recovery file, and how any test object goes into one.
#pragma once

#include "HostInterfaces.h"
#include "com/Ptr.h"
#include "objects/store/StoreModel.h"

namespace tovarin {

// The first object of a hierarchy, which reaches the others through its property "parent"; empty for an
// empty hierarchy.
recoveryui::com::Ptr<ITestObject> RestoreTestObject(const store::Hierarchy& hierarchy);

// An object and its parents. A foreign object is asked through its public interfaces.
[[nodiscard]] HRESULT WriteTestObject(ITestObject* object, store::Hierarchy& hierarchy);

}  // namespace tovarin

// Variants from and to the simple values that a recovery file holds.
#pragma once

#include "com/Variant.h"
#include "objects/store/StoreModel.h"

namespace tovarin {

// DISP_E_BADVARTYPE for objects, arrays and other types that a file cannot hold.
[[nodiscard]] HRESULT ToValue(const VARIANT& variant, store::Value& value);
recoveryui::com::Variant ToVariant(const store::Value& value);

}  // namespace tovarin

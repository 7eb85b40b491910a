// The creatable classes of this module.
#pragma once

#include <span>

#include "com/ClassTable.h"

namespace tovarin {

std::span<const recoveryui::com::ClassEntry> Classes() noexcept;

}  // namespace tovarin

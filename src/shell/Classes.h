// Every class that the module can create. Entry points, registration and their tests read this table.
#pragma once

#include <span>

#include "com/ClassTable.h"

namespace recoveryui::shell {

std::span<const com::ClassEntry> Classes() noexcept;

}  // namespace recoveryui::shell

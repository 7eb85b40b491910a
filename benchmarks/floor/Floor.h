#pragma once

#include <guiddef.h>

namespace recoveryui::bench {

// {5A0C9C0E-6C1B-4B5C-9B0A-3C7D7C1D8E11}
inline constexpr CLSID kClsidFloor = {
    0x5a0c9c0e, 0x6c1b, 0x4b5c, {0x9b, 0x0a, 0x3c, 0x7d, 0x7c, 0x1d, 0x8e, 0x11}};

}  // namespace recoveryui::bench

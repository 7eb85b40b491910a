// The class ids of the stand-ins. A host names them in its manifest; the component knows the ProgIDs only.
#pragma once

#include <windows.h>

namespace tovarin {

// {7781A5B4-4402-4C9C-9B14-E1F27319F653}
inline constexpr CLSID kClsidCallJournal = {
    0x7781a5b4, 0x4402, 0x4c9c, {0x9b, 0x14, 0xe1, 0xf2, 0x73, 0x19, 0xf6, 0x53}};
// {DEAACD29-1282-48CF-9442-81A5907CFF53}
inline constexpr CLSID kClsidObjectRack = {
    0xdeaacd29, 0x1282, 0x48cf, {0x94, 0x42, 0x81, 0xa5, 0x90, 0x7c, 0xff, 0x53}};

}  // namespace tovarin

// Exceptions that report an exhausted heap, and the memory that the run-time library keeps for them.
#pragma once

namespace recoveryui::com {

// From now on an exception of this thread needs nothing from the heap. The run-time library allocates what
// it keeps for a thread, and the lock of its reserve, with the first exception: where the heap has nothing
// left by then, the process ends.
void PrepareExceptions() noexcept;

// Gives the reserve back: 70 kilobytes that would stay each time the module is unloaded. Nothing may be
// thrown afterwards.
void ReleaseExceptionReserve() noexcept;

}  // namespace recoveryui::com

// What RecoveryUI.dll asks of the world outside, and the order that one of these calls fails. The calls are
// caught in the import table of the loaded module: the product has no part in it.
#pragma once

#include <windows.h>

#include <string>

namespace recoveryui::proof {

enum class Outside {
    Memory,    // heap, BSTRs, safe arrays, task memory
    Platform,  // creation of objects, files, registry, clipboard, windows, pictures
    Host,      // operations on host objects, by the journal of the stand-ins
};
inline constexpr const char* kOutsideNames[] = {"memory", "platform", "host"};

// The nth call of a kind from now on answers a failure; with `lasting`, every later one too.
struct Fault {
    Outside outside = Outside::Memory;
    long nth = 0;
    bool lasting = false;
};

class OutwardCalls {
public:
    // Catches the calls of the module for the rest of the process.
    static void Catch(HMODULE module);

    // Counts the calling thread's calls from now on; a fault with nth 0 fails none.
    static void Order(const Fault& fault);
    // Nothing fails from here on; may be called by another thread.
    static void Lift();
    // Ends the order.
    static void Stop();
    // The calls of a kind since the order.
    static long Calls(Outside outside);
    static bool HasFailed();
    static bool IsLasting();
    // The call that failed first, "malloc".
    static std::string Failed();

    // What the module has allocated on the heap and not freed.
    struct Heap {
        long blocks = 0;
        long long bytes = 0;
    };
    static Heap LiveHeap();
    // Blocks that are alive and were allocated since the last order: size and place in the module.
    static std::string Leaks();
};

}  // namespace recoveryui::proof

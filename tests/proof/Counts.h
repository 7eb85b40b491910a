// What a process holds of everything that can leak.
#pragma once

#include <array>
#include <string>

namespace recoveryui::proof {

struct Counts {
    long windows = 0, menus = 0, icons = 0;
    std::array<long, 128> gdi{};        // by the platform's number for the kind
    long components = 0, standIns = 0;  // 1: something of the module lives
    long taskMemory = 0;                // blocks of COM's allocator, BSTRs and safe arrays among them
    long heapBlocks = 0;
    long long heapBytes = 0;

    // Counts the allocations of COM's allocator from now on. BSTRs are seen when the variable OANOCACHE was
    // set before the process began.
    static void WatchTaskMemory();
    static Counts Take();

    bool operator==(const Counts&) const = default;
    // What this has more or less than another: "bitmaps +2 ".
    std::string Against(const Counts& before) const;
};

}  // namespace recoveryui::proof

// What a process holds of everything that can leak.
#pragma once

#include <map>
#include <string>

namespace recoveryui::proof {

struct Counts {
    std::map<std::string, long long> gdi;  // by the kind
    // "windows", "live component" (1: something of the module lives), "heap bytes" ...
    std::map<std::string, long long> others;

    // Counts the allocations of COM's allocator from now on, BSTRs and safe arrays among them. BSTRs are seen
    // when the variable OANOCACHE was set before the process began.
    static void WatchTaskMemory();
    static Counts Take();

    bool operator==(const Counts&) const = default;
    // What this has more or less than another: "bitmaps +2 ".
    std::string Against(const Counts& before) const;
};

}  // namespace recoveryui::proof

// One playing of a journey under one fault, and what is wrong afterwards.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "proof/Counts.h"
#include "proof/Journey.h"
#include "proof/OutwardCalls.h"

namespace recoveryui::proof {

struct Playing {
    bool hasFailed = false;  // the journey made the nth call
    std::string failed;      // which it was
    bool isDone = false;     // and still came to its end
    std::string left;        // what there is more than before, in words
    std::vector<std::string> problems;
};

class Rehearsal {
public:
    // Loads both modules and plays the journey without a fault; throws when that does not work.
    explicit Rehearsal(const Journey& journey);

    Playing Play(const Fault& fault);
    // The calls of a kind in a playing without a fault.
    long Calls(Outside outside) const { return calls_[static_cast<size_t>(outside)]; }

private:
    Playing PlayOnce(const Fault& fault, unsigned patience);

    const Journey& journey_;
    std::vector<std::wstring> marks_;
    std::array<long, std::size(kOutsideNames)> calls_{};
};

}  // namespace recoveryui::proof

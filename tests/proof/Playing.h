// One playing of a journey under one fault, and what is wrong afterwards.
#pragma once

#include <string>
#include <vector>

#include "com/Ptr.h"
#include "proof/Counts.h"
#include "proof/Journey.h"
#include "proof/OutwardCalls.h"

struct ICallJournal;

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
    // Of a playing without a fault: the calls of a kind, by whoever makes them.
    std::vector<std::uint64_t> Survey(Outside outside);

private:
    Playing PlayOnce(const Fault& fault, unsigned patience);
    // A playing without a fault, which tells the states at which a user may stop.
    void Rehearse();
    std::string WindowsLeft() const;

    const Journey& journey_;
    std::vector<std::wstring> marks_;
};

}  // namespace recoveryui::proof

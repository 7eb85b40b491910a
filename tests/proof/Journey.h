// A way of a user through the product, played again and again while calls fail.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "com/Guard.h"
#include "proof/Actor.h"

namespace recoveryui::proof {

// One playing of a journey. What its constructor and destructor do is done without faults.
class Stage {
public:
    virtual ~Stage() = default;

    // The journey; an object that it cannot begin with ends it.
    void Perform(Actor& actor) {
        try {
            isDone_ = Play(actor);
        } catch (const com::HResultError&) {
        }
    }
    // What is to be kept or changed as a whole: files, objects, values. Asked without faults.
    virtual std::wstring State() = 0;
    // The journey has reported success to its caller: its last state must have been reached.
    bool IsDone() const { return isDone_; }
    // Promises that were broken on the way; `State` may find some.
    const std::vector<std::string>& Broken() const { return broken_; }
    // The states at which a playing that is given up may stop, the first and the last included.
    const std::vector<std::wstring>& Marks() const { return marks_; }
    // Notes the states from here on; not while calls fail.
    void MarkStates() {
        isMarking_ = true;
        Mark();
    }
    void Mark() {
        if (isMarking_) marks_.push_back(State());
    }

protected:
    // Everything that the user and the host do; true when success was reported.
    virtual bool Play(Actor& actor) = 0;
    bool IsMarking() const { return isMarking_; }
    void Promise(bool kept, const std::string& what) {
        if (!kept) broken_.push_back(what);
    }

private:
    bool isDone_ = false, isMarking_ = false;
    std::vector<std::string> broken_;
    std::vector<std::wstring> marks_;
};

struct Journey {
    const char* name;
    std::unique_ptr<Stage> (*make)();
    const char* sign = nullptr;  // of a planted journey: what must be said of it
};

template <class Made, class... Arguments>
std::unique_ptr<Stage> Make(Arguments... arguments) {
    return std::make_unique<Made>(arguments...);
}

extern const std::vector<Journey> wizardJourneys, managerJourneys, settingsJourneys, shellJourneys;
// Journeys with a fault of their own, which must be found.
extern const std::vector<Journey> plantedJourneys;

}  // namespace recoveryui::proof

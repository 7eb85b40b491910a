// Test objects keep their identification themselves, and those of a scenario that is being edited are the
// scenario's own. This gives back what they held when the user cancels.
#pragma once

#include <vector>

#include "model/ObjectProperty.h"
#include "model/TestObjects.h"

namespace recoveryui::wizard {

class IdentificationSnapshot {
public:
    // Remembers the identification of every member.
    void Take(const model::ObjectChain& chain);
    // Writes back what has changed since.
    void Restore() const;

private:
    struct Member {
        com::Ptr<ITestObject> object;
        std::vector<model::ObjectProperty> properties;
    };

    std::vector<Member> members_;
};

}  // namespace recoveryui::wizard

#include "wizard/IdentificationSnapshot.h"

namespace recoveryui::wizard {
namespace {

void Restore(ITestObject* object, const model::ObjectProperty& before, const model::ObjectProperty& now) {
    const bool sameValue = before.isRegex == now.isRegex && before.value.Type() == now.value.Type() &&
                           model::TextOfValue(before.value) == model::TextOfValue(now.value);
    // One property that cannot be put back does not keep the others from it.
    if (!sameValue) object->SetPropertyValue(before.index, before.value.Get(), before.isRegex);
    if (before.isChecked != now.isChecked) object->SetPropertyChecked(before.index, before.isChecked);
}

}  // namespace

void IdentificationSnapshot::Take(const model::ObjectChain& chain) {
    members_.clear();
    for (const auto& object : chain) {
        if (auto member = com::Query<ITestObject>(object.Get())) {
            auto properties = model::PropertiesOf(member.Get());
            members_.push_back({std::move(member), std::move(properties)});
        }
    }
}

void IdentificationSnapshot::Restore() const {
    for (const Member& member : members_) {
        for (const auto& now : model::PropertiesOf(member.object.Get())) {
            for (const auto& before : member.properties) {
                if (before.index == now.index) wizard::Restore(member.object.Get(), before, now);
            }
        }
    }
}

}  // namespace recoveryui::wizard

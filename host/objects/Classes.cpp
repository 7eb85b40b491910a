#include "objects/Classes.h"

#include "objects/CallJournal.h"
#include "objects/ClassIds.h"
#include "objects/Journal.h"
#include "objects/ObjectRack.h"

namespace tovarin {
namespace {

// Creation is a call like any other: it is written down, and it can be made to fail.
template <class Thing>
HRESULT Create(REFIID iid, void** object) noexcept {
    JournalCall call(Thing::kProgId, L"Create");
    return call.Answer([&] { return Thing::Create(iid, object); });
}

template <class Thing>
constexpr com::ClassEntry Row(const CLSID& clsid, const wchar_t* description) {
    return {&clsid, Thing::kProgId, description, &Create<Thing>};
}

constexpr com::ClassEntry kClasses[] = {
    {&kClsidCallJournal, CallJournal::kProgId, L"Call journal", &CallJournal::Create},
    Row<ObjectRack>(kClsidObjectRack, L"Object rack"),
};

}  // namespace

std::span<const com::ClassEntry> Classes() noexcept {
    return kClasses;
}

}  // namespace tovarin

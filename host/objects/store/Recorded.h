// A trigger or an operation whose content is one record of the file's model, handed out as it was given.
#pragma once

#include "objects/HostObject.h"
#include "objects/store/Storable.h"

namespace tovarin {

// `HostObject<Thing, IThing, Recorded<store::PopUpTrigger, store::Trigger>>`
template <class Record, class Part>
class Recorded : public Storable<Part> {
public:
    HRESULT STDMETHODCALLTYPE Write(Part& part) noexcept override {
        return com::Guarded([&] { part = record_; });
    }

protected:
    ~Recorded() = default;

    Record record_;
};

}  // namespace tovarin

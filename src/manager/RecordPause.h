// The host's record manager, suspended while the wizard runs.
#pragma once

#include <windows.h>

#include "HostInterfaces.h"
#include "com/Ptr.h"

struct IObjectRack;

namespace recoveryui::manager {

// Resumes at the end of its life what it suspended.
class RecordPause {
public:
    RecordPause() noexcept = default;
    ~RecordPause();
    RecordPause(const RecordPause&) = delete;
    RecordPause& operator=(const RecordPause&) = delete;

    // Suspends the record manager if it is active. Fails when it is missing, or cannot be suspended.
    [[nodiscard]] HRESULT Begin(IObjectRack* rack);
    // Whether the host has one at all.
    bool Found() const noexcept { return manager_ != nullptr; }

private:
    com::Ptr<IRecordMgr> manager_;
    bool suspended_ = false;
};

}  // namespace recoveryui::manager

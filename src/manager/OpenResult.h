#pragma once

#include <cstdint>

namespace recoveryui::manager {

// Where a load leaves the opening of a file.
enum class OpenAction {
    Refuse,       // the file that was open stays as it was
    TryEditing,   // load the path into the repository at hand, for editing
    KeepEditing,  // open for editing
    KeepViewing,  // the fresh read-only repository takes the place of the one at hand
};

struct OpenResult {
    OpenAction action;
    int message = 0;  // a string id, 0 for none

    bool operator==(const OpenResult&) const = default;
};

// After the first load, read-only into a fresh repository; `code` is its HRESULT.
OpenResult AfterViewingLoad(std::int32_t code);

// After the second load, for editing.
OpenResult AfterEditingLoad(std::int32_t code);

// The message for a save that failed: a full disk has one of its own (about a drive).
int SaveFailureMessage(std::int32_t code);

}  // namespace recoveryui::manager

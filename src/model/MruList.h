#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace recoveryui::model {

inline constexpr int kNoEntry = -1;  // also the combo's error value

// The most that every recently-used list of this module keeps.
inline constexpr int kRecentMaximum = 4;

// What `CMRUComboBox` does to its list, in this order: delete the match, delete the last entry, insert
// the text and select it. kNoEntry leaves a step out.
struct MruPlan {
    int result = kNoEntry;
    int deleteMatch = kNoEntry;
    int deleteLast = kNoEntry;  // counted after the match is gone
    int insertAt = kNoEntry;

    bool operator==(const MruPlan&) const = default;
};

// A bound list of `count` entries, at most `maximum`; `match` is what the platform's prefix search found.
struct MruState {
    int count = 0;
    int maximum = kRecentMaximum;
    int match = kNoEntry;
};

// Adds the text as the most recent entry. Empty text is refused: the search cannot find it, so it
// would push out the oldest entry each time.
MruPlan PlanAddString(const MruState& list, std::wstring_view text);

// Puts the text at `index`, refused where the shortened list would not reach.
MruPlan PlanInsertString(const MruState& list, int index, std::wstring_view text);

// The first `maximum` non-empty entries of a stored value.
std::vector<std::wstring> SplitEntries(std::wstring_view value, int maximum);

// The value to store; empty entries are skipped.
std::wstring JoinEntries(std::span<const std::wstring> entries);

}  // namespace recoveryui::model

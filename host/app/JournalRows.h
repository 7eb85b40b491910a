// What the journal shows: the newest calls, in the order in which they were answered.
#pragma once

#include <array>
#include <deque>
#include <string>
#include <vector>

namespace tovarin {

struct JournalRow {
    static constexpr int kColumns = 5;
    // Time, object, operation, arguments, result.
    std::array<std::wstring, kColumns> cells;
};

class JournalRows {
public:
    explicit JournalRows(size_t most = 100'000) : most_(most) {}

    // Gives how many of the oldest rows had to go. They go in blocks, so that a full journal does not
    // move with every call.
    size_t Add(std::vector<JournalRow> rows);
    void Clear() { rows_.clear(); }
    size_t Count() const { return rows_.size(); }
    const JournalRow& At(size_t index) const { return rows_.at(index); }

    // Lines of cells separated by tabs, for the clipboard. Control characters inside a cell become blanks.
    std::wstring TextOf(const std::vector<size_t>& indices) const;

private:
    size_t most_;
    std::deque<JournalRow> rows_;
};

// "Recovery Scenario &Manager...;Displays ...": the menu text and the prompt after the first ";".
struct MenuText {
    explicit MenuText(const std::wstring& text);

    std::wstring caption;
    std::wstring prompt;
};

}  // namespace tovarin

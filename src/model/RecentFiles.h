#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace recoveryui::model {

// The Manager's recently used files: at most four, the latest first, each listed once. Paths are
// compared exactly.
class RecentFiles {
public:
    // Takes the stored value, repeats and empty entries left out.
    explicit RecentFiles(std::wstring_view stored = {});

    // Puts the path in front; the oldest leaves a full list.
    void Add(std::wstring path);

    const std::vector<std::wstring>& Entries() const { return entries_; }

    // The value to store.
    std::wstring Joined() const;

private:
    std::vector<std::wstring> entries_;
};

}  // namespace recoveryui::model

#include "model/RecentFiles.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "model/MruList.h"

namespace recoveryui::model {

RecentFiles::RecentFiles(std::wstring_view stored) {
    for (std::wstring& entry : SplitEntries(stored, std::numeric_limits<int>::max())) {
        if (entries_.size() == kRecentMaximum) break;
        if (std::find(entries_.begin(), entries_.end(), entry) == entries_.end())
            entries_.push_back(std::move(entry));
    }
}

void RecentFiles::Add(std::wstring path) {
    if (path.empty()) return;
    std::erase(entries_, path);
    if (entries_.size() == kRecentMaximum) entries_.pop_back();
    entries_.insert(entries_.begin(), std::move(path));
}

std::wstring RecentFiles::Joined() const {
    return JoinEntries(entries_);
}

}  // namespace recoveryui::model

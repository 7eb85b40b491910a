#include "manager/AddedScenarios.h"

namespace recoveryui::manager {

void AddedScenarios::Add(const std::wstring& name, bool toCurrent, bool toDefault) {
    if (!toCurrent && !toDefault) return;
    for (Entry& entry : changing_) {
        if (entry.name != name) continue;
        entry.toCurrent |= toCurrent;
        entry.toDefault |= toDefault;
        return;
    }
    changing_.push_back({name, toCurrent, toDefault});
}

void AddedScenarios::Rename(const std::wstring& from, const std::wstring& to) {
    if (from == to) return;
    Remove(to);
    for (Entry& entry : changing_)
        if (entry.name == from) entry.name = to;
}

void AddedScenarios::Remove(const std::wstring& name) {
    std::erase_if(changing_, [&](const Entry& entry) { return entry.name == name; });
}

void AddedScenarios::FileSaved(const std::wstring& path) {
    saved_ = changing_;
    savedPath_ = path;
}

void AddedScenarios::FileLeft() {
    File current{savedPath_, {}}, defaults{savedPath_, {}};
    for (const Entry& entry : saved_) {
        if (entry.toCurrent) current.names.push_back(entry.name);
        if (entry.toDefault) defaults.names.push_back(entry.name);
    }
    if (!current.names.empty()) forCurrent_.push_back(std::move(current));
    if (!defaults.names.empty()) forDefault_.push_back(std::move(defaults));
    changing_.clear();
    saved_.clear();
}

}  // namespace recoveryui::manager

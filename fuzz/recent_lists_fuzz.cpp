// Stored lists of recent entries, and what the combo box makes of one.
#include <algorithm>

#include "Fuzz.h"
#include "model/MruList.h"
#include "model/RecentFiles.h"

namespace recoveryui::fuzz {
namespace {

using namespace model;

void CarryOut(const MruPlan& plan, std::vector<std::wstring>& list, const std::wstring& text) {
    const auto remove = [&](int at) {
        if (at == kNoEntry) return;
        Require(at >= 0 && at < static_cast<int>(list.size()), "an entry that is there is deleted");
        list.erase(list.begin() + at);
    };
    remove(plan.deleteMatch);
    remove(plan.deleteLast);
    if (plan.insertAt == kNoEntry) return;
    Require(plan.insertAt <= static_cast<int>(list.size()), "the place of the entry exists");
    list.insert(list.begin() + plan.insertAt, text);
}

void Combo(Input input) {
    std::vector<std::wstring> list;
    while (!input.Empty()) {
        const int place = static_cast<int>(input.Below(7)) - 1;
        const std::wstring text = input.Line();
        const auto match = std::find_if(list.begin(), list.end(),
                                        [&](const std::wstring& each) { return each.starts_with(text); });
        const MruState state{
            static_cast<int>(list.size()), kRecentMaximum,
            match == list.end() || text.empty() ? kNoEntry : static_cast<int>(match - list.begin())};
        const MruPlan plan = place < 0 ? PlanAddString(state, text) : PlanInsertString(state, place, text);
        const std::size_t before = list.size();
        CarryOut(plan, list, text);
        Require(list.size() <= kRecentMaximum && list.size() >= before, "the list is full at most");
        if (plan.result != kNoEntry)
            Require(list.at(static_cast<std::size_t>(plan.result)).starts_with(text), "the entry is there");
        Require(place >= 0 || text.empty() || plan.result == 0, "an added entry is the first");
    }
}

}  // namespace

void Fuzz(Input input) {
    const std::wstring text = Input(input).Rest();
    const auto entries = SplitEntries(text, kRecentMaximum);
    Require(entries.size() <= kRecentMaximum, "no more entries than are kept");
    const std::wstring joined = JoinEntries(entries);
    Require(SplitEntries(joined, kRecentMaximum) == entries, "what was read survives being written");
    Require(joined.size() <= text.size(), "the stored form does not grow");

    RecentFiles files(text);
    Require(RecentFiles(files.Joined()).Entries() == files.Entries(), "the files survive being written");
    for (std::wstring path : Input(input).Lines(6)) {
        std::replace(path.begin(), path.end(), L';', L',');
        files.Add(path);
        auto sorted = files.Entries();
        Require(path.empty() || sorted.front() == path, "the latest is the first");
        std::sort(sorted.begin(), sorted.end());
        Require(sorted.size() <= kRecentMaximum &&
                    std::adjacent_find(sorted.begin(), sorted.end()) == sorted.end(),
                "four at most, each once");
        Require(RecentFiles(files.Joined()).Entries() == files.Entries(), "the files survive being written");
    }
    Combo(input);
}

}  // namespace recoveryui::fuzz

// Things under unique names, in an order of their own. Names differ when their keys do.
#pragma once

#include <list>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tovarin::store {

template <class Item>
class NamedList {
public:
    struct Entry {
        std::wstring name;
        Item item;
    };
    // What makes names equal, such as letter case taken away.
    using Key = std::wstring (*)(std::wstring_view name);

    explicit NamedList(Key key) : key_(key) {}
    NamedList(NamedList&&) noexcept = default;
    NamedList& operator=(NamedList&&) noexcept = default;

    // Null when there is none of that name.
    Entry* Find(std::wstring_view name) {
        const auto found = places_.find(key_(name));
        return found != places_.end() ? &*found->second : nullptr;
    }
    // A new name goes last. An existing one keeps its place, with the new spelling, if it may be
    // replaced; otherwise false.
    bool Add(std::wstring_view name, Item item, bool replace) {
        std::wstring key = key_(name);
        if (const auto found = places_.find(key); found != places_.end()) {
            if (replace) *found->second = Entry{std::wstring(name), std::move(item)};
            return replace;
        }
        entries_.push_back({std::wstring(name), std::move(item)});
        try {
            places_.emplace(std::move(key), std::prev(entries_.end()));
        } catch (...) {
            entries_.pop_back();
            throw;
        }
        return true;
    }
    // False when there is none of that name.
    bool Remove(std::wstring_view name) {
        const auto found = places_.find(key_(name));
        if (found == places_.end()) return false;
        entries_.erase(found->second);
        places_.erase(found);
        return true;
    }
    std::size_t Size() const noexcept { return entries_.size(); }

    auto begin() noexcept { return entries_.begin(); }
    auto end() noexcept { return entries_.end(); }

private:
    Key key_;
    std::list<Entry> entries_;
    std::unordered_map<std::wstring, typename std::list<Entry>::iterator> places_;
};

}  // namespace tovarin::store

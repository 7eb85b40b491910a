// The hierarchy of a test object, from the top-level parent down to the object itself.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace recoveryui::model {

// No application nests deeper; a chain that does goes round in circles.
inline constexpr std::size_t kDeepestHierarchy = 1024;

// The object and its parents, the outermost first. `parentOf` gives an object's parent, or nothing when it
// has none. Empty when the chain does not end.
template <typename Object, typename ParentOf>
std::vector<Object> HierarchyOf(Object object, ParentOf parentOf) {
    std::vector<Object> chain;
    for (std::optional<Object> next = std::move(object); next; next = parentOf(chain.back())) {
        if (chain.size() == kDeepestHierarchy) return {};
        chain.push_back(std::move(*next));
    }
    std::reverse(chain.begin(), chain.end());
    return chain;
}

// The first member that identifies nothing, by the number of checked properties of each member; nothing
// when every member has at least one.
inline std::optional<std::size_t> FirstUnidentified(std::span<const std::size_t> checkedProperties) {
    const auto found = std::find(checkedProperties.begin(), checkedProperties.end(), 0U);
    if (found == checkedProperties.end()) return std::nullopt;
    return static_cast<std::size_t>(std::distance(checkedProperties.begin(), found));
}

}  // namespace recoveryui::model

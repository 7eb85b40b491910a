#include <gtest/gtest.h>

#include "model/ObjectHierarchy.h"

namespace recoveryui::model {
namespace {

TEST(ObjectHierarchyTest, RunsFromTheOutermostParentDownToTheObject) {
    const auto parent = [](int object) {
        return object == 0 ? std::nullopt : std::optional<int>(object - 1);
    };
    EXPECT_EQ(HierarchyOf(3, parent), (std::vector<int>{0, 1, 2, 3}));
    EXPECT_EQ(HierarchyOf(0, parent), std::vector<int>{0});
    EXPECT_EQ(HierarchyOf(static_cast<int>(kDeepestHierarchy) - 1, parent).size(), kDeepestHierarchy);
    EXPECT_TRUE(HierarchyOf(1, [](int object) { return std::optional<int>(object); }).empty());

    EXPECT_EQ(FirstUnidentified(std::vector<std::size_t>{2, 1}), std::nullopt);
    EXPECT_EQ(FirstUnidentified(std::vector<std::size_t>{2, 0, 0}), 1U);
}

}  // namespace
}  // namespace recoveryui::model

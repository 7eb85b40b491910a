#include "model/Activation.h"

#include <gtest/gtest.h>

#include "model/DefaultsComparison.h"
#include "resources/ids.h"

namespace recoveryui::model {
namespace {

using Item = ActivationItem;
using Records = std::vector<ScenarioAssociation>;

const Records kNone;
const Records kEvery{{L"f", L"P", true, -1}, {L"f", L"Q", true, 1}};
const Records kError{{L"f", L"P", true, 1}, {L"f", L"Q", true, -1}};

TEST(Activation, TheStoredPairSelectsAnItem) {
    const struct {
        std::optional<std::int32_t> enabled;
        const Records& records;
        Item item;
    } cases[] = {
        {std::nullopt, kEvery, Item::None}, {0, kEvery, Item::Never},   {0, kNone, Item::Never},
        {1, kEvery, Item::EveryStep},       {1, kError, Item::OnError}, {1, kNone, Item::OnError},
        {-7, kEvery, Item::EveryStep},
    };
    for (const auto& c : cases) EXPECT_EQ(ActivationOnReading(c.enabled, c.records), c.item);
}

TEST(Activation, TheSelectedItemWritesAPair) {
    const struct {
        Item item;
        const Records& records;
        ActivationValues written;
    } cases[] = {
        {Item::EveryStep, kError, {1, -1}}, {Item::OnError, kEvery, {1, 1}}, {Item::Never, kEvery, {0, 1}},
        {Item::None, kEvery, {1, -1}},      {Item::None, kNone, {1, 1}},
    };
    for (const auto& c : cases) EXPECT_EQ(ActivationToWrite(c.item, c.records), c.written);
}

TEST(Activation, TheComboListsThreeItemsInOrder) {
    const struct {
        Item item;
        std::int32_t value;
        int text;
    } items[kActivationItems] = {{Item::EveryStep, -1, IDS_ACTIVATE_EVERY_STEP},
                                 {Item::OnError, 1, IDS_ACTIVATE_ON_ERROR},
                                 {Item::Never, 0, IDS_ACTIVATE_NEVER}};
    for (int i = 0; i < kActivationItems; ++i) {
        EXPECT_EQ(static_cast<int>(items[i].item), i);
        EXPECT_EQ(ActivationItemValue(items[i].item), items[i].value);
        EXPECT_EQ(ActivationText(items[i].item), items[i].text);
    }
    EXPECT_EQ(ActivationText(Item::None), 0);
}

TEST(Defaults, CanBeSetUnlessBothAreAbsentOrEqual) {
    using Stored = std::optional<std::wstring>;
    const struct {
        Stored current, defaults;
        bool can;
    } cases[] = {
        {std::nullopt, std::nullopt, false}, {L"a;b;1;1*", L"a;b;1;1*", false}, {L"", L"", false},
        {L"a;b;1;1*", std::nullopt, true},   {L"a;b;1;1*", L"A;b;1;1*", true},  {L"", std::nullopt, true},
        {std::nullopt, L"", true},
    };
    for (const auto& c : cases) EXPECT_EQ(CanSetAsDefault(c.current, c.defaults), c.can);
}

}  // namespace
}  // namespace recoveryui::model

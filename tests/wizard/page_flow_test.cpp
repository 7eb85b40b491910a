#include "wizard/PageFlow.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "resources/ids.h"
#include "wizard/TriggerChoice.h"
#include "wizard/WizardButtons.h"

namespace recoveryui::wizard {
namespace {

using enum model::TriggerKind;

TEST(PageFlowTest, EveryTriggerLeadsThroughItsPagesToTheListAndBack) {
    struct {
        model::TriggerKind kind;
        std::vector<int> pages;
    } const rows[] = {
        {PopUp, {IDD_POPUP}},
        {ObjectState, {IDD_SELECT_OBJECT, IDD_OBJECT_PROPS}},
        {Error, {IDD_SELECT_ERROR}},
        {Crash, {IDD_CRASH}},
    };
    for (const auto& row : rows) {
        int page = FirstTriggerPage(row.kind);
        for (const int expected : row.pages) {
            EXPECT_EQ(page, expected);
            page = PageOf(page).next;
        }
        EXPECT_EQ(page, IDD_OPERATION_LIST);
        page = LastTriggerPage(row.kind);
        for (auto expected = row.pages.rbegin(); expected != row.pages.rend(); ++expected) {
            EXPECT_EQ(page, *expected);
            page = PageOf(page).previous;
        }
        EXPECT_EQ(page, IDD_SELECT_TRIGGER);
    }
}

TEST(PageFlowTest, TheListLoopsThroughOperationsAndLeavesForTheFinish) {
    EXPECT_EQ(PageAfterOperationList(true, true), IDD_SELECT_OPERATION);
    EXPECT_EQ(PageAfterOperationList(true, false), IDD_SELECT_OPERATION);
    EXPECT_EQ(PageAfterOperationList(false, true), IDD_SELECT_OPERATION);
    const int ways[] = {IDD_OPERATION_CLICK, IDD_CLOSE_PROCESSES, IDD_OPERATION_FUNC};
    for (int choice = 0; choice < 3; ++choice) {
        const int page = PageAfterOperationChoice(static_cast<OperationChoice>(choice));
        EXPECT_EQ(page, ways[choice]);
        EXPECT_EQ(PageOf(page).previous, IDD_SELECT_OPERATION);
        EXPECT_EQ(PageOf(page).next, IDD_OPERATION_LIST);
    }
    EXPECT_EQ(PageAfterOperationChoice(OperationChoice::RestartWindows), IDD_OPERATION_LIST);

    int page = PageAfterOperationList(false, false);
    for (const int expected : {IDD_TEST_FLOW, IDD_SCEN_DESCRIPTION, IDD_SUMMARY, kNoPage}) {
        EXPECT_EQ(page, expected);
        if (page != kNoPage) page = PageOf(page).next;
    }
}

TEST(PageFlowTest, FifteenPagesEachWithItsPictureAndTopic) {
    const int order[] = {IDD_WELCOME,          IDD_SELECT_TRIGGER,   IDD_POPUP,          IDD_SELECT_OBJECT,
                         IDD_OBJECT_PROPS,     IDD_SELECT_ERROR,     IDD_CRASH,          IDD_OPERATION_LIST,
                         IDD_SELECT_OPERATION, IDD_OPERATION_CLICK,  IDD_OPERATION_FUNC, IDD_CLOSE_PROCESSES,
                         IDD_TEST_FLOW,        IDD_SCEN_DESCRIPTION, IDD_SUMMARY};
    const int bitmaps[] = {162, 163, 163, 163, 163, 163, 163, 164, 164, 164, 164, 164, 165, 166, 167};
    ASSERT_EQ(Pages().size(), std::size(order));
    std::set<std::wstring> topics;
    for (std::size_t i = 0; i < std::size(order); ++i) {
        const Page& page = Pages()[i];
        EXPECT_EQ(page.templateId, order[i]);
        EXPECT_EQ(page.bitmapId, bitmaps[i]);
        EXPECT_EQ(page.position, i == 0 ? Position::First : i == 14 ? Position::Last : Position::Middle);
        topics.insert(page.helpTopic);
    }
    EXPECT_EQ(topics.size(), std::size(order));
    EXPECT_THROW(PageOf(kNoPage), std::invalid_argument);
}

TEST(WizardButtonsTest, PositionAndReadinessDecideTheButtons) {
    EXPECT_EQ(WizardButtons(Position::First, true), 0x0Au);
    EXPECT_EQ(WizardButtons(Position::First, false), 0x08u);
    EXPECT_EQ(WizardButtons(Position::Middle, true), 0x0Bu);
    EXPECT_EQ(WizardButtons(Position::Middle, false), 0x09u);
    EXPECT_EQ(WizardButtons(Position::Last, true), 0x05u);
    EXPECT_EQ(WizardButtons(Position::Last, false), 0x09u);
    EXPECT_FALSE(WizardButtons(static_cast<Position>(3), true));
}

TEST(TriggerChoiceTest, TheFirstTwoRadioButtonsStandTheOtherWayRoundThanTheirKinds) {
    const model::TriggerKind kinds[] = {PopUp, ObjectState, Error, Crash};
    for (int radio = 0; radio < 4; ++radio) {
        EXPECT_EQ(TriggerKindAt(radio), kinds[radio]);
        EXPECT_EQ(RadioOfTriggerKind(static_cast<std::int32_t>(kinds[radio])), radio);
    }
    EXPECT_FALSE(TriggerKindAt(kNoRadio));
    EXPECT_FALSE(TriggerKindAt(4));
    EXPECT_EQ(InitialTriggerRadio(false, std::nullopt), 0);
    EXPECT_EQ(InitialTriggerRadio(true, 0), 1);
    EXPECT_EQ(InitialTriggerRadio(true, 4), kNoRadio);
    EXPECT_EQ(InitialTriggerRadio(true, std::nullopt), kNoRadio);
}

}  // namespace
}  // namespace recoveryui::wizard

#include "model/Kinds.h"

#include <gtest/gtest.h>

#include "model/Words.h"
#include "resources/ids.h"

namespace recoveryui::model {
namespace {

TEST(KindsTest, EveryKindHasItsWordAndOtherNumbersMeanNothing) {
    const int triggers[] = {IDS_TRIGGER_OBJECT_STATE, IDS_TRIGGER_POPUP, IDS_TRIGGER_ERROR,
                            IDS_TRIGGER_CRASH};
    const int summary[] = {IDS_OPERATION_KEYBOARD_OR_MOUSE, IDS_OPERATION_FUNCTION,
                           IDS_OPERATION_CLOSE_PROCESS, IDS_OPERATION_KEYBOARD_OR_MOUSE};
    const int listed[] = {IDS_LIST_KEYBOARD_CLICK, IDS_OPERATION_FUNCTION, IDS_OPERATION_CLOSE_PROCESS,
                          IDS_LIST_KEYBOARD_CLICK};
    for (int kind = 0; kind < 4; ++kind) {
        EXPECT_EQ(TriggerWord(TriggerKindFrom(kind).value()), triggers[kind]);
        EXPECT_EQ(OperationWord(OperationKindFrom(kind).value()), summary[kind]);
        EXPECT_EQ(OperationListWord(OperationKindFrom(kind).value()), listed[kind]);
    }
    for (const std::int32_t kind : {-1, 4, INT32_MIN, INT32_MAX}) {
        EXPECT_FALSE(TriggerKindFrom(kind)) << kind;
        EXPECT_FALSE(OperationKindFrom(kind)) << kind;
    }
}

TEST(KindsTest, SevenAndEightIncludeARestartUnderTheWordsOfFiveAndSix) {
    const int words[] = {IDS_OPTION_REPEAT_STEP,    IDS_OPTION_NEXT_STEP,   IDS_OPTION_NEXT_ACTION,
                         IDS_OPTION_NEXT_ITERATION, IDS_OPTION_RESTART_RUN, IDS_OPTION_STOP_RUN,
                         IDS_OPTION_RESTART_RUN,    IDS_OPTION_STOP_RUN};
    for (int option = 1; option <= 8; ++option) {
        EXPECT_EQ(OptionWord(PostRecoveryOptionFrom(option).value()), words[option - 1]);
        EXPECT_EQ(IncludesRestart(PostRecoveryOptionFrom(option).value()), option >= 7);
    }
    EXPECT_FALSE(PostRecoveryOptionFrom(0));
    EXPECT_FALSE(PostRecoveryOptionFrom(9));
}

}  // namespace
}  // namespace recoveryui::model

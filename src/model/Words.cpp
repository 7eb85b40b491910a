#include "model/Words.h"

#include "resources/ids.h"

namespace recoveryui::model {

int TriggerWord(TriggerKind kind) {
    switch (kind) {
        case TriggerKind::ObjectState: return IDS_TRIGGER_OBJECT_STATE;
        case TriggerKind::PopUp: return IDS_TRIGGER_POPUP;
        case TriggerKind::Error: return IDS_TRIGGER_ERROR;
        case TriggerKind::Crash: break;
    }
    return IDS_TRIGGER_CRASH;
}

int OperationWord(OperationKind kind) {
    switch (kind) {
        case OperationKind::ClickButton:
        case OperationKind::PressKeys: return IDS_OPERATION_KEYBOARD_OR_MOUSE;
        case OperationKind::FunctionCall: return IDS_OPERATION_FUNCTION;
        case OperationKind::CloseProcesses: break;
    }
    return IDS_OPERATION_CLOSE_PROCESS;
}

int OperationListWord(OperationKind kind) {
    const int word = OperationWord(kind);
    return word == IDS_OPERATION_KEYBOARD_OR_MOUSE ? IDS_LIST_KEYBOARD_CLICK : word;
}

int OptionWord(PostRecoveryOption option) {
    switch (option) {
        case PostRecoveryOption::RepeatStep: return IDS_OPTION_REPEAT_STEP;
        case PostRecoveryOption::NextStep: return IDS_OPTION_NEXT_STEP;
        case PostRecoveryOption::NextAction: return IDS_OPTION_NEXT_ACTION;
        case PostRecoveryOption::NextIteration: return IDS_OPTION_NEXT_ITERATION;
        case PostRecoveryOption::RestartRun:
        case PostRecoveryOption::RestartWindowsAndRun: return IDS_OPTION_RESTART_RUN;
        case PostRecoveryOption::StopRun:
        case PostRecoveryOption::RestartWindowsAndStop: break;
    }
    return IDS_OPTION_STOP_RUN;
}

}  // namespace recoveryui::model

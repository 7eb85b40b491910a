// The words for the parts of a scenario, as string-table ids.
#pragma once

#include "model/Kinds.h"

namespace recoveryui::model {

int TriggerWord(TriggerKind kind);

// The word of an operation in the wizard's summary, and the one in the Type column of a list.
int OperationWord(OperationKind kind);
int OperationListWord(OperationKind kind);

// The same word with and without a restart of the operating system.
int OptionWord(PostRecoveryOption option);

}  // namespace recoveryui::model

// The pages of the wizard and the ways between them. A page is known by its dialog template.
#pragma once

#include "model/Kinds.h"

namespace recoveryui::wizard {

// Decides which wizard buttons a page has.
enum class Position { First = 0, Middle = 1, Last = 2 };

inline constexpr int kNoPage = 0;

struct Page {
    int templateId;
    int previous;  // kNoPage where Back leads nowhere, or depends on what was chosen
    int next;      // likewise for Next
    Position position;
    int bitmapId;
    const wchar_t* helpTopic;
};

// The operation types, in the order of their radio buttons.
enum class OperationChoice { KeyboardOrMouse = 0, CloseProcess = 1, FunctionCall = 2, RestartWindows = 3 };

// One page; the template must be one of a page.
const Page& PageOf(int templateId);

// The first page that asks about a trigger of this kind, and the last one.
int FirstTriggerPage(model::TriggerKind kind);
int LastTriggerPage(model::TriggerKind kind);

// Where Next on the operation-type page leads.
int PageAfterOperationChoice(OperationChoice choice);

// Where Next on the list of operations leads. An empty list always asks for an operation first.
int PageAfterOperationList(bool empty, bool addAnother);

}  // namespace recoveryui::wizard

#include "wizard/PageFlow.h"

#include <stdexcept>

#include "resources/ids.h"
#include "support/HelpTopics.h"

namespace recoveryui::wizard {
namespace {

namespace topics = support::topics;
using enum Position;

constexpr Page kPages[] = {
    {IDD_WELCOME, kNoPage, IDD_SELECT_TRIGGER, First, IDB_PAGE_WELCOME, topics::kWelcome},
    {IDD_SELECT_TRIGGER, IDD_WELCOME, kNoPage, Middle, IDB_PAGE_TRIGGER, topics::kSelectTrigger},
    {IDD_POPUP, IDD_SELECT_TRIGGER, IDD_OPERATION_LIST, Middle, IDB_PAGE_TRIGGER, topics::kPopup},
    {IDD_SELECT_OBJECT, IDD_SELECT_TRIGGER, IDD_OBJECT_PROPS, Middle, IDB_PAGE_TRIGGER,
     topics::kSelectObject},
    {IDD_OBJECT_PROPS, IDD_SELECT_OBJECT, IDD_OPERATION_LIST, Middle, IDB_PAGE_TRIGGER, topics::kObjectProps},
    {IDD_SELECT_ERROR, IDD_SELECT_TRIGGER, IDD_OPERATION_LIST, Middle, IDB_PAGE_TRIGGER,
     topics::kSelectError},
    {IDD_CRASH, IDD_SELECT_TRIGGER, IDD_OPERATION_LIST, Middle, IDB_PAGE_TRIGGER, topics::kCrash},
    {IDD_OPERATION_LIST, kNoPage, kNoPage, Middle, IDB_PAGE_OPERATIONS, topics::kOperationList},
    {IDD_SELECT_OPERATION, IDD_OPERATION_LIST, kNoPage, Middle, IDB_PAGE_OPERATIONS,
     topics::kSelectOperation},
    {IDD_OPERATION_CLICK, IDD_SELECT_OPERATION, IDD_OPERATION_LIST, Middle, IDB_PAGE_OPERATIONS,
     topics::kOperationClick},
    {IDD_OPERATION_FUNC, IDD_SELECT_OPERATION, IDD_OPERATION_LIST, Middle, IDB_PAGE_OPERATIONS,
     topics::kOperationFunc},
    {IDD_CLOSE_PROCESSES, IDD_SELECT_OPERATION, IDD_OPERATION_LIST, Middle, IDB_PAGE_OPERATIONS,
     topics::kCloseProcesses},
    {IDD_TEST_FLOW, IDD_OPERATION_LIST, IDD_SCEN_DESCRIPTION, Middle, IDB_PAGE_POST_RECOVERY,
     topics::kTestFlow},
    {IDD_SCEN_DESCRIPTION, IDD_TEST_FLOW, IDD_SUMMARY, Middle, IDB_PAGE_NAME, topics::kScenDescription},
    {IDD_SUMMARY, IDD_SCEN_DESCRIPTION, kNoPage, Last, IDB_PAGE_FINISH, topics::kSummary},
};

}  // namespace

const Page& PageOf(int templateId) {
    for (const Page& page : kPages) {
        if (page.templateId == templateId) return page;
    }
    throw std::invalid_argument("not a page of the wizard");
}

int FirstTriggerPage(model::TriggerKind kind) {
    return kind == model::TriggerKind::ObjectState ? IDD_SELECT_OBJECT : LastTriggerPage(kind);
}

int LastTriggerPage(model::TriggerKind kind) {
    switch (kind) {
        case model::TriggerKind::ObjectState: return IDD_OBJECT_PROPS;
        case model::TriggerKind::PopUp: return IDD_POPUP;
        case model::TriggerKind::Error: return IDD_SELECT_ERROR;
        case model::TriggerKind::Crash: break;
    }
    return IDD_CRASH;
}

int PageAfterOperationChoice(OperationChoice choice) {
    switch (choice) {
        case OperationChoice::KeyboardOrMouse: return IDD_OPERATION_CLICK;
        case OperationChoice::CloseProcess: return IDD_CLOSE_PROCESSES;
        case OperationChoice::FunctionCall: return IDD_OPERATION_FUNC;
        case OperationChoice::RestartWindows: break;
    }
    return IDD_OPERATION_LIST;
}

int PageAfterOperationList(bool empty, bool addAnother) {
    return empty || addAnother ? IDD_SELECT_OPERATION : IDD_TEST_FLOW;
}

}  // namespace recoveryui::wizard

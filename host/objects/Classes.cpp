#include "objects/Classes.h"

#include "objects/CallJournal.h"
#include "objects/ClassIds.h"
#include "objects/Journal.h"
#include "objects/ObjectRack.h"
#include "objects/screen/ObjectSelection.h"
#include "objects/screen/RecordMgr.h"
#include "objects/screen/VtlFinger.h"
#include "objects/script/VBScriptParser.h"
#include "objects/services/FileLocator.h"
#include "objects/services/HostApplication.h"
#include "objects/services/PluginMgr.h"
#include "objects/services/TestOptions.h"
#include "objects/services/TovCommonFileDialog.h"
#include "objects/store/ObjectStateRecoveryTrigger.h"
#include "objects/store/Operations.h"
#include "objects/store/RecoveryRepository.h"
#include "objects/store/ReplayRecoveryScenario.h"
#include "objects/store/Triggers.h"

namespace tovarin {
namespace {

// Creation is a call like any other: it is written down, and it can be made to fail.
template <class Thing>
HRESULT Create(REFIID iid, void** object) noexcept {
    JournalCall call(Thing::kProgId, L"Create");
    return call.Answer([&] { return Thing::Create(iid, object); });
}

template <class Thing>
constexpr com::ClassEntry Row(const CLSID& clsid, const wchar_t* description) {
    return {&clsid, Thing::kProgId, description, &Create<Thing>};
}

constexpr com::ClassEntry kClasses[] = {
    {&kClsidCallJournal, CallJournal::kProgId, L"Call journal", &CallJournal::Create},
    Row<ObjectRack>(kClsidObjectRack, L"Object rack"),
    Row<TovCommonFileDialog>(kClsidTovCommonFileDialog, L"Common file dialog"),
    Row<RecordMgr>(kClsidRecordMgr, L"Record manager"),
    Row<VtlFinger>(kClsidVtlFinger, L"Pointing hand"),
    Row<ObjectSelection>(kClsidObjectSelection, L"Object selection"),
    Row<FileLocator>(kClsidFileLocator, L"File locator"),
    Row<PluginMgr>(kClsidPluginMgr, L"Plug-in manager"),
    Row<TestOptions>(kClsidTestOptions, L"Test options"),
    Row<VBScriptParser>(kClsidVBScriptParser, L"VBScript parser"),
    Row<HostApplication>(kClsidHostApplication, L"Host application"),
    Row<ReplayRecoveryScenario>(kClsidReplayRecoveryScenario, L"Recovery scenario"),
    Row<RecoveryRepository>(kClsidRecoveryRepository, L"Recovery file"),
    Row<PopUpRecoveryTrigger>(kClsidPopUpRecoveryTrigger, L"Pop-up window trigger"),
    Row<ErrorRecoveryTrigger>(kClsidErrorRecoveryTrigger, L"Test run error trigger"),
    Row<CrashRecoveryTrigger>(kClsidCrashRecoveryTrigger, L"Application crash trigger"),
    Row<ObjectStateRecoveryTrigger>(kClsidObjectStateRecoveryTrigger, L"Object state trigger"),
    Row<KeyBoardSimulatorRecoveryAction>(kClsidKeyBoardSimulatorRecoveryAction, L"Key press operation"),
    Row<ObjectAccessorRecoveryAction>(kClsidObjectAccessorRecoveryAction, L"Object access operation"),
    Row<ProcessControlRecoveryAction>(kClsidProcessControlRecoveryAction, L"Close processes operation"),
    Row<FunctionCallRecoveryAction>(kClsidFunctionCallRecoveryAction, L"Function call operation"),
};

}  // namespace

std::span<const com::ClassEntry> Classes() noexcept {
    return kClasses;
}

}  // namespace tovarin

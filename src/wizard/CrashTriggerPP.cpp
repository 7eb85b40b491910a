#include "wizard/CrashTriggerPP.h"

#include "com/Create.h"
#include "resources/ids.h"

namespace recoveryui::wizard {

CrashTriggerPP::CrashTriggerPP(WizardPS& sheet) : ProcessCtrlActionPP(sheet, IDD_CRASH) {}

// The two buttons explain themselves except where a trigger could not be read or named no process.
void CrashTriggerPP::OnInit() {
    SetUpPair();
    if (!State().trigger || LoadTrigger()) AddTips();
}

// False when there was nothing to read where there should have been.
bool CrashTriggerPP::LoadTrigger() {
    long kind = 0;
    if (FAILED(State().trigger->GetTriggerKind(&kind))) return false;
    if (model::TriggerKindFrom(kind) != model::TriggerKind::Crash) return true;
    const auto trigger = com::Query<ICrashRecoveryTrigger>(State().trigger.Get());
    com::CVtlSafeArray<BSTR> array;
    if (!trigger || FAILED(trigger->GetProcesses(array.Put())) || FAILED(array.Verify()) ||
        array.Count() == 0)
        return false;
    std::vector<std::wstring> names;
    com::Check(array.ForEach([&](const com::Bstr& name) { names.push_back(name.Text()); }));
    Pair().Load(names);
    return true;
}

Leave CrashTriggerPP::OnNext() {
    com::Ptr<ICrashRecoveryTrigger> trigger;
    com::Check(com::Create(L"Vantrel.CrashRecoveryTrigger", trigger));
    SAFEARRAY* const names = Pair().BuildResult();
    if (!names) return Leave::Stay;
    com::Check(trigger->SetProcesses(names));
    return TakeTrigger(trigger.Get());
}

}  // namespace recoveryui::wizard

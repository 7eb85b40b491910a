#include "settings/CrashTriggerProperties.h"

#include "com/SafeArray.h"
#include "resources/ids.h"
#include "ui/ListView.h"

namespace recoveryui::settings {

CrashTriggerProperties::CrashTriggerProperties(IUnknown* trigger, IObjectRack* rack) noexcept
    : PropertiesPage(IDD_PROPERTIES_CRASH, rack), trigger_(com::Query<ICrashRecoveryTrigger>(trigger)) {}

void CrashTriggerProperties::OnInit() {
    const ui::ListView list(Item(IDC_PROPERTIES_PROCESSES));
    list.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_INFOTIP);
    list.AddColumn({});
    com::CVtlSafeArray<BSTR> names;
    if (trigger_ && SUCCEEDED(trigger_->GetProcesses(names.Put())) && SUCCEEDED(names.Verify())) {
        const ui::ListView::Filling filling(list);
        com::Check(names.ForEach([&](const com::Bstr& name) {
            if (!name.View().empty()) list.InsertRow(list.Count(), name.Text());
        }));
    }
    list.FitColumnToHeader(0);
}

}  // namespace recoveryui::settings

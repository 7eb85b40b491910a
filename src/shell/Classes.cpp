#include "shell/Classes.h"

#include "RecoveryUI.h"
#include "manager/RecoveryDlg.h"
#include "settings/RecoveryAddDlg.h"
#include "settings/RecoveryPP.h"
#include "settings/ScenarioProperties.h"
#include "shell/RecoveryPPSpecifier.h"
#include "shell/RecoveryUIAddin.h"
#include "wizard/RecoveryWizard.h"

namespace recoveryui::shell {

std::span<const com::ClassEntry> Classes() noexcept {
    static constexpr com::ClassEntry kClasses[] = {
        {&CLSID_RecoveryWizard, L"Vantrel.RecoveryWizard", L"RecoveryWizard Class",
         &wizard::CreateRecoveryWizard},
        {&CLSID_RecoveryDlg, L"Vantrel.RecoveryDlg", L"RecoveryDlg Class", &manager::RecoveryDlg::Create},
        {&CLSID_RecoveryPP, L"Vantrel.RecoveryPP", L"RecoveryPP Class", &settings::CreateRecoveryPP},
        {&CLSID_RecoveryAddDlg, L"Vantrel.RecoveryAddDlg", L"RecoveryAddDlg Class",
         &settings::CreateRecoveryAddDlg},
        {&CLSID_RecoveryUIAddin, L"Vantrel.RecoveryUIAddin", L"RecoveryUIAddin Class",
         &CreateRecoveryUIAddin},
        {&CLSID_RecoveryPPSpecifier, L"Vantrel.RecoveryPPSpecifier", L"RecoveryPPSpecifier Class",
         &CreateRecoveryPPSpecifier},
        {&CLSID_ScenarioProperties, L"Vantrel.ScenarioProperties", L"ScenarioProperties Class",
         &settings::CreateScenarioProperties},
    };
    return kClasses;
}

}  // namespace recoveryui::shell

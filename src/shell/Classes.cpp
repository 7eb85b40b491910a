#include "shell/Classes.h"

#include "RecoveryUI.h"
#include "wizard/RecoveryWizard.h"

namespace recoveryui::shell {

std::span<const com::ClassEntry> Classes() noexcept {
    static constexpr com::ClassEntry kClasses[] = {
        {&CLSID_RecoveryWizard, L"Vantrel.RecoveryWizard", L"RecoveryWizard Class", &wizard::CreateRecoveryWizard},
    };
    return kClasses;
}

}  // namespace recoveryui::shell

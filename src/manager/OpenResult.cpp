#include "manager/OpenResult.h"

#include "model/FailureCodes.h"
#include "resources/ids.h"

namespace recoveryui::manager {

OpenResult AfterViewingLoad(std::int32_t code) {
    if (code >= 0) return {OpenAction::TryEditing};
    const bool missing = code == model::kFileNotFound || code == model::kPathNotFound;
    return {OpenAction::Refuse, missing ? IDS_FILE_NOT_FOUND : 0};
}

OpenResult AfterEditingLoad(std::int32_t code) {
    if (code >= 0) return {OpenAction::KeepEditing};
    switch (code) {
        case model::kAccessDenied:
        case model::kShareViolation:
        case model::kLockViolation: return {OpenAction::KeepViewing, IDS_FILE_READ_ONLY};
        default: return {OpenAction::Refuse};
    }
}

int SaveFailureMessage(std::int32_t code) {
    switch (code) {
        case model::kMediumFull:
        case model::kDiskFull:
        case model::kHandleDiskFull: return IDS_FILE_DISK_FULL;
        default: return IDS_FILE_SAVE_FAILED;
    }
}

}  // namespace recoveryui::manager

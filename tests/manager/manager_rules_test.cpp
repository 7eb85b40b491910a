// What the Manager decides, without a window.
#include <gtest/gtest.h>

#include "manager/AddedScenarios.h"
#include "manager/OpenResult.h"
#include "manager/StorePlan.h"
#include "model/FailureCodes.h"
#include "resources/ids.h"

#ifdef _WIN32
#include <windows.h>
static_assert(recoveryui::model::kFileNotFound == STG_E_FILENOTFOUND);
static_assert(recoveryui::model::kPathNotFound == STG_E_PATHNOTFOUND);
static_assert(recoveryui::model::kAccessDenied == STG_E_ACCESSDENIED);
static_assert(recoveryui::model::kShareViolation == STG_E_SHAREVIOLATION);
static_assert(recoveryui::model::kLockViolation == STG_E_LOCKVIOLATION);
static_assert(recoveryui::model::kMediumFull == STG_E_MEDIUMFULL);
static_assert(recoveryui::model::kDiskFull == __HRESULT_FROM_WIN32(ERROR_DISK_FULL));
static_assert(recoveryui::model::kHandleDiskFull == __HRESULT_FROM_WIN32(ERROR_HANDLE_DISK_FULL));
#endif

namespace recoveryui::manager {
namespace {

constexpr std::int32_t kCorrupt = static_cast<std::int32_t>(0x80030109u);

TEST(OpeningAFile, EndsByTheTwoLoads) {
    const struct {
        std::int32_t code;
        OpenResult viewing, editing;
    } cases[] = {
        {model::kOk, {OpenAction::TryEditing}, {OpenAction::KeepEditing}},
        {1, {OpenAction::TryEditing}, {OpenAction::KeepEditing}},
        {model::kFileNotFound, {OpenAction::Refuse, IDS_FILE_NOT_FOUND}, {OpenAction::Refuse}},
        {model::kPathNotFound, {OpenAction::Refuse, IDS_FILE_NOT_FOUND}, {OpenAction::Refuse}},
        {model::kAccessDenied, {OpenAction::Refuse}, {OpenAction::KeepViewing, IDS_FILE_READ_ONLY}},
        {model::kShareViolation, {OpenAction::Refuse}, {OpenAction::KeepViewing, IDS_FILE_READ_ONLY}},
        {model::kLockViolation, {OpenAction::Refuse}, {OpenAction::KeepViewing, IDS_FILE_READ_ONLY}},
        {kCorrupt, {OpenAction::Refuse}, {OpenAction::Refuse}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(AfterViewingLoad(c.code), c.viewing) << std::hex << c.code;
        EXPECT_EQ(AfterEditingLoad(c.code), c.editing) << std::hex << c.code;
    }
    for (const std::int32_t full : {model::kMediumFull, model::kDiskFull, model::kHandleDiskFull})
        EXPECT_EQ(SaveFailureMessage(full), IDS_FILE_DISK_FULL);
}

TEST(StoringTheWizardsScenario, ARenameLeavesNoOldName) {
    EXPECT_EQ(PlanStore(L"", L"A"), StorePlan{});
    EXPECT_EQ(PlanStore(L"A", L"A"), (StorePlan{.replace = true}));
    EXPECT_EQ(PlanStore(L"A", L"B"), (StorePlan{.replace = true, .removeOldAfter = true}));
    EXPECT_EQ(PlanStore(L"A", L"a"), (StorePlan{.removeOldFirst = true, .replace = true}));
}

using Files = std::vector<AddedScenarios::File>;

TEST(AddedScenarios, FollowTheScenarioUntilItsFileIsSavedAndLeft) {
    AddedScenarios added;
    added.Add(L"popup", true, false);
    added.Add(L"crash", true, true);
    added.Add(L"popup", false, true);  // edited again, the other box checked
    added.Add(L"error", false, false);
    added.Add(L"gone", true, true);
    added.Remove(L"gone");
    added.Rename(L"crash", L"Crash of the browser");
    added.FileSaved(L"C:\\a.trs");
    added.FileSaved(L"C:\\b.trs");
    added.Add(L"discarded", true, true);
    EXPECT_TRUE(added.ForCurrent().empty());
    added.FileLeft();
    EXPECT_EQ(added.ForCurrent(), (Files{{L"C:\\b.trs", {L"popup", L"Crash of the browser"}}}));
    EXPECT_EQ(added.ForDefault(), added.ForCurrent());

    added.Add(L"never saved", true, true);
    added.FileLeft();
    EXPECT_EQ(added.ForCurrent().size(), 1u);

    added.Add(L"second", true, false);
    added.FileSaved(L"C:\\c.trs");
    added.Remove(L"second");  // deleted, and that discarded: the file still holds it
    added.FileLeft();
    ASSERT_EQ(added.ForCurrent().size(), 2u);
    EXPECT_EQ(added.ForCurrent()[1], (AddedScenarios::File{L"C:\\c.trs", {L"second"}}));
    EXPECT_EQ(added.ForDefault().size(), 1u);
}

}  // namespace
}  // namespace recoveryui::manager

#include <gtest/gtest.h>

#include "manager/OpenResult.h"
#include "manager/SelectionRules.h"
#include "manager/StorePlan.h"
#include "manager/TestLists.h"
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
}

TEST(SavingAFile, NamesAFullDisk) {
    for (const std::int32_t full : {model::kMediumFull, model::kDiskFull, model::kHandleDiskFull})
        EXPECT_EQ(SaveFailureMessage(full), IDS_FILE_DISK_FULL);
    EXPECT_EQ(SaveFailureMessage(model::kAccessDenied), IDS_FILE_SAVE_FAILED);
}

TEST(Selection, StaysWhereTheUserWorks) {
    EXPECT_EQ(RowAfterDelete(1, 2), 1);
    EXPECT_EQ(RowAfterDelete(2, 2), 1);
    EXPECT_EQ(RowAfterDelete(0, 0), kNoRow);
    EXPECT_EQ(RowAfterPaste(3), 2);
    const std::wstring names[] = {L"popup", L"Popup"};
    EXPECT_EQ(RowAfterWizard(names, L"Popup"), 1);
    EXPECT_EQ(RowAfterWizard(names, L"POPUP"), kNoRow);
}

TEST(StoringTheWizardsScenario, ARenameLeavesNoOldName) {
    EXPECT_EQ(PlanStore(L"", L"A"), StorePlan{});
    EXPECT_EQ(PlanStore(L"A", L"A"), (StorePlan{.replace = true}));
    EXPECT_EQ(PlanStore(L"A", L"B"), (StorePlan{.replace = true, .removeOldAfter = true}));
    EXPECT_EQ(PlanStore(L"A", L"a"), (StorePlan{.removeOldFirst = true, .replace = true}));
}

TEST(AddingToTheTest, AppendsWhatIsNotThere) {
    using Names = std::vector<std::wstring>;
    const struct {
        const wchar_t* stored;
        Names names;
        std::optional<std::wstring> written;
    } cases[] = {
        {L"", {L"P", L"Q", L"P"}, L"f;P;1;ffffffff*f;Q;1;ffffffff*"},
        {L"g;P;0;1*f;Q;0;ffffffff*", {L"P", L"Q"}, L"g;P;0;1*f;Q;0;ffffffff*f;P;1;1*"},
        {L"f;P;0;1*", {L"P"}, std::nullopt},
        {L"f;P;0;1*", {}, std::nullopt},
        {L"f;P;0;1*torn;", {L"Q"}, L"f;P;0;1*f;Q;1;1*"},
    };
    for (const auto& c : cases) EXPECT_TRUE(WithScenarios(c.stored, L"f", c.names) == c.written);
}

}  // namespace
}  // namespace recoveryui::manager

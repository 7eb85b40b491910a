// A program that dies while it saves. Another process of this test program is the one that dies.
#include <random>

#include "HostInterfaces.h"
#include "harness/ComTest.h"
#include "host/temp_folder.h"

namespace tovarin {
namespace {
namespace com = recoveryui::com;
using com::Bstr;

constexpr wchar_t kFileVariable[] = L"RECOVERYUI_SAVED_FILE";
constexpr int kRounds = 40;

class KillTest : public recoveryui::test::ComTest {
protected:
    static com::Ptr<IRecoveryRepository> Open(const std::wstring& path, bool readOnly) {
        auto repository = New<IRecoveryRepository>(L"Vantrel.RecoveryRepository");
        EXPECT_EQ(S_OK, repository->Load(Bstr(path).Get(), readOnly ? VARIANT_TRUE : VARIANT_FALSE));
        return repository;
    }
    static void Put(IRecoveryRepository* repository, const wchar_t* name, int version) {
        const auto scenario = New<IRecoveryScenario>(L"Vantrel.ReplayRecoveryScenario");
        EXPECT_EQ(S_OK, scenario->SetDescription(Bstr(std::to_wstring(version)).Get()));
        EXPECT_EQ(S_OK, repository->AddScenario(scenario.Get(), Bstr(name).Get(), 1));
    }
    static std::wstring DescriptionOf(IRecoveryRepository* repository, const wchar_t* name) {
        com::Ptr<IUnknown> found;
        Bstr description;
        repository->GetScenario(Bstr(name).Get(), found.GetAddressOf());
        const auto scenario = com::Query<IRecoveryScenario>(found.Get());
        if (scenario) scenario->GetDescription(description.Put());
        return description.Text();
    }
};

// Run by the other process only: both scenarios always carry the same number.
TEST_F(KillTest, DISABLED_SavesUntilItIsKilled) {
    wchar_t path[1024] = L"";
    ASSERT_NE(GetEnvironmentVariableW(kFileVariable, path, 1024), 0u);
    const auto repository = Open(path, false);
    for (int version = 1;; ++version) {
        Put(repository.Get(), L"first", version);
        Put(repository.Get(), L"last", version);
        ASSERT_EQ(S_OK, repository->Save(Bstr(L"").Get()));
    }
}

TEST_F(KillTest, TheFileHoldsTheOldOrTheNewContentWheneverTheSaverIsKilled) {
    const TempFolder folder;
    const std::wstring path = folder / L"killed.trs";
    {
        const auto repository = New<IRecoveryRepository>(L"Vantrel.RecoveryRepository");
        ASSERT_EQ(S_OK, repository->Load(Bstr(L"").Get(), VARIANT_FALSE));
        Put(repository.Get(), L"first", 0);
        Put(repository.Get(), L"last", 0);
        ASSERT_EQ(S_OK, repository->Save(Bstr(path).Get()));
    }
    SetEnvironmentVariableW(kFileVariable, path.c_str());
    wchar_t program[1024] = L"";
    GetModuleFileNameW(nullptr, program, 1024);
    const unsigned seed = std::random_device{}();
    std::mt19937 random(seed);
    int changed = 0;
    std::wstring before = L"0";
    for (int round = 0; round < kRounds; ++round) {
        SCOPED_TRACE(testing::Message() << "seed " << seed << ", round " << round);
        std::wstring command = L"\"" + std::wstring(program) + L"\" --gtest_also_run_disabled_tests " +
                               L"--gtest_brief=1 --gtest_filter=KillTest.DISABLED_*";
        STARTUPINFOW start{};
        start.cb = sizeof start;
        PROCESS_INFORMATION saver{};
        ASSERT_TRUE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, DETACHED_PROCESS,
                                   nullptr, nullptr, &start, &saver));
        // It saves as soon as the file is taken; what comes then is chance.
        const std::string old = TempFolder::Read(path);
        for (int tries = 0; tries < 2000 && TempFolder::Read(path) == old; ++tries) Sleep(1);
        Sleep(random() % 20);
        TerminateProcess(saver.hProcess, 1);
        WaitForSingleObject(saver.hProcess, 5000);
        CloseHandle(saver.hThread);
        CloseHandle(saver.hProcess);

        const auto repository = Open(path, false);
        const std::wstring first = DescriptionOf(repository.Get(), L"first");
        ASSERT_FALSE(first.empty());
        ASSERT_EQ(first, DescriptionOf(repository.Get(), L"last")) << "half of a save";
        changed += first != before;
        before = first;
    }
    EXPECT_GT(changed, kRounds / 2) << "the saver hardly ever got to save";
}

}  // namespace
}  // namespace tovarin

#include <filesystem>

#include "HostInterfaces.h"
#include "harness/ComTest.h"
#include "host/store_samples.h"
#include "host/temp_folder.h"

namespace tovarin {
namespace {
namespace com = recoveryui::com;
using com::Bstr;

class RepositoryTest : public recoveryui::test::ComTest {
protected:
    static com::Ptr<IRecoveryRepository> NewRepository() {
        return New<IRecoveryRepository>(L"Vantrel.RecoveryRepository");
    }
    static com::Ptr<IRecoveryScenario> NewScenario(const wchar_t* description = L"") {
        auto scenario = New<IRecoveryScenario>(L"Vantrel.ReplayRecoveryScenario");
        EXPECT_EQ(S_OK, scenario->SetDescription(Bstr(description).Get()));
        return scenario;
    }
    using Repository = com::Ptr<IRecoveryRepository>;
    static HRESULT Load(const Repository& repository, const std::wstring& path, bool readOnly = false) {
        return repository->Load(Bstr(path).Get(), readOnly ? VARIANT_TRUE : VARIANT_FALSE);
    }
    static HRESULT Save(const Repository& repository, const std::wstring& path) {
        return repository->Save(Bstr(path).Get());
    }
    static HRESULT Add(const Repository& repository, IUnknown* scenario, const std::wstring& name,
                       long replace = 0) {
        return repository->AddScenario(scenario, Bstr(name).Get(), replace);
    }
    static com::Ptr<IRecoveryScenario> Get(const Repository& repository, const std::wstring& name) {
        com::Ptr<IUnknown> scenario;
        EXPECT_EQ(S_OK, repository->GetScenario(Bstr(name).Get(), scenario.GetAddressOf()));
        return com::Query<IRecoveryScenario>(scenario.Get());
    }
    static std::wstring DescriptionOf(const Repository& repository, const std::wstring& name) {
        const auto scenario = Get(repository, name);
        Bstr description;
        return scenario && SUCCEEDED(scenario->GetDescription(description.Put())) ? description.Text()
                                                                                  : L"none";
    }
    // The path and the names, one after the other.
    static std::wstring StateOf(const Repository& repository) {
        Bstr text;
        com::Ptr<IScenarioEnumerator> names;
        EXPECT_EQ(S_OK, repository->GetFilePath(text.Put()));
        std::wstring state = text.Text();
        EXPECT_EQ(S_OK, repository->GetScenarioEnumerator(names.GetAddressOf()));
        while (names->Next(text.Put()) == S_OK) state += L"|" + text.Text();
        EXPECT_TRUE(text.IsNull());
        EXPECT_EQ(S_FALSE, names->Next(text.Put()));
        EXPECT_EQ(S_OK, names->Reset());
        return state;
    }

    TempFolder folder_;
    const std::wstring path_ = folder_ / L"a.trs";
};

TEST_F(RepositoryTest, AFileComesBackWithEverythingAndIsWrittenTheSameAgain) {
    const std::string text = store::TextOfStore(store::OneOfEverything());
    TempFolder::Write(path_, text);
    const auto repository = NewRepository();
    ASSERT_EQ(S_OK, Load(repository, path_));
    EXPECT_EQ(path_ + L"|Pop-up|State|Error|Crash|Unfinished", StateOf(repository));
    EXPECT_EQ(S_OK, Save(repository, folder_ / L"unseen.trs"));
    EXPECT_EQ(text, TempFolder::Read(folder_ / L"unseen.trs")) << "no object was ever made";
    for (const auto& named : store::OneOfEverything()) EXPECT_TRUE(Get(repository, named.name));
    EXPECT_EQ(S_OK, Save(repository, folder_ / L"seen.trs"));
    EXPECT_EQ(text, TempFolder::Read(folder_ / L"seen.trs")) << "every object was made and read again";
}

TEST_F(RepositoryTest, NamesDifferByMoreThanLetterCase) {
    const auto repository = NewRepository();
    const auto one = NewScenario(L"1"), two = NewScenario(L"2"), three = NewScenario(L"3");
    const std::wstring odd(L"\0\xd800\x1a\xc4", 4), oddLower(L"\0\xd800\x1a\xe4", 4);
    VARIANT_BOOL exists = VARIANT_FALSE;
    EXPECT_EQ(S_OK, Add(repository, one.Get(), odd));
    EXPECT_EQ(S_OK, Add(repository, two.Get(), L"Two"));
    EXPECT_EQ(S_OK, repository->ScenarioExists(Bstr(oddLower).Get(), &exists));
    EXPECT_EQ(VARIANT_TRUE, exists);
    EXPECT_EQ(STG_E_FILEALREADYEXISTS, Add(repository, three.Get(), oddLower));
    EXPECT_EQ(L"1", DescriptionOf(repository, odd));
    EXPECT_EQ(S_OK, Add(repository, three.Get(), oddLower, 1));
    EXPECT_EQ(L"|" + oddLower + L"|Two", StateOf(repository)) << "replaced in its place";
    EXPECT_EQ(L"3", DescriptionOf(repository, odd));
    EXPECT_EQ(S_OK, Save(repository, path_));
    EXPECT_EQ(S_OK, Load(repository, path_));
    EXPECT_EQ(S_OK, Add(repository, one.Get(), L"New", 1));
    EXPECT_EQ(path_ + L"|" + oddLower + L"|Two|New", StateOf(repository));
    EXPECT_EQ(S_OK, repository->RemoveScenario(Bstr(L"TWO").Get()));
    EXPECT_EQ(E_FAIL, repository->RemoveScenario(Bstr(L"TWO").Get()));
    EXPECT_EQ(S_OK, repository->ScenarioExists(Bstr(L"Two").Get(), &exists));
    EXPECT_EQ(VARIANT_FALSE, exists);
    EXPECT_FALSE(Get(repository, L"Two"));
    // What is changed in an object that was added is saved with the next file; an empty one holds nothing.
    EXPECT_EQ(one.Get(), Get(repository, L"new").Get());
    EXPECT_EQ(S_OK, one->SetDescription(Bstr(L"changed").Get()));
    EXPECT_EQ(S_OK, Save(repository, L""));
    EXPECT_EQ(S_OK, Load(repository, L""));
    EXPECT_EQ(L"", StateOf(repository));
    EXPECT_EQ(S_OK, Load(repository, path_));
    EXPECT_EQ(L"changed", DescriptionOf(repository, L"New"));
}

TEST_F(RepositoryTest, AFileThatCannotBeReadChangesNothing) {
    const std::string good = store::TextOfStore(store::OneOfEverything());
    const std::string scenario = store::TextOfStore({{L"One", {}}});
    const auto file = [&](const wchar_t* name, const std::string& bytes) {
        TempFolder::Write(folder_ / name, bytes);
        return folder_ / name;
    };
    std::string twins = store::TextOfStore({{L"One", {}}, {L"two", {}}});
    twins.replace(twins.find("two"), 3, "ONE");
    const struct {
        std::wstring path;
        HRESULT code;
    } cases[] = {
        {file(L"huge.trs", good), STG_E_DOCFILECORRUPT},
        {file(L"program.trs", std::string("MZ\x90\0\3", 5)), STG_E_DOCFILECORRUPT},
        {file(L"twins.trs", twins), STG_E_DOCFILECORRUPT},
        {file(L"newer.trs", "{\"formatVersion\": 2}"), STG_E_OLDDLL},
        {folder_ / L"missing.trs", STG_E_FILENOTFOUND},
        {folder_ / L"missing\\a.trs", STG_E_PATHNOTFOUND},
    };
    const HANDLE huge =
        CreateFileW(cases[0].path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_TRUE(SetFilePointerEx(huge, {.QuadPart = 3LL << 30}, nullptr, FILE_BEGIN) && SetEndOfFile(huge));
    CloseHandle(huge);
    TempFolder::Write(path_, good);
    const auto repository = NewRepository(), other = NewRepository();
    ASSERT_EQ(S_OK, Load(repository, path_));
    const std::wstring state = StateOf(repository);
    const auto held = Get(repository, L"Error");
    for (const auto& [path, code] : cases) {
        std::error_code ignored;
        const auto before = std::filesystem::last_write_time(path, ignored);
        EXPECT_EQ(code, Load(repository, path)) << testing::PrintToString(path);
        EXPECT_EQ(code, Load(repository, path, true)) << testing::PrintToString(path);
        EXPECT_TRUE(before == std::filesystem::last_write_time(path, ignored)) << "left as it is";
        EXPECT_EQ(state, StateOf(repository));
        EXPECT_EQ(held.Get(), Get(repository, L"Error").Get());
    }
    EXPECT_EQ(E_INVALIDARG, Load(repository, L"", true));
    EXPECT_EQ(STG_E_SHAREVIOLATION, Load(other, path_)) << "still taken";
    EXPECT_EQ(S_OK, Load(repository, path_)) << "opened again by the one who has it";
}

}  // namespace
}  // namespace tovarin

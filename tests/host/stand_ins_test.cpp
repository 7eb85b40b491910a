// The journal of the calls on stand-ins, and the faults that are ordered there: what every other test rests
// on.
#include "HostInterfaces.h"
#include "com/Object.h"
#include "harness/ComTest.h"
#include "host/temp_folder.h"
#include "objects/Journal.h"

namespace tovarin {
namespace {
namespace com = recoveryui::com;
using com::Bstr;

using StandInsTest = recoveryui::test::ComTest;

class Listener final : public com::Object<Listener, IJournalListener> {
public:
    HRESULT STDMETHODCALLTYPE OnCall(BSTR object, BSTR operation, BSTR arguments,
                                     BSTR result) noexcept override {
        for (BSTR part : {object, operation, arguments, result})
            heard += std::wstring(com::ViewOf(part)) + L"|";
        return S_OK;
    }
    std::wstring heard;
};

TEST_F(StandInsTest, EveryCallBecomesOneLineWhichListenersHearAndAFileKeeps) {
    const auto journal = New<ICallJournal>(L"Tovarin.CallJournal");
    const auto scenario = New<IRecoveryScenario>(L"Vantrel.ReplayRecoveryScenario");
    const auto trigger = New<IUnknown>(L"Vantrel.PopUpRecoveryTrigger");
    const auto listener = Listener::Make();
    long option = 0;
    Bstr text;
    ForgetCalls();
    EXPECT_EQ(S_OK, journal->AddListener(listener.Get()));
    scenario->SetTrigger(trigger.Get());
    EXPECT_EQ(S_OK, journal->RemoveListener(listener.Get()));
    EXPECT_EQ(L"RecoveryScenario|SetTrigger|PopUpRecoveryTrigger|S_OK|", listener->heard);
    EXPECT_EQ(E_INVALIDARG, journal->RemoveListener(listener.Get()));
    EXPECT_EQ(E_INVALIDARG, journal->AddListener(nullptr));
    EXPECT_EQ(E_POINTER, journal->GetText(nullptr));
    scenario->GetPostRecoveryOption(&option);
    scenario->GetPostRecoveryOption(nullptr);
    scenario->SetDescription(Bstr(L"a\t\"b\"\n\x1").Get());
    scenario->GetDescription(text.Put());
    scenario->SetOperations(nullptr);
    scenario->SetDescription(Bstr(std::wstring(1000, L'x')).Get());
    const std::wstring calls =
        L"RecoveryScenario.SetTrigger(PopUpRecoveryTrigger) -> S_OK\n"
        L"RecoveryScenario.GetPostRecoveryOption() -> S_OK: 0\n"
        L"RecoveryScenario.GetPostRecoveryOption() -> E_POINTER\n"
        L"RecoveryScenario.SetDescription(\"a\\t\\\"b\\\"\\n\\x01\") -> S_OK\n"
        L"RecoveryScenario.GetDescription() -> S_OK: \"a\\t\\\"b\\\"\\n\\x01\"\n"
        L"RecoveryScenario.SetOperations(no array) -> E_INVALIDARG\n"
        L"RecoveryScenario.SetDescription(\"" +
        std::wstring(200, L'x') + L"\"... (1000 characters)) -> S_OK\n";
    EXPECT_EQ(calls, Calls());

    const TempFolder folder;
    EXPECT_EQ(S_OK, journal->WriteToFile(Bstr(folder / L"journal.txt").Get()));
    EXPECT_EQ(std::string(calls.begin(), calls.end()), TempFolder::Read(folder / L"journal.txt"));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_PATH_NOT_FOUND),
              journal->WriteToFile(Bstr(folder / L"no\\journal.txt").Get()));
}

TEST_F(StandInsTest, AnOrderedFaultAnswersTheCallsItWasOrderedFor) {
    const auto trigger = New<IErrorRecoveryTrigger>(L"Vantrel.ErrorRecoveryTrigger");
    const auto codes = [&](int calls) {
        std::wstring text;
        for (long call = 1; call <= calls; ++call) text += trigger->SetErrorCode(call) == S_OK ? L"." : L"x";
        return text;
    };
    FailCall(L"ErrorRecoveryTrigger", L"SetErrorCode", E_ABORT, 3, 2);
    FailCall(L"OtherTrigger", L"SetErrorCode");
    EXPECT_EQ(L"..xx..", codes(6));
    FailCall(L"", L"SetErrorCode", E_ABORT, 2, 0);
    EXPECT_EQ(L".xxx", codes(4));
    long code = 9;
    EXPECT_EQ(S_OK, trigger->GetErrorCode(&code));
    EXPECT_EQ(1, code) << "a call that fails does nothing";
    FailCall(L"ErrorRecoveryTrigger", L"GetErrorCode", S_FALSE);
    EXPECT_EQ(S_FALSE, trigger->GetErrorCode(&code));
    EXPECT_EQ(0, code);
    ClearFaults();
    EXPECT_EQ(L"..", codes(2));
    EXPECT_NE(std::wstring::npos, Calls().find(L"ErrorRecoveryTrigger.SetErrorCode(3) -> E_ABORT\n"));
}

TEST(Journal, CallsThatNobodyWantsAreNotWrittenDown) {
    Journal& journal = Journal::Instance();  // this program's own, not that of the stand-ins' module
    JournalCall(L"Object", L"Operation", 1L).Result(S_OK);
    journal.AddInterest();
    JournalCall(L"Object", L"Operation", 2L).Result(S_OK);
    journal.RemoveInterest();
    EXPECT_EQ(L"Object.Operation(2) -> S_OK\n", journal.Text());
    journal.Clear();
}

}  // namespace
}  // namespace tovarin

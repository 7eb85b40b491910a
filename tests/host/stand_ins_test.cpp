// What the stand-ins promise beyond keeping what they are given, which the recovery files' own test shows.
#include "HostInterfaces.h"
#include "com/Object.h"
#include "harness/Arrays.h"
#include "harness/ComTest.h"
#include "host/temp_folder.h"
#include "objects/Describe.h"
#include "objects/Journal.h"

namespace tovarin {
namespace {
namespace com = recoveryui::com;
using com::Bstr;

using StandInsTest = recoveryui::test::ComTest;

TEST_F(StandInsTest, EveryKindIsItsNumber) {
    const wchar_t* triggers[] = {L"Vantrel.ObjectStateRecoveryTrigger", L"Vantrel.PopUpRecoveryTrigger",
                                 L"Vantrel.ErrorRecoveryTrigger", L"Vantrel.CrashRecoveryTrigger"};
    const wchar_t* operations[] = {
        L"Vantrel.ObjectAccessorRecoveryAction", L"Vantrel.FunctionCallRecoveryAction",
        L"Vantrel.ProcessControlRecoveryAction", L"Vantrel.KeyBoardSimulatorRecoveryAction"};
    for (long kind = 0; kind < 4; ++kind) {
        long given = -1;
        EXPECT_EQ(S_OK, New<IRecoveryTrigger>(triggers[kind])->GetTriggerKind(&given));
        EXPECT_EQ(kind, given);
        EXPECT_EQ(S_OK, New<IRecoveryAction>(operations[kind])->GetOperationKind(&given));
        EXPECT_EQ(kind, given);
    }
}

TEST_F(StandInsTest, TheScenarioKeepsItsPartsThemselvesAndRefusesWhatIsNoList) {
    const auto scenario = New<IRecoveryScenario>(L"Vantrel.ReplayRecoveryScenario");
    const auto trigger = New<IUnknown>(L"Vantrel.ErrorRecoveryTrigger");
    com::Ptr<IUnknown> given = trigger;
    EXPECT_EQ(S_OK, scenario->GetTrigger(given.ReleaseAndGetAddressOf()));
    EXPECT_FALSE(given);
    EXPECT_EQ(S_OK, scenario->SetTrigger(trigger.Get()));
    EXPECT_EQ(S_OK, scenario->GetTrigger(given.ReleaseAndGetAddressOf()));
    EXPECT_EQ(trigger.Get(), given.Get());
    EXPECT_EQ(E_POINTER, scenario->GetTrigger(nullptr));

    // Bounds of the caller's choice go in, 0 comes out.
    SAFEARRAYBOUND bounds[2] = {{2, 5}, {1, 0}};
    com::CVtlSafeArray<VARIANT> variants(SafeArrayCreate(VT_VARIANT, 1, bounds));
    com::CVtlSafeArray<IUnknown*> operations;
    EXPECT_EQ(S_OK, variants.PutElement(6, com::Variant(trigger.Get())));
    EXPECT_EQ(S_OK, scenario->SetOperations(variants.Get()));
    for (SAFEARRAY* const array : {static_cast<SAFEARRAY*>(nullptr), SafeArrayCreateVector(VT_DATE, 0, 1),
                                   SafeArrayCreate(VT_UNKNOWN, 2, bounds)})
        EXPECT_EQ(E_INVALIDARG, scenario->SetOperations(com::CVtlSafeArray<IUnknown*>(array).Get()));
    EXPECT_EQ(S_OK, scenario->GetOperations(operations.Put()));
    EXPECT_EQ(0, operations.LowerBound());
    EXPECT_EQ(L"[nothing, ErrorRecoveryTrigger]", Describe(operations.Get()));
    EXPECT_EQ(E_POINTER, scenario->GetOperations(nullptr));
}

TEST_F(StandInsTest, TheRackGivesWhatWasPutInUnderExactlyThatName) {
    const auto rack = New<IObjectRack>(L"Tovarin.ObjectRack");
    const auto client = New<IObjectRackClient>(L"Vantrel.RecoveryRepository");
    const Bstr name(L"RecordMgr");
    const auto get = [&](const wchar_t* asked, REFIID iid) {
        IUnknown* object = client.Get();
        const HRESULT hr = rack->GetObject(Bstr(asked).Get(), iid, &object);
        EXPECT_EQ(SUCCEEDED(hr), object != nullptr);
        if (object) object->Release();
        return hr;
    };
    EXPECT_EQ(E_FAIL, get(L"RecordMgr", IID_IUnknown));
    EXPECT_EQ(S_OK, rack->SetObject(name.Get(), client.Get()));
    EXPECT_EQ(S_OK, get(L"RecordMgr", __uuidof(IObjectRackClient)));
    EXPECT_EQ(E_NOINTERFACE, get(L"RecordMgr", __uuidof(IRecordMgr)));
    EXPECT_EQ(E_FAIL, get(L"recordmgr", IID_IUnknown));
    EXPECT_EQ(E_POINTER, rack->GetObject(name.Get(), IID_IUnknown, nullptr));
    EXPECT_EQ(E_INVALIDARG, rack->SetObject(name.Get(), nullptr));
    EXPECT_EQ(E_INVALIDARG, rack->SetObject(nullptr, client.Get()));
    EXPECT_EQ(S_OK, rack->RemoveObject(name.Get()));
    EXPECT_EQ(E_FAIL, rack->RemoveObject(name.Get()));

    com::Ptr<IObjectRack> held;
    EXPECT_EQ(E_FAIL, client->GetRack(held.GetAddressOf()));
    for (int twice = 0; twice < 2; ++twice) EXPECT_EQ(S_OK, client->SetRack(rack.Get()));
    EXPECT_EQ(S_OK, client->GetRack(held.GetAddressOf()));
    EXPECT_EQ(rack.Get(), held.Get());
    EXPECT_EQ(E_POINTER, client->GetRack(nullptr));
    EXPECT_EQ(S_OK, client->SetRack(nullptr));
    EXPECT_EQ(E_FAIL, client->GetRack(held.ReleaseAndGetAddressOf()));
}

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

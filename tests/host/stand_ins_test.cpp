#include "HostInterfaces.h"
#include "com/Object.h"
#include "com/SafeArray.h"
#include "harness/ComTest.h"
#include "host/temp_folder.h"
#include "objects/Describe.h"
#include "objects/Journal.h"

namespace tovarin {
namespace {
namespace com = recoveryui::com;
using com::Bstr;

class StandInsTest : public recoveryui::test::ComTest {
protected:
    // What is put in comes out again, and a missing place for it is E_POINTER.
    template <class Interface>
    static void CheckNumber(const wchar_t* progId, HRESULT (STDMETHODCALLTYPE Interface::*get)(long*),
                            HRESULT (STDMETHODCALLTYPE Interface::*set)(long)) {
        const auto object = New<Interface>(progId);
        long number = 7;
        EXPECT_EQ(S_OK, (object.Get()->*get)(&number));
        EXPECT_EQ(0, number);
        EXPECT_EQ(S_OK, (object.Get()->*set)(-5));
        EXPECT_EQ(S_OK, (object.Get()->*get)(&number));
        EXPECT_EQ(-5, number);
        EXPECT_EQ(E_POINTER, (object.Get()->*get)(nullptr));
    }
    template <class Interface>
    static void CheckText(const wchar_t* progId, HRESULT (STDMETHODCALLTYPE Interface::*get)(BSTR*),
                          HRESULT (STDMETHODCALLTYPE Interface::*set)(BSTR)) {
        const auto object = New<Interface>(progId);
        const std::wstring odd(L"a\0\xd800\n", 4);
        for (const std::wstring& text : {odd, std::wstring()}) {
            Bstr given;
            EXPECT_EQ(S_OK, (object.Get()->*set)(Bstr(text).Get()));
            EXPECT_EQ(S_OK, (object.Get()->*get)(given.Put()));
            EXPECT_EQ(text, given.Text());
        }
        EXPECT_EQ(S_OK, (object.Get()->*set)(nullptr));
        EXPECT_EQ(E_POINTER, (object.Get()->*get)(nullptr));
    }
    template <class Element, class Interface>
    static void CheckArray(const wchar_t* progId, HRESULT (STDMETHODCALLTYPE Interface::*get)(SAFEARRAY**),
                           HRESULT (STDMETHODCALLTYPE Interface::*set)(SAFEARRAY*),
                           const typename com::CVtlSafeArray<Element>::Owner& element) {
        const auto object = New<Interface>(progId);
        com::CVtlSafeArray<Element> array, given;
        EXPECT_EQ(S_OK, (object.Get()->*get)(given.Put()));
        EXPECT_EQ(S_OK, given.Verify());
        EXPECT_EQ(0u, given.Count());
        // bounds of the caller's choice go in, 0 comes out
        SAFEARRAYBOUND bounds[2] = {{2, 5}, {1, 0}};
        array = com::CVtlSafeArray<Element>(
            SafeArrayCreate(com::CVtlSafeArray<Element>::Traits::kType, 1, bounds));
        EXPECT_EQ(S_OK, array.PutElement(6, element));
        EXPECT_EQ(S_OK, (object.Get()->*set)(array.Get()));
        com::CVtlSafeArray<Element> wrong[] = {
            com::CVtlSafeArray<Element>(),
            com::CVtlSafeArray<Element>(SafeArrayCreateVector(VT_DATE, 0, 1)),
            com::CVtlSafeArray<Element>(
                SafeArrayCreate(com::CVtlSafeArray<Element>::Traits::kType, 2, bounds)),
        };
        for (const auto& refused : wrong) EXPECT_EQ(E_INVALIDARG, (object.Get()->*set)(refused.Get()));
        EXPECT_EQ(S_OK, (object.Get()->*get)(given.Put()));
        EXPECT_EQ(0, given.LowerBound());
        EXPECT_EQ(Describe(given.Get()), Describe(array.Get())) << "a refused array changes nothing";
        EXPECT_EQ(E_POINTER, (object.Get()->*get)(nullptr));
    }
};

TEST_F(StandInsTest, EveryObjectHandsBackWhatItWasGiven) {
    const wchar_t *scenario = L"Vantrel.ReplayRecoveryScenario", *popUp = L"Vantrel.PopUpRecoveryTrigger",
                  *error = L"Vantrel.ErrorRecoveryTrigger", *crash = L"Vantrel.CrashRecoveryTrigger",
                  *state = L"Vantrel.ObjectStateRecoveryTrigger",
                  *keys = L"Vantrel.KeyBoardSimulatorRecoveryAction",
                  *access = L"Vantrel.ObjectAccessorRecoveryAction",
                  *close = L"Vantrel.ProcessControlRecoveryAction",
                  *call = L"Vantrel.FunctionCallRecoveryAction";
    using Access = IObjectAccessorRecoveryAction;
    using Function = IFunctionCallRecoveryAction;
    CheckNumber(scenario, &IRecoveryScenario::GetPostRecoveryOption,
                &IRecoveryScenario::SetPostRecoveryOption);
    CheckNumber(popUp, &IPopUpRecoveryTrigger::NotUsedGetPopUpOption, &IPopUpRecoveryTrigger::SetPopUpOption);
    CheckNumber(error, &IErrorRecoveryTrigger::GetErrorCode, &IErrorRecoveryTrigger::SetErrorCode);
    CheckNumber(crash, &ICrashRecoveryTrigger::NotUsedGetCrashOption,
                &ICrashRecoveryTrigger::NotUsedSetCrashOption);
    CheckNumber(state, &IObjectStateRecoveryTrigger::GetObjectStateOption,
                &IObjectStateRecoveryTrigger::SetObjectStateOption);
    CheckNumber(access, &Access::GetTargetKind, &Access::SetTargetKind);
    CheckNumber(call, &Function::GetPrototypeMode, &Function::SetPrototypeMode);
    CheckText(scenario, &IRecoveryScenario::GetDescription, &IRecoveryScenario::SetDescription);
    CheckText(access, &Access::GetMethodName, &Access::SetMethodName);
    CheckText(call, &Function::GetFunctionName, &Function::SetFunctionName);
    CheckText(call, &Function::GetLibraryPath, &Function::SetLibraryPath);
    CheckArray<BSTR>(crash, &ICrashRecoveryTrigger::GetProcesses, &ICrashRecoveryTrigger::SetProcesses,
                     Bstr(L"a\0b"));
    CheckArray<BSTR>(close, &IProcessControlRecoveryAction::GetProcessNames,
                     &IProcessControlRecoveryAction::SetProcessNames, Bstr(L"x.exe"));
    CheckArray<unsigned long>(keys, &IKeyBoardSimulatorRecoveryAction::GetKeySequence,
                              &IKeyBoardSimulatorRecoveryAction::SetKeySequence, 0xf100000dul);
    CheckArray<VARIANT>(access, &Access::GetMethodArguments, &Access::SetMethodArguments,
                        com::Variant(L"OK"));
    CheckArray<IUnknown*>(scenario, &IRecoveryScenario::GetOperations, &IRecoveryScenario::SetOperations,
                          New<IUnknown>(keys));
}

TEST_F(StandInsTest, APopUpTriggerKeepsBothTextsApart) {
    const auto trigger = New<IPopUpRecoveryTrigger>(L"Vantrel.PopUpRecoveryTrigger");
    Bstr text;
    long regular = 7;
    EXPECT_EQ(S_OK, trigger->SetWindowTitle(Bstr(L"title").Get(), 1));
    EXPECT_EQ(S_OK, trigger->GetWindowText(text.Put(), &regular));
    EXPECT_EQ(L"0", text.Text() + std::to_wstring(regular));
    EXPECT_EQ(S_OK, trigger->SetWindowText(Bstr(L"a\nb").Get(), 2));
    EXPECT_EQ(S_OK, trigger->GetWindowText(text.Put(), &regular));
    EXPECT_EQ(L"a\nb2", text.Text() + std::to_wstring(regular));
    EXPECT_EQ(S_OK, trigger->GetWindowTitle(text.Put(), &regular));
    EXPECT_EQ(L"title1", text.Text() + std::to_wstring(regular));
    EXPECT_EQ(E_POINTER, trigger->GetWindowTitle(text.Put(), nullptr));
    EXPECT_TRUE(text.IsNull());
}

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

TEST_F(StandInsTest, TheScenarioKeepsItsPartsThemselves) {
    const auto scenario = New<IRecoveryScenario>(L"Vantrel.ReplayRecoveryScenario");
    const auto trigger = New<IUnknown>(L"Vantrel.ErrorRecoveryTrigger");
    com::Ptr<IUnknown> given = trigger;
    EXPECT_EQ(S_OK, scenario->GetTrigger(given.ReleaseAndGetAddressOf()));
    EXPECT_FALSE(given);
    EXPECT_EQ(S_OK, scenario->SetTrigger(trigger.Get()));
    EXPECT_EQ(S_OK, scenario->GetTrigger(given.ReleaseAndGetAddressOf()));
    EXPECT_EQ(trigger.Get(), given.Get());
    EXPECT_EQ(E_POINTER, scenario->GetTrigger(nullptr));

    com::CVtlSafeArray<VARIANT> variants;
    com::CVtlSafeArray<IUnknown*> operations;
    EXPECT_EQ(S_OK, variants.Create(2));
    EXPECT_EQ(S_OK, variants.PutElement(1, com::Variant(trigger.Get())));
    EXPECT_EQ(S_OK, scenario->SetOperations(variants.Get()));
    EXPECT_EQ(S_OK, scenario->GetOperations(operations.Put()));
    EXPECT_EQ(L"[nothing, ErrorRecoveryTrigger]", Describe(operations.Get()));
}

TEST_F(StandInsTest, TheRackGivesWhatWasPutInUnderExactlyThatName) {
    const auto rack = New<IObjectRack>(L"Tovarin.ObjectRack");
    const auto client = New<IObjectRackClient>(L"Vantrel.RecoveryRepository");
    const auto get = [&](const wchar_t* name, REFIID iid) {
        IUnknown* object = client.Get();
        const HRESULT hr = rack->GetObject(Bstr(name).Get(), iid, &object);
        EXPECT_EQ(SUCCEEDED(hr), object != nullptr);
        if (object) object->Release();
        return hr;
    };
    EXPECT_EQ(E_FAIL, get(L"RecordMgr", IID_IUnknown));
    EXPECT_EQ(S_OK, rack->SetObject(Bstr(L"RecordMgr").Get(), client.Get()));
    EXPECT_EQ(S_OK, get(L"RecordMgr", __uuidof(IObjectRackClient)));
    EXPECT_EQ(E_NOINTERFACE, get(L"RecordMgr", __uuidof(IRecordMgr)));
    EXPECT_EQ(E_FAIL, get(L"recordmgr", IID_IUnknown));
    EXPECT_EQ(E_POINTER, rack->GetObject(Bstr(L"RecordMgr").Get(), IID_IUnknown, nullptr));
    EXPECT_EQ(E_INVALIDARG, rack->SetObject(Bstr(L"x").Get(), nullptr));
    EXPECT_EQ(E_INVALIDARG, rack->SetObject(nullptr, client.Get()));
    EXPECT_EQ(S_OK, rack->RemoveObject(Bstr(L"RecordMgr").Get()));
    EXPECT_EQ(E_FAIL, rack->RemoveObject(Bstr(L"RecordMgr").Get()));

    com::Ptr<IObjectRack> held;
    EXPECT_EQ(E_FAIL, client->GetRack(held.GetAddressOf()));
    EXPECT_EQ(S_OK, client->SetRack(rack.Get()));
    EXPECT_EQ(S_OK, client->SetRack(rack.Get()));
    EXPECT_EQ(S_OK, client->GetRack(held.GetAddressOf()));
    EXPECT_EQ(rack.Get(), held.Get());
    EXPECT_EQ(E_POINTER, client->GetRack(nullptr));
    EXPECT_EQ(S_OK, client->SetRack(nullptr));
    EXPECT_EQ(E_FAIL, client->GetRack(held.ReleaseAndGetAddressOf()));
}

TEST_F(StandInsTest, EveryCallBecomesOneLine) {
    const auto scenario = New<IRecoveryScenario>(L"Vantrel.ReplayRecoveryScenario");
    const auto trigger = New<IUnknown>(L"Vantrel.PopUpRecoveryTrigger");
    long option = 0;
    Bstr text;
    ForgetCalls();
    scenario->SetTrigger(trigger.Get());
    scenario->SetPostRecoveryOption(2);
    scenario->GetPostRecoveryOption(&option);
    scenario->GetPostRecoveryOption(nullptr);
    scenario->SetDescription(Bstr(L"a\t\"b\"\n\x1").Get());
    scenario->GetDescription(text.Put());
    scenario->SetOperations(nullptr);
    scenario->SetDescription(Bstr(std::wstring(1000, L'x')).Get());
    EXPECT_EQ(
        L"RecoveryScenario.SetTrigger(PopUpRecoveryTrigger) -> S_OK\n"
        L"RecoveryScenario.SetPostRecoveryOption(2) -> S_OK\n"
        L"RecoveryScenario.GetPostRecoveryOption() -> S_OK: 2\n"
        L"RecoveryScenario.GetPostRecoveryOption() -> E_POINTER\n"
        L"RecoveryScenario.SetDescription(\"a\\t\\\"b\\\"\\n\\x01\") -> S_OK\n"
        L"RecoveryScenario.GetDescription() -> S_OK: \"a\\t\\\"b\\\"\\n\\x01\"\n"
        L"RecoveryScenario.SetOperations(no array) -> E_INVALIDARG\n"
        L"RecoveryScenario.SetDescription(\"" +
            std::wstring(200, L'x') + L"\"... (1000 characters)) -> S_OK\n",
        Calls());
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

class Listener final : public com::Object<Listener, IJournalListener> {
public:
    HRESULT STDMETHODCALLTYPE OnCall(BSTR object, BSTR operation, BSTR arguments,
                                     BSTR result) noexcept override {
        heard += std::wstring(com::ViewOf(object)) + L"|" + std::wstring(com::ViewOf(operation)) + L"|" +
                 std::wstring(com::ViewOf(arguments)) + L"|" + std::wstring(com::ViewOf(result));
        return S_OK;
    }
    std::wstring heard;
};

TEST_F(StandInsTest, AListenerHearsCallsUntilItIsRemoved) {
    const auto journal = New<ICallJournal>(L"Tovarin.CallJournal");
    const auto trigger = New<IErrorRecoveryTrigger>(L"Vantrel.ErrorRecoveryTrigger");
    const auto listener = Listener::Make();
    EXPECT_EQ(S_OK, journal->AddListener(listener.Get()));
    trigger->SetErrorCode(4);
    EXPECT_EQ(S_OK, journal->RemoveListener(listener.Get()));
    EXPECT_EQ(E_INVALIDARG, journal->RemoveListener(listener.Get()));
    EXPECT_EQ(E_INVALIDARG, journal->AddListener(nullptr));
    EXPECT_EQ(E_POINTER, journal->GetText(nullptr));
    trigger->SetErrorCode(5);
    EXPECT_EQ(L"ErrorRecoveryTrigger|SetErrorCode|4|S_OK", listener->heard);

    const TempFolder folder;
    ForgetCalls();
    trigger->SetErrorCode(6);
    EXPECT_EQ(S_OK, journal->WriteToFile(Bstr(folder / L"journal.txt").Get()));
    EXPECT_EQ("ErrorRecoveryTrigger.SetErrorCode(6) -> S_OK\n", TempFolder::Read(folder / L"journal.txt"));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_PATH_NOT_FOUND),
              journal->WriteToFile(Bstr(folder / L"no\\journal.txt").Get()));
}

TEST(Journal, CallsThatNobodyWantsAreNotWrittenDown) {
    Journal& journal = Journal::Instance();  // this program's own, not that of the stand-ins' module
    JournalCall(L"Object", L"Operation", 1L).Result(S_OK);
    EXPECT_EQ(L"", journal.Text());
    journal.AddInterest();
    JournalCall(L"Object", L"Operation", 2L).Result(S_OK);
    journal.RemoveInterest();
    EXPECT_EQ(L"Object.Operation(2) -> S_OK\n", journal.Text());
    journal.Clear();
}

}  // namespace
}  // namespace tovarin

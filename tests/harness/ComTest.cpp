#include "harness/ComTest.h"

#include "HostInterfaces.h"
#include "com/Create.h"
#include "harness/ProcessWindows.h"

namespace recoveryui::test {
namespace {

HMODULE Load(const wchar_t* dll) {
    const HMODULE module = LoadLibraryW(dll);
    EXPECT_NE(module, nullptr) << Utf8(dll);
    return module;
}

// The platform's file dialog leaves COM initialised once more for every time that it was shown.
void LeaveApartment() {
    APTTYPE kind{};
    APTTYPEQUALIFIER qualifier{};
    do {
        CoUninitialize();
    } while (SUCCEEDED(CoGetApartmentType(&kind, &qualifier)) && kind == APTTYPE_MAINSTA);
}

}  // namespace

HRESULT CallEntryPoint(HMODULE module, const char* name) {
    const auto function =
        reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(reinterpret_cast<void*>(GetProcAddress(module, name)));
    return function ? function() : E_FAIL;
}

ComTest::ComTest() {
    EXPECT_EQ(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), S_OK);
    component_ = Load(L"RecoveryUI.dll");
    standIns_ = Load(L"TovarinObjects.dll");
    journal_ = New<ICallJournal>(L"Tovarin.CallJournal");
}

ComTest::~ComTest() {
    if (journal_) {
        journal_->ClearFaults();
        journal_->Clear();
    }
    journal_.Reset();
    RunPendingMessages();
    EXPECT_TRUE(CanUnload()) << "objects of the component are alive";
    EXPECT_EQ(CallEntryPoint(standIns_, "DllCanUnloadNow"), S_OK) << "stand-ins are alive";
    EXPECT_EQ(WindowsLeft(), "") << "windows are left";
    LeaveApartment();
    FreeLibrary(standIns_);
    FreeLibrary(component_);
}

void ComTest::Create(const wchar_t* progId, REFIID iid, void** object) {
    EXPECT_EQ(com::CreateByProgId(progId, iid, object), S_OK) << Utf8(progId);
}

HRESULT ComTest::Use(const wchar_t* title, const std::function<HRESULT()>& call, const Story& story) {
    const User user([&](UserScreen& screen) {
        const HWND window = screen.WaitForWindow(title);
        story(screen, window);
        if (IsWindow(window)) screen.Press(window, IDCANCEL);
    });
    return call();
}

void ComTest::FailCall(const wchar_t* object, const wchar_t* operation, HRESULT code, long nth, long times) {
    EXPECT_EQ(journal_->FailCall(com::Bstr(object).Get(), com::Bstr(operation).Get(), nth, code, times),
              S_OK);
}

void ComTest::ClearFaults() {
    EXPECT_EQ(journal_->ClearFaults(), S_OK);
}

std::wstring ComTest::Calls() {
    com::Bstr text;
    EXPECT_EQ(journal_->GetText(text.Put()), S_OK);
    return text.Text();
}

void ComTest::ForgetCalls() {
    EXPECT_EQ(journal_->Clear(), S_OK);
}

Rows NamesInFile(const std::wstring& path) {
    Rows names;
    com::Ptr<IRecoveryRepository> repository;
    com::Ptr<IScenarioEnumerator> enumerator;
    EXPECT_EQ(com::Create(L"Vantrel.RecoveryRepository", repository), S_OK);
    EXPECT_EQ(repository->Load(com::Bstr(path).Get(), VARIANT_TRUE), S_OK);
    EXPECT_EQ(repository->GetScenarioEnumerator(enumerator.GetAddressOf()), S_OK);
    com::Bstr name;
    while (enumerator->Next(name.Put()) == S_OK) names.push_back(name.Text());
    return names;
}

Rack::Rack() {
    EXPECT_EQ(com::Create(L"Tovarin.ObjectRack", rack_), S_OK);
}

Rack& Rack::Put(const wchar_t* name, IUnknown* object) {
    EXPECT_EQ(rack_->SetObject(com::Bstr(name).Get(), object), S_OK) << Utf8(name);
    return *this;
}

Rack& Rack::Put(const wchar_t* name, const wchar_t* progId) {
    com::Ptr<IUnknown> object;
    EXPECT_EQ(com::Create(progId, object), S_OK) << Utf8(progId);
    return Put(name, object.Get());
}

void Rack::GiveTo(IUnknown* client) const {
    const auto rackClient = com::Query<IObjectRackClient>(client);
    ASSERT_TRUE(rackClient) << "takes no rack";
    EXPECT_EQ(rackClient->SetRack(rack_.Get()), S_OK);
}

}  // namespace recoveryui::test

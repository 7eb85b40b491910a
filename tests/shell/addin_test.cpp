// The add-in between its connection and its disconnection.
#include <windows.h>

#include <docobj.h>

#include <utility>

#include "HostInterfaces.h"
#include "com/Object.h"
#include "harness/ComTest.h"

namespace recoveryui::test {
namespace {

constexpr GUID kGroup = {0x5b0e1f0a, 0x1111, 0x4c4c, {1, 2, 3, 4, 5, 6, 7, 8}};
constexpr ULONG kCommand = 42;

class Collector final : public com::Object<Collector, ISettingsPageCollector> {
public:
    HRESULT STDMETHODCALLTYPE AddProvider(IUnknown* provider) noexcept override {
        provider_ = provider;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE RemoveProvider(IUnknown*) noexcept override {
        provider_.Reset();
        return S_OK;
    }
    com::Ptr<IUnknown> provider_;
};

// A host's add-in manager, of which any part may be missing.
class Manager final : public com::Object<Manager, IMenuCommands, IObjectRackClient> {
public:
    HRESULT STDMETHODCALLTYPE RegisterCommand(BSTR text, IUnknown* target, GUID* group,
                                              ULONG* command) noexcept override {
        text_ = com::ViewOf(text);
        target_ = com::Query<IOleCommandTarget>(target);
        *group = kGroup;
        *command = kCommand;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE UnregisterCommand(ULONG) noexcept override {
        target_.Reset();
        ++unregistered_;
        if (const auto addIn = std::exchange(disconnects_, nullptr)) addIn->OnDisconnection();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetRack(IObjectRack** rack) noexcept override { return rack_.CopyTo(rack); }
    HRESULT STDMETHODCALLTYPE SetRack(IObjectRack* rack) noexcept override {
        rack_ = rack;
        return S_OK;
    }
    std::wstring text_;
    com::Ptr<IOleCommandTarget> target_;
    com::Ptr<IObjectRack> rack_;
    IUIAddIn* disconnects_ = nullptr;  // from within the next taking back
    int unregistered_ = 0;
};

class AddInTest : public ComTest {
protected:
    AddInTest() {
        frame_.Put(L"FRAME_PropProviderSettings", static_cast<ISettingsPageCollector*>(collector_.Get()));
        rack_.Put(L"FrameRack", frame_.Get());
        manager_->SetRack(rack_.Get());
    }
    ~AddInTest() override { addIn_->OnDisconnection(); }

    HRESULT Connect() { return addIn_->OnConnection(static_cast<IMenuCommands*>(manager_.Get()), 7); }
    bool IsConnected() const { return manager_->target_ && collector_->provider_; }
    bool IsUntouched() const { return !manager_->target_ && !collector_->provider_; }

    Rack rack_, frame_;
    com::Ptr<Collector> collector_ = Collector::Make();
    com::Ptr<Manager> manager_ = Manager::Make();
    com::Ptr<IUIAddIn> addIn_ = New<IUIAddIn>(L"Vantrel.RecoveryUIAddin");
};

TEST_F(AddInTest, ConnectsItsCommandAndItsSettingsPageAndTakesThemBack) {
    ASSERT_EQ(Connect(), S_OK);
    EXPECT_TRUE(IsConnected());
    EXPECT_EQ(manager_->text_,
              L"Recovery Scenario &Manager...;Displays the Recovery Scenario Manager dialog box");
    CAUUID pages{};
    const auto specifier = com::Query<ISpecifyPropertyPages>(collector_->provider_.Get());
    ASSERT_TRUE(specifier);
    EXPECT_EQ(specifier->GetPages(&pages), S_OK);
    ASSERT_EQ(pages.cElems, 1u);
    EXPECT_TRUE(IsEqualGUID(pages.pElems[0], CLSID_RecoveryPP));
    CoTaskMemFree(pages.pElems);
    EXPECT_EQ(specifier->GetPages(nullptr), E_POINTER);

    EXPECT_EQ(addIn_->OnConnection(nullptr, 0), E_INVALIDARG);
    EXPECT_TRUE(IsConnected()) << "no manager changes nothing";
    EXPECT_EQ(Connect(), S_OK) << "a second connection replaces the first";
    EXPECT_TRUE(IsConnected());
    com::Bstr name;
    EXPECT_EQ(addIn_->get_Name(name.Put()), S_OK);
    EXPECT_EQ(name.View(), L"Recovery Scenario Manager");
    EXPECT_EQ(manager_->unregistered_, 1);
    manager_->disconnects_ = addIn_.Get();
    EXPECT_EQ(addIn_->OnDisconnection(), S_OK);
    EXPECT_TRUE(IsUntouched());
    EXPECT_EQ(manager_->unregistered_, 2) << "a host that disconnects meanwhile is asked once";
}

TEST_F(AddInTest, AFailingConnectionLeavesNothingBehind) {
    EXPECT_EQ(addIn_->OnConnection(nullptr, 0), E_INVALIDARG);
    EXPECT_EQ(addIn_->OnConnection(static_cast<ISettingsPageCollector*>(collector_.Get()), 0), E_NOINTERFACE);
    EXPECT_EQ(addIn_->OnConnection(rack_.Get(), 0), E_NOINTERFACE) << "a rack, but no menu";
    manager_->SetRack(nullptr);
    EXPECT_EQ(Connect(), E_FAIL) << "no rack";
    manager_->SetRack(rack_.Get());
    for (const wchar_t* missing : {L"FrameRack", L"FRAME_PropProviderSettings"}) {
        Rack& holder = missing == std::wstring_view(L"FrameRack") ? rack_ : frame_;
        com::Ptr<IUnknown> kept;
        holder.Get()->GetObject(com::Bstr(missing).Get(), IID_IUnknown, kept.GetAddressOf());
        holder.Get()->RemoveObject(com::Bstr(missing).Get());
        EXPECT_EQ(Connect(), E_FAIL);
        EXPECT_TRUE(IsUntouched());
        com::Ptr<IObjectRack> held;
        com::Query<IObjectRackClient>(addIn_.Get())->GetRack(held.GetAddressOf());
        EXPECT_FALSE(held);
        holder.Put(missing, kept.Get());
    }
    EXPECT_EQ(Connect(), S_OK);
}

TEST_F(AddInTest, TheCommandOpensTheManagerWhileARackIsHeld) {
    ASSERT_EQ(Connect(), S_OK);
    const com::Ptr<IOleCommandTarget> target = manager_->target_;
    const auto status = [&](ULONG id) {
        OLECMD command{id, 0};
        OLECMDTEXT text{OLECMDTEXTF_NAME, 1, 1, L""};
        EXPECT_EQ(target->QueryStatus(&kGroup, 1, &command, &text), S_OK);
        EXPECT_EQ(text.cwActual, 0u) << "no text of its own";
        return command.cmdf;
    };
    EXPECT_EQ(status(kCommand), DWORD{OLECMDF_SUPPORTED | OLECMDF_ENABLED});
    EXPECT_EQ(status(kCommand + 1), 0u);
    EXPECT_EQ(target->QueryStatus(&GUID_NULL, 0, nullptr, nullptr), E_POINTER);
    EXPECT_EQ(target->Exec(nullptr, kCommand, 0, nullptr, nullptr), OLECMDERR_E_UNKNOWNGROUP);
    EXPECT_EQ(target->Exec(&kGroup, kCommand + 1, 0, nullptr, nullptr), OLECMDERR_E_NOTSUPPORTED);
    {
        User user([&](UserScreen& screen) {
            const HWND manager = screen.WaitForWindow(L"Recovery Scenario Manager");
            screen.Do([&] { addIn_->OnDisconnection(); });
            screen.Press(manager, IDCANCEL);
        });
        EXPECT_EQ(target->Exec(&kGroup, kCommand, 0, nullptr, nullptr), S_OK)
            << "disconnected while it is open";
    }
    EXPECT_EQ(target->Exec(&kGroup, kCommand, 0, nullptr, nullptr), OLECMDERR_E_UNKNOWNGROUP);
    ASSERT_EQ(Connect(), S_OK);
    com::Query<IObjectRackClient>(addIn_.Get())->SetRack(nullptr);
    EXPECT_EQ(status(kCommand), DWORD{OLECMDF_SUPPORTED}) << "disabled without a rack";
    EXPECT_EQ(target->Exec(&kGroup, kCommand, 0, nullptr, nullptr), OLECMDERR_E_DISABLED);
}

}  // namespace
}  // namespace recoveryui::test

// The add-in between its connection to the host and its disconnection.
#include <windows.h>

#include <docobj.h>

#include "app/AddInManager.h"
#include "app/SettingsPages.h"
#include "harness/ComTest.h"
#include "objects/Journal.h"

namespace recoveryui::test {
namespace {

// Of the host's commands.
constexpr GUID kGroup = {0x3e0b6b4b, 0x7e0f, 0x4f35, {0x9b, 0x6c, 0x6a, 0x1d, 0x5c, 0x7d, 0x4e, 0x21}};
constexpr ULONG kCommand = 1;

class AddInTest : public ComTest {
protected:
    AddInTest() {
        frame_.Put(L"FRAME_PropProviderSettings", pages_->KeepAlive().Get());
        rack_.Put(L"FrameRack", frame_.Get());
        manager_->SetRack(rack_.Get());
    }
    ~AddInTest() override { addIn_->OnDisconnection(); }

    HRESULT Connect() { return addIn_->OnConnection(manager_->KeepAlive().Get(), 7); }
    bool IsConnected() const { return manager_->Commands().size() == 1 && pages_->Classes().size() == 1; }
    bool IsUntouched() const { return manager_->Commands().empty() && pages_->Classes().empty(); }

    Rack rack_, frame_;
    const com::Ptr<tovarin::SettingsPages> pages_ = tovarin::SettingsPages::Make();
    const com::Ptr<tovarin::AddInManager> manager_ = tovarin::AddInManager::Make(nullptr);
    com::Ptr<IUIAddIn> addIn_ = New<IUIAddIn>(L"Vantrel.RecoveryUIAddin");
};

TEST_F(AddInTest, ConnectsItsCommandAndItsSettingsPageAndTakesThemBack) {
    ASSERT_EQ(Connect(), S_OK);
    EXPECT_TRUE(IsConnected());
    EXPECT_EQ(manager_->Commands()[0].caption, L"Recovery Scenario &Manager...");
    EXPECT_EQ(manager_->Commands()[0].prompt, L"Displays the Recovery Scenario Manager dialog box");
    EXPECT_TRUE(IsEqualGUID(pages_->Classes()[0], CLSID_RecoveryPP));
    EXPECT_EQ(New<ISpecifyPropertyPages>(L"Vantrel.RecoveryPPSpecifier")->GetPages(nullptr), E_POINTER);
    EXPECT_EQ(addIn_->OnConnection(nullptr, 0), E_INVALIDARG);
    EXPECT_TRUE(IsConnected()) << "no manager changes nothing";
    EXPECT_EQ(Connect(), S_OK) << "a second connection replaces the first";
    EXPECT_TRUE(IsConnected());
    com::Bstr name;
    EXPECT_EQ(addIn_->get_Name(name.Put()), S_OK);
    EXPECT_EQ(name.View(), L"Recovery Scenario Manager");
    tovarin::Journal& journal = tovarin::Journal::Instance();  // this program's own
    journal.AddInterest();
    manager_->OnChange([&] { addIn_->OnDisconnection(); });
    EXPECT_EQ(addIn_->OnDisconnection(), S_OK);
    EXPECT_TRUE(IsUntouched());
    EXPECT_EQ(journal.Text(),
              L"SettingsPageCollector.RemoveProvider(object) -> S_OK\n"
              L"AddInManager.UnregisterCommand(2) -> S_OK\n")
        << "a host that disconnects meanwhile is asked once";
    journal.RemoveInterest();
    journal.Clear();
}

TEST_F(AddInTest, AFailingConnectionLeavesNothingBehind) {
    EXPECT_EQ(addIn_->OnConnection(nullptr, 0), E_INVALIDARG);
    EXPECT_EQ(addIn_->OnConnection(pages_->KeepAlive().Get(), 0), E_NOINTERFACE);
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
    const com::Ptr<IOleCommandTarget> target = manager_->Commands().at(0).target;
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
    EXPECT_EQ(status(kCommand + 1), DWORD{OLECMDF_SUPPORTED}) << "disabled without a rack";
    EXPECT_EQ(target->Exec(&kGroup, kCommand + 1, 0, nullptr, nullptr), OLECMDERR_E_DISABLED);
}

}  // namespace
}  // namespace recoveryui::test

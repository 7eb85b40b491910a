// Values that somebody else left behind: in the host's options and in recovery files.
#include <windows.h>

#include <commctrl.h>

#include "com/Object.h"
#include "manager/ManagerTest.h"
#include "objects/services/NamedMembers.h"
#include "settings/SettingsTest.h"

namespace recoveryui::test {
namespace {

// Answers every question with one value, of any type.
class HostileOptions final : public com::Object<HostileOptions, ITestOptions, tovarin::NamedMembers> {
public:
    com::Variant item, value;
    std::wstring registryPath;

    HRESULT STDMETHODCALLTYPE GetItem(VARIANT, VARIANT* out) noexcept override {
        *out = item.Type() == VT_EMPTY ? com::Variant(static_cast<IDispatch*>(this)).Detach()
                                       : com::Variant(item).Detach();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetOptionValue(BSTR, BSTR, VARIANT* out, long, long) noexcept override {
        *out = com::Variant(value).Detach();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE SetOptionValue(BSTR, BSTR, VARIANT, long, long, long, long,
                                             long) noexcept override {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetSettingsRegistryPath(BSTR* out) noexcept override {
        return com::CopyTo(out, registryPath);
    }

private:
    DISPID FindMember(const wchar_t*) const noexcept override { return DISPID_UNKNOWN; }
    HRESULT InvokeMember(DISPID, WORD, DISPPARAMS&, VARIANT*) noexcept override { return E_FAIL; }
};

com::Variant OfType(VARTYPE type, LONGLONG bits) {
    com::Variant made;
    VARIANT* const raw = made.Put();
    raw->llVal = bits;
    raw->vt = type;
    return made;
}

using HostileOptionsTest = SettingsTest;

TEST_F(HostileOptionsTest, TheTabOpensOnOptionsOfEveryType) {
    static LONG number = 7;
    const std::wstring nul(L"a.trs;N\0;1;1*", 13);
    std::wstring many;
    for (int i = 0; i < 2000; ++i) many += L"a.trs;Name " + std::to_wstring(i) + L";1;1*";
    const std::wstring wide(300'000, L';');
    const struct {
        com::Variant value;
        LRESULT rows;
    } values[] = {
        {OfType(VT_NULL, 0), 0},
        {OfType(VT_R8, -1), 0},
        {OfType(VT_I2, -1), 0},
        {OfType(VT_BOOL, 5), 0},
        {OfType(VT_BSTR, 0), 0},
        {OfType(VT_DISPATCH, 0), 0},
        {OfType(VT_BYREF | VT_I4, reinterpret_cast<LONGLONG>(&number)), 0},
        {OfType(VT_ARRAY | VT_BSTR, reinterpret_cast<LONGLONG>(SafeArrayCreateVector(VT_BSTR, 0, 2))), 0},
        {OfType(VT_ARRAY | VT_UI1, 0), 0},
        {com::Variant(nul), 1},
        {com::Variant(L"*;;*;1;1"), 1},
        {com::Variant(wide), 0},
        {com::Variant(many), 2000}};
    const auto hostile = HostileOptions::Make();
    // The tab and everything that it asks get their answers from it, and its frame.
    rack_.Put(L"TestOptions", static_cast<ITestOptions*>(hostile.Get()));
    for (const auto& [value, rows] : values) {
        SCOPED_TRACE(value.Type());
        hostile->value = value;
        hostile->registryPath = nul;
        // The host's own tab shows the frame's texts, and takes its time for long ones.
        options_ = value.Text().size() < 1000 ? hostile.Get() : settings_.Get();
        OpenSettings([&, rows = rows](UserScreen& screen, HWND frame) {
            EXPECT_EQ(screen.Ask(screen.Control(frame, IDC_RECOVERY_LIST), LVM_GETITEMCOUNT), rows);
            EXPECT_TRUE(screen.IsEnabled(frame, IDC_RECOVERY_ADD));
            if (rows != 1) return;
            screen.Press(frame, IDC_RECOVERY_ADD);  // reads its recent files
            screen.Press(screen.WaitForWindow(L"Add Recovery Scenario"), IDCANCEL);
        });
    }
    // A branch that is none.
    for (const com::Variant& item : {OfType(VT_NULL, 0), OfType(VT_DISPATCH, 0), com::Variant(L"x")}) {
        hostile->item = item;
        OpenSettings([&](UserScreen& screen, HWND frame) {
            EXPECT_EQ(screen.RowsOf(frame, IDC_RECOVERY_LIST), Rows{});
        });
    }
}

using HostileFilesTest = ManagerTest;

TEST_F(HostileFilesTest, NamesWithNulsAreDifferentScenarios) {
    const std::wstring first(L"n\0a", 3), second(L"n\0b", 3);
    const std::wstring file = MakePopUps(L"names.trs", {first, second, L"n"});
    Manage([&](UserScreen& screen, HWND manager) {
        OpenFile(screen, manager, file);
        EXPECT_EQ(Names(screen, manager), (Rows{L"n", L"n", L"n"}));
        screen.Choose(manager, IDC_MANAGER_LIST, L"n");  // the first of them
        EXPECT_EQ(screen.Text(manager, IDC_MANAGER_DESCRIPTION), L"About n");
        screen.Press(manager, IDC_MANAGER_DELETE);
        EXPECT_EQ(Names(screen, manager), (Rows{L"n", L"n"}));
        Leave(screen, manager, IDYES);
    });
    EXPECT_EQ(NamesInFile(file), (Rows{second, L"n"}));
}

}  // namespace
}  // namespace recoveryui::test

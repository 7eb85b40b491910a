// The Recovery tab as a settings frame of any making meets it.
#include <windows.h>

#include <commctrl.h>
#include <olectl.h>

#include "com/Object.h"
#include "settings/SettingsTest.h"

namespace recoveryui::test {
namespace {

// Does something once, while the host reads a recovery file.
class WhileLoading final : public com::Object<WhileLoading, IJournalListener> {
public:
    std::function<void()> act;
    HRESULT STDMETHODCALLTYPE OnCall(BSTR, BSTR operation, BSTR, BSTR) noexcept override {
        if (com::ViewOf(operation) == L"Load" && act) std::exchange(act, nullptr)();
        return S_OK;
    }
};

class RecoveryPageTest : public SettingsTest {
protected:
    RecoveryPageTest()
        : frame_(CreateWindowExW(0, L"#32770", L"Frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 600, 500,
                                 nullptr, nullptr, GetModuleHandleW(nullptr), nullptr)),
          page_(New<IPropertyPage>(L"Vantrel.RecoveryPP")) {
        rack_.GiveTo(page_.Get());
    }
    ~RecoveryPageTest() override {
        if (IsWindow(frame_)) DestroyWindow(frame_);
    }
    HWND Tab() const { return GetWindow(frame_, GW_CHILD); }
    HRESULT Activate() { return page_->Activate(frame_, &kPlace, FALSE); }
    // Where the page's window stands in its frame.
    void ExpectAt(const RECT& wanted) const {
        const RECT place = PlaceOf(Tab(), frame_);
        EXPECT_TRUE(EqualRect(&place, &wanted));
    }

    static constexpr RECT kPlace{10, 20, 510, 400};
    HWND frame_;
    com::Ptr<IPropertyPage> page_;
};

TEST_F(RecoveryPageTest, SaysWhatItIsAndGoesWhereItIsPut) {
    PROPPAGEINFO info{};
    info.cb = 0xDEAD;
    EXPECT_EQ(page_->GetPageInfo(&info), S_OK);
    EXPECT_STREQ(info.pszTitle, L"Recovery");
    EXPECT_STREQ(info.pszHelpFile, L"Test_Settings_-_Recovery_tab.htm");
    RECT units{0, 0, 300, 203};
    EXPECT_EQ(Activate(), S_OK);
    MapDialogRect(Tab(), &units);
    EXPECT_EQ(info.size.cx, units.right);
    EXPECT_EQ(info.size.cy, units.bottom);
    CoTaskMemFree(info.pszTitle);
    CoTaskMemFree(info.pszHelpFile);

    const RECT second{0, 0, 580, 450};
    ExpectAt(kPlace);
    EXPECT_FALSE(IsWindowVisible(Tab()));
    EXPECT_EQ(page_->Move(&second), S_OK);
    ExpectAt(second);
    for (const UINT command : {SW_SHOW, SW_HIDE}) {
        EXPECT_EQ(page_->Show(command), S_OK);
        EXPECT_EQ(IsWindowVisible(Tab()) != 0, command == SW_SHOW);
    }
    EXPECT_EQ(page_->Deactivate(), S_OK);
    EXPECT_EQ(Tab(), nullptr);
}

TEST_F(RecoveryPageTest, RefusesWhatCannotBe) {
    MSG message{};
    const struct {
        const char* call;
        HRESULT answer, expected;
    } cases[] = {
        {"GetPageInfo", page_->GetPageInfo(nullptr), E_POINTER},
        {"Activate nowhere", page_->Activate(frame_, nullptr, FALSE), E_POINTER},
        {"Activate in nothing", page_->Activate(nullptr, &kPlace, FALSE), E_UNEXPECTED},
        {"Deactivate", page_->Deactivate(), E_UNEXPECTED},
        {"Show", page_->Show(SW_SHOW), E_UNEXPECTED},
        {"Show somehow", page_->Show(SW_MAXIMIZE), E_INVALIDARG},
        {"Move", page_->Move(&kPlace), E_UNEXPECTED},
        {"Move nowhere", page_->Move(nullptr), E_POINTER},
        {"SetObjects", page_->SetObjects(1, nullptr), E_POINTER},
        {"SetObjects none", page_->SetObjects(0, nullptr), S_OK},
        {"TranslateAccelerator", page_->TranslateAccelerator(nullptr), E_POINTER},
        {"TranslateAccelerator other", page_->TranslateAccelerator(&message), S_FALSE},
        {"IsPageDirty", page_->IsPageDirty(), S_FALSE},
        {"Apply", page_->Apply(), S_OK},
        {"Activate", Activate(), S_OK},
        {"Activate twice", Activate(), E_UNEXPECTED},
    };
    for (const auto& c : cases) EXPECT_EQ(c.answer, c.expected) << c.call;
    EXPECT_EQ(settings_.Stored(L"RecoveryScenarios"), L"-") << "a page that was never open wrote something";
    EXPECT_EQ(page_->Deactivate(), S_OK);
}

TEST_F(RecoveryPageTest, ChangesOutliveTheWindowAndTheModuleStaysAsLongAsTheFrameThatItWatches) {
    settings_.Store(L"RecoveryScenarios", com::Variant(L"f.trs;A;1;1*"));
    EXPECT_EQ(Activate(), S_OK);
    SendMessageW(Tab(), WM_COMMAND, IDC_RECOVERY_TOGGLE, 0);
    EXPECT_EQ(page_->IsPageDirty(), S_OK);
    EXPECT_EQ(page_->Deactivate(), S_OK);
    EXPECT_EQ(Activate(), S_OK);
    EXPECT_EQ(page_->Apply(), S_OK);
    EXPECT_EQ(page_->IsPageDirty(), S_FALSE);
    EXPECT_EQ(settings_.Global(L"g_bDirty").Get().lVal, 0);
    EXPECT_EQ(settings_.Stored(L"RecoveryScenarios"), L"f.trs;A;0;1*");
    EXPECT_EQ(page_->Deactivate(), S_OK);

    page_.Reset();
    EXPECT_FALSE(CanUnload());
    // The frame's end gives back the one reference of its property.
    const ULONG references = settings_.Get()->AddRef();
    SetPropW(frame_, L"SettingsObjPtr", settings_.Get());
    settings_.SetGlobal(L"g_bAlreadyInit", com::Variant(1L));
    DestroyWindow(frame_);
    EXPECT_TRUE(CanUnload());
    EXPECT_EQ(settings_.Get()->AddRef(), references);
    settings_.Get()->Release();
    EXPECT_EQ(settings_.Global(L"g_bAlreadyInit").Get().lVal, 0);
}

TEST_F(RecoveryPageTest, AFrameThatGoesUnderTheOpenDialogTakesEverythingAlong) {
    EXPECT_EQ(Activate(), S_OK);
    EXPECT_EQ(page_->Show(SW_SHOW), S_OK);
    {
        User user([&](UserScreen& screen) {
            screen.Press(frame_, IDC_RECOVERY_ADD);
            screen.WaitForWindow(L"Add Recovery Scenario");
            screen.Do([&] {
                EXPECT_EQ(page_->Deactivate(), S_OK);
                page_.Reset();
                DestroyWindow(frame_);
            });
        });
        MSG message;
        while (IsWindow(frame_) && GetMessageW(&message, nullptr, 0, 0)) DispatchMessageW(&message);
    }
    EXPECT_EQ(settings_.Stored(L"RecoveryScenarios"), L"-");
}

TEST_F(RecoveryPageTest, TheHostMayOpenThePageAnewWhileItReadsAFileForIt) {
    const std::wstring file = MakePopUps(L"f.trs", {L"First scenario", L"Other scenario"});
    const auto open = [&](const std::wstring& records) {
        settings_.Store(L"RecoveryScenarios", com::Variant(records));
        EXPECT_EQ(Activate(), S_OK);
    };
    const auto journal = New<ICallJournal>(L"Tovarin.CallJournal");
    const auto listener = WhileLoading::Make();
    EXPECT_EQ(journal->AddListener(listener.Get()), S_OK);
    const std::function<void()> reopen = [&] {
        EXPECT_EQ(page_->Deactivate(), S_OK);
        open(file + L";Other scenario;1;1*");
    };
    // The file of a row that comes to be selected, whose icon and description are to be shown.
    open(L"none.trs;A;1;1*" + file + L";First scenario;1;1*");
    listener->act = reopen;
    ListView_SetItemState(GetDlgItem(Tab(), IDC_RECOVERY_LIST), 1, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_FALSE(listener->act);
    EXPECT_EQ(page_->Deactivate(), S_OK);

    open(file + L";First scenario;1;1*");
    listener->act = reopen;
    {
        const User user([](UserScreen& screen) {
            const HWND sheet = screen.WaitForWindow(L"Recovery Scenario Properties");
            EXPECT_EQ(screen.Text(sheet, IDC_GENERAL_NAME), L"First scenario") << "the chosen one";
            screen.Press(sheet, IDOK);
        });
        SendMessageW(Tab(), WM_COMMAND, IDC_RECOVERY_PROPERTIES, 0);
    }
    EXPECT_FALSE(listener->act);
    EXPECT_EQ(journal->RemoveListener(listener.Get()), S_OK);
    EXPECT_EQ(page_->Deactivate(), S_OK);
}

}  // namespace
}  // namespace recoveryui::test

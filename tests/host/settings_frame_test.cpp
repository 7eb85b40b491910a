// The settings frame with pages of others in it, and what those pages meet.
#include <windows.h>

#include <commctrl.h>

#include "app/FrameValues.h"
#include "app/SettingsFrame.h"
#include "app/ids.h"
#include "harness/ComTest.h"

namespace recoveryui::test {
namespace {

constexpr int kPageEdit = 500;
constexpr CLSID kFirst = {0xf0a1c7d1, 0x4c3b, 0x4f1f, {0x8a, 0x55, 0x10, 0x02, 0x03, 0x04, 0x05, 0x06}};
constexpr CLSID kSecond = {0xf0a1c7d2, 0x4c3b, 0x4f1f, {0x8a, 0x55, 0x10, 0x02, 0x03, 0x04, 0x05, 0x06}};
constexpr CLSID kUnknown = {0xf0a1c7d3, 0x4c3b, 0x4f1f, {0x8a, 0x55, 0x10, 0x02, 0x03, 0x04, 0x05, 0x06}};

// A page with one edit box; a change of its text is a change to apply. It writes down how it is treated.
class TestPage final : public com::Object<TestPage, IPropertyPage, IClassFactory, IObjectRackClient> {
public:
    explicit TestPage(const wchar_t* title) : title_(title) {}
    std::wstring calls;
    HRESULT applyResult = S_OK;
    bool frameMayApply = true;
    RECT movedTo{};

    HRESULT STDMETHODCALLTYPE GetRack(IObjectRack**) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetRack(IObjectRack* rack) noexcept override {
        return Note(rack ? L"rack " : L"no rack ");
    }
    HRESULT STDMETHODCALLTYPE SetPageSite(IPropertyPageSite* site) noexcept override {
        site_ = site;
        VARIANT_BOOL readOnly = VARIANT_FALSE;
        if (const auto frame = com::Query<ISettingsFrame>(site)) frame->IsReadOnly(&readOnly);
        frameMayApply = frameMayApply && !readOnly;
        return Note(site ? L"site " : L"no site ");
    }
    HRESULT STDMETHODCALLTYPE GetPageInfo(PROPPAGEINFO* info) noexcept override {
        *info = {sizeof *info, static_cast<LPOLESTR>(CoTaskMemAlloc(40)), {600, 400}, nullptr, nullptr, 0};
        wcscpy(info->pszTitle, title_);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Activate(HWND parent, LPCRECT place, BOOL) noexcept override {
        window_ = CreateWindowExW(WS_EX_CONTROLPARENT, L"STATIC", L"", WS_CHILD, place->left, place->top, 600,
                                  400, parent, nullptr, nullptr, nullptr);
        SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure));
        edit_ = CreateWindowW(L"EDIT", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_MULTILINE, 10, 10, 100,
                              50, window_, reinterpret_cast<HMENU>(static_cast<INT_PTR>(kPageEdit)), nullptr,
                              nullptr);
        return Note(L"activate ");
    }
    HRESULT STDMETHODCALLTYPE Deactivate() noexcept override {
        DestroyWindow(window_);
        return Note(L"deactivate ");
    }
    HRESULT STDMETHODCALLTYPE SetObjects(ULONG, IUnknown**) noexcept override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Show(UINT command) noexcept override {
        ShowWindow(window_, static_cast<int>(command));
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Move(LPCRECT place) noexcept override {
        movedTo = *place;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE IsPageDirty() noexcept override { return dirty_ ? S_OK : S_FALSE; }
    HRESULT STDMETHODCALLTYPE Apply() noexcept override {
        if (SUCCEEDED(applyResult)) dirty_ = false;
        Note(L"apply ");
        return applyResult;
    }
    HRESULT STDMETHODCALLTYPE Help(LPCOLESTR) noexcept override { return Note(L"help "); }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*) noexcept override { return S_FALSE; }

    // Its own factory: the one page of its class.
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID iid, void** object) noexcept override {
        return QueryInterface(iid, object);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) noexcept override { return S_OK; }

private:
    HRESULT Note(const wchar_t* call) {
        calls += call;
        return S_OK;
    }
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        const auto page = reinterpret_cast<TestPage*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (message == WM_COMMAND && HIWORD(wParam) == EN_CHANGE) {
            page->dirty_ = true;
            page->site_->OnStatusChange(PROPPAGESTATUS_DIRTY);
        }
        return DefWindowProcW(window, message, wParam, lParam);
    }

    const wchar_t* title_;
    com::Ptr<IPropertyPageSite> site_;
    HWND window_ = nullptr;
    HWND edit_ = nullptr;
    bool dirty_ = false;
};

class SettingsFrameTest : public ComTest {
protected:
    SettingsFrameTest() {
        INITCOMMONCONTROLSEX classes{sizeof classes, ICC_TAB_CLASSES};
        InitCommonControlsEx(&classes);
        Register(kFirst, first.Get());
        Register(kSecond, second.Get());
    }
    ~SettingsFrameTest() override {
        for (const DWORD cookie : cookies_) CoRevokeClassObject(cookie);
    }
    // Shows the frame to a user.
    void Show(std::vector<CLSID> pages, const std::function<void(UserScreen&, HWND frame)>& script,
              bool readOnly = false) {
        User user([&](UserScreen& screen) {
            script(screen, screen.WaitForWindow(readOnly ? L"Test Settings (read-only)" : L"Test Settings"));
        });
        tovarin::SettingsFrame({rack.Get(), options, std::move(pages), readOnly}).ShowModal(nullptr);
    }
    tovarin::FrameValues Values() const { return tovarin::FrameValues(options.Get()); }

    Rack rack;
    com::Ptr<ITestOptions> options = New<ITestOptions>(L"Tovarin.TestOptions");
    com::Ptr<TestPage> first = TestPage::Make(L"First");
    com::Ptr<TestPage> second = TestPage::Make(L"Second");

private:
    void Register(REFCLSID clsid, TestPage* page) {
        DWORD cookie = 0;
        CoRegisterClassObject(clsid, static_cast<IClassFactory*>(page), CLSCTX_INPROC_SERVER,
                              REGCLS_MULTIPLEUSE, &cookie);
        cookies_.push_back(cookie);
    }
    std::vector<DWORD> cookies_;
};

int CurrentTab(UserScreen& screen, HWND frame) {
    return static_cast<int>(screen.Ask(screen.Control(frame, IDC_SETTINGS_TABS), TCM_GETCURSEL));
}

TEST_F(SettingsFrameTest, ChangesAreAppliedOnceAndThePagesAreLetGo) {
    Show({kFirst, kUnknown, kSecond}, [&](UserScreen& screen, HWND frame) {
        EXPECT_EQ(GetPropW(frame, L"SettingsObjPtr"), options.Get());
        EXPECT_TRUE(Values().IsSet(tovarin::kAlreadyInit));
        EXPECT_FALSE(screen.IsEnabled(frame, IDC_SETTINGS_APPLY));
        screen.Enter(frame, kPageEdit, L"x");
        EXPECT_TRUE(screen.IsEnabled(frame, IDC_SETTINGS_APPLY));
        screen.Press(frame, IDC_SETTINGS_APPLY);
        EXPECT_FALSE(screen.IsEnabled(frame, IDC_SETTINGS_APPLY));
        screen.Press(frame, IDC_SETTINGS_HELP);
        screen.Press(frame, IDOK);
    });
    EXPECT_EQ(first->calls, L"rack site activate apply help deactivate no site ");
    EXPECT_EQ(second->calls, L"rack site activate deactivate no site ");
    EXPECT_FALSE(Values().IsSet(tovarin::kAlreadyInit));
}

TEST_F(SettingsFrameTest, TheKeyboardReachesEveryTabAndEveryControl) {
    Show({kFirst, kSecond}, [&](UserScreen& screen, HWND frame) {
        for (const int stop : {kPageEdit, IDOK, IDCANCEL, IDC_SETTINGS_HELP, IDC_SETTINGS_TABS}) {
            EXPECT_EQ(screen.FocusId(), stop);
            screen.Keys({VK_TAB});
        }
        EXPECT_EQ(screen.FocusId(), kPageEdit);
        for (const int tab : {1, 2, 0}) {
            screen.RealKeys({VK_CONTROL, VK_TAB});
            EXPECT_EQ(CurrentTab(screen, frame), tab);
            EXPECT_EQ(Values().IsSet(tovarin::kIsSorTabActive), tab == 2);
            EXPECT_EQ(screen.FocusId(), tab == 2 ? IDC_SOR_REQUIRE : kPageEdit);
        }
        screen.RealKeys({VK_CONTROL, VK_SHIFT, VK_TAB});
        EXPECT_EQ(CurrentTab(screen, frame), 2);
        screen.Picture(frame, L"host-settings");
        screen.Keys({VK_ESCAPE});
    });
}

TEST_F(SettingsFrameTest, APageThatCannotApplyKeepsTheFrameOpenAndIsShown) {
    second->applyResult = STG_E_ACCESSDENIED;
    Show({kFirst, kSecond}, [&](UserScreen& screen, HWND frame) {
        screen.RealKeys({VK_CONTROL, VK_TAB});
        screen.Enter(frame, kPageEdit, L"x");
        screen.RealKeys({VK_CONTROL, VK_TAB});
        screen.Press(frame, IDOK);
        EXPECT_EQ(screen.AnswerBox(IDOK),
                  L"The settings on the tab Second could not be applied (STG_E_ACCESSDENIED).");
        EXPECT_EQ(CurrentTab(screen, frame), 1);
        EXPECT_TRUE(screen.IsEnabled(frame, IDC_SETTINGS_APPLY));
        screen.Close(frame);
    });
    EXPECT_EQ(second->calls, L"rack site activate apply deactivate no site ");
}

TEST_F(SettingsFrameTest, ReadOnlySettingsCanOnlyBeLookedAt) {
    const auto look = [&](UserScreen& screen, HWND frame) {
        EXPECT_TRUE(Values().IsSet(tovarin::kReadOnlyMode));
        screen.Enter(frame, kPageEdit, L"x");
        EXPECT_FALSE(screen.IsEnabled(frame, IDOK));
        EXPECT_FALSE(screen.IsEnabled(frame, IDC_SETTINGS_APPLY));
        screen.Press(frame, IDCANCEL);
    };
    Show({kFirst}, look, true);
    EXPECT_FALSE(first->frameMayApply);
    EXPECT_EQ(first->calls, L"rack site activate deactivate no site ");
}

// Windows scales the tab control by itself when the frame comes to another monitor; the test does it instead.
TEST_F(SettingsFrameTest, ThePagesFollowTheTabControlToAnotherMonitor) {
    Show({kFirst, kSecond}, [&](UserScreen& screen, HWND frame) {
        const HWND tabs = screen.Control(frame, IDC_SETTINGS_TABS);
        RECT inside{30, 40, 930, 740};
        screen.Do([&] {
            SendMessageW(frame, WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&inside));
            SetWindowPos(tabs, nullptr, inside.left, inside.top, inside.right - inside.left,
                         inside.bottom - inside.top, SWP_NOZORDER);
            TabCtrl_AdjustRect(tabs, FALSE, &inside);
        });
        screen.Do([] {});
        EXPECT_TRUE(EqualRect(&first->movedTo, &inside));
        EXPECT_TRUE(EqualRect(&second->movedTo, &inside)) << "pages that are not shown follow as well";
        screen.Press(frame, IDCANCEL);
    });
}

TEST_F(SettingsFrameTest, WithoutTestOptionsTheFrameOpensAndWritesNothing) {
    options.Reset();
    Show({kFirst}, [&](UserScreen& screen, HWND frame) {
        EXPECT_EQ(GetPropW(frame, L"SettingsObjPtr"), nullptr);
        screen.Press(frame, IDOK);
    });
    EXPECT_EQ(Calls().find(L"SetOptionValue"), std::wstring::npos);
}

}  // namespace
}  // namespace recoveryui::test

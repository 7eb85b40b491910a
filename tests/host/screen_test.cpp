// Objects on the screen: pointed at, chosen, identified and stored.
#include <gtest/gtest.h>

#include "HostInterfaces.h"
#include "com/Automation.h"
#include "com/SafeArray.h"
#include "harness/ApplicationWindow.h"
#include "harness/ComTest.h"
#include "harness/HelpViewer.h"
#include "harness/Pointing.h"
#include "harness/ProcessWindows.h"
#include "objects/ids.h"

namespace tovarin {
namespace {

using namespace recoveryui;
using com::Bstr;
using com::Variant;
using recoveryui::test::ComTest;
using recoveryui::test::Rows;
using recoveryui::test::User;
using recoveryui::test::UserScreen;

int clicks = 0;

// An application under test: a group box in front of a disabled edit box, a panel with a label and a button.
struct Application {
    Application() {
        clicks = 0;
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure));
        panel = GetDlgItem(window, 8);
        button = CreateWindowW(L"Button", L"OK", WS_CHILD | WS_VISIBLE, 10, 30, 80, 30, panel,
                               reinterpret_cast<HMENU>(1), nullptr, nullptr);
    }
    ~Application() { Close(); }
    void Close() {
        if (window) DestroyWindow(std::exchange(window, nullptr));
    }
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_PARENTNOTIFY || message == WM_LBUTTONDOWN || message == WM_LBUTTONUP ||
            message == WM_RBUTTONDOWN || message == WM_MOUSEACTIVATE)
            clicks += message != WM_PARENTNOTIFY || LOWORD(wParam) == WM_LBUTTONDOWN;
        return DefWindowProcW(window, message, wParam, lParam);
    }

    HWND window = test::MakeApplication(L"Main Window", {100, 100, 500, 400},
                                        {{L"Button", L"Group", 0, {10, 10, 200, 150}, BS_GROUPBOX},
                                         {L"Edit", L"typed", 7, {20, 40, 100, 30}, WS_DISABLED},
                                         {L"Static", L"Panel", 8, {10, 200, 300, 100}},
                                         {L"Static", L"First line\r\nand second", 0, {320, 10, 150, 40}},
                                         {L"ScrollBar", L"", 9, {10, 320, 100, 20}}});
    HWND edit = GetDlgItem(window, 7), bare = GetDlgItem(window, 9), panel, button;
};

class HostScreen : public ComTest {
protected:
    std::vector<com::Ptr<IDispatch>> ObjectsAt(POINT point) {
        com::CVtlSafeArray<VARIANT> list;
        EXPECT_EQ(recorder_->GetObjectsAtPoint(list.Put(), point.x, point.y), S_OK);
        EXPECT_EQ(list.Verify(), S_OK);
        std::vector<com::Ptr<IDispatch>> objects;
        EXPECT_EQ(list.ForEach([&](const Variant& element) {
            EXPECT_EQ(element.Type(), VT_DISPATCH);
            objects.push_back(com::Query<IDispatch>(element.Object()));
        }),
                  S_OK);
        return objects;
    }
    static Variant Get(IDispatch* object, const wchar_t* name) {
        Variant value;
        EXPECT_EQ(com::GetProperty(object, name, &value), S_OK) << test::Utf8(name);
        return value;
    }
    static std::wstring TextOf(const Variant& value) {
        Variant text;
        EXPECT_EQ(
            VariantChangeType(text.Put(), const_cast<VARIANT*>(&value.Get()), VARIANT_ALPHABOOL, VT_BSTR),
            S_OK);
        return std::wstring(text.Text());
    }
    static std::wstring Name(IUnknown* object) {
        Bstr name;
        EXPECT_EQ(com::Query<ITestObject>(object)->GetDisplayName(name.Put()), S_OK);
        return name.Text();
    }
    static std::wstring Names(const std::vector<com::Ptr<IDispatch>>& objects) {
        std::wstring names;
        for (const auto& object : objects) names += Name(object.Get()) + L";";
        return names;
    }

    com::Ptr<IRecordMgr> recorder_ = New<IRecordMgr>(L"Tovarin.RecordMgr");
    Application application_;
};

TEST_F(HostScreen, TheObjectsUnderAPointSayWhatTheirWindowsSayNow) {
    EXPECT_EQ(Names(ObjectsAt(test::MiddleOf(application_.edit))),
              L"Edit \"typed\";OrderEntry \"Main Window\";");
    EXPECT_EQ(Names(ObjectsAt({130, 275})), L"Button \"Group\";OrderEntry \"Main Window\";");
    EXPECT_EQ(ObjectsAt({-30'000, -30'000}).size(), 0u);
    const auto objects = ObjectsAt(test::MiddleOf(application_.button));
    ASSERT_EQ(Names(objects), L"Button \"OK\";Static \"Panel\";OrderEntry \"Main Window\";");

    const auto text = [](IDispatch* object) -> std::wstring {
        const auto source = com::Query<IWindowTextSource>(object);
        Bstr given;
        return source && source->GetText(given.Put()) == S_OK ? given.Text() : L"none";
    };
    EXPECT_EQ(text(objects[2].Get()), L"Main Window\nPanel\nFirst line\nand second") << "with its labels";
    EXPECT_EQ(text(ObjectsAt(test::MiddleOf(application_.bare))[0].Get()), L"none");

    IDispatch* const button = objects[0].Get();
    const std::pair<const wchar_t*, std::wstring> answers[] = {
        {L"objectid", std::to_wstring(static_cast<long>(reinterpret_cast<LONG_PTR>(application_.button)))},
        {L"class", L"Button"},
        {L"window id", L"1"},
        {L"x", L"10"},
        {L"width", L"80"},
        {L"enabled", L"True"},
        {L"process name", L"recoveryui_tests.exe"}};
    for (const auto& [name, value] : answers) EXPECT_EQ(TextOf(Get(button, name)), value) << name;
    EXPECT_EQ(com::Query<IUnknown>(Get(button, L"Parent").Object()).Get(),
              com::Query<IUnknown>(objects[1].Get()).Get());
    EXPECT_EQ(Get(objects[2].Get(), L"parent").Type(), VT_EMPTY);
    SetWindowTextW(application_.button, L"Cancel");
    EnableWindow(application_.button, FALSE);
    EXPECT_EQ(text(button), L"Cancel");
    EXPECT_EQ(Get(button, L"enabled").Get().boolVal, VARIANT_FALSE);
    Variant value;
    EXPECT_EQ(com::GetProperty(button, L"colour", &value), DISP_E_UNKNOWNNAME);
    application_.Close();
    EXPECT_EQ(com::GetProperty(button, L"text", &value), HRESULT_FROM_WIN32(ERROR_INVALID_WINDOW_HANDLE));
}

TEST_F(HostScreen, AClickGivesThePointAndNeverReachesTheWindow) {
    const auto finger = New<IVtlFinger>(L"Vantrel.VtlFinger");
    const POINT target = test::MiddleOf(application_.button);
    long x = -1, y = -1, cancelled = -1;
    HRESULT second = S_OK;
    {
        const User user([&](UserScreen& screen) {
            test::Hover(screen, application_.button);
            test::Click(MOUSEEVENTF_RIGHTDOWN);
            screen.Do([] {});
        });
        EXPECT_EQ(finger->CapturePoint(&x, &y, &cancelled), S_OK);
        EXPECT_NE(cancelled, 0) << "the right button gives up";
    }
    {
        const User user([&](UserScreen& screen) {
            test::Hover(screen, application_.edit);
            screen.Do([&] {
                long none;
                second = New<IVtlFinger>(L"Vantrel.VtlFinger")->CapturePoint(&none, &none, &none);
            });
            test::Hover(screen, application_.button);
            test::Click();
            screen.Do([] {});
        });
        EXPECT_EQ(finger->CapturePoint(&x, &y, &cancelled), S_OK);
    }
    EXPECT_EQ(second, E_UNEXPECTED) << "there is only one hand";
    EXPECT_EQ(cancelled, 0);
    EXPECT_EQ(x, target.x);
    EXPECT_EQ(y, target.y);
    test::RunPendingMessages();
    EXPECT_EQ(clicks, 0);
    // Without the hand it does: the test would notice.
    test::Click();
    test::RunPendingMessages();
    EXPECT_NE(clicks, 0);
}

class HostSelection : public HostScreen {
protected:
    Variant Choose(User::Script script, HRESULT expected) {
        com::CVtlSafeArray<VARIANT> candidates;
        const POINT point = test::MiddleOf(application_.button);
        EXPECT_EQ(recorder_->GetObjectsAtPoint(candidates.Put(), point.x, point.y), S_OK);
        selection_->SetCaption(Bstr(L"Object Selection - Object State Trigger").Get());
        const User user(std::move(script));
        Variant chosen;
        EXPECT_EQ(selection_->Choose(candidates.Get(), chosen.Put()), expected);
        return chosen;
    }
    static HWND Open(UserScreen& screen) {
        return screen.WaitForWindow(L"Object Selection - Object State Trigger");
    }

    com::Ptr<IObjectSelection> selection_ = New<IObjectSelection>(L"Vantrel.ObjectSelection");
};

constexpr int kTree = IDC_OBJECT_SELECTION_TREE;

TEST_F(HostSelection, TheUserChoosesAnObjectFromTheTree) {
    const auto viewer = test::HelpViewer::Make();
    test::Rack().Put(L"HelpViewer", viewer.Get()).GiveTo(selection_.Get());
    selection_->SetHelpTopic(Bstr(L"OS_Object_State.htm").Get());
    Variant chosen = Choose(
        [&](UserScreen& screen) {
            const HWND window = Open(screen);
            EXPECT_EQ(screen.FocusId(), kTree);
            screen.Press(window, IDC_OBJECT_SELECTION_HELP);
            EXPECT_EQ(viewer->Take(), L"OS_Object_State.htm");
            screen.Focus(window, kTree);
            EXPECT_EQ(screen.RowsOf(window, kTree),
                      (Rows{L"OrderEntry \"Main Window\"", L"  Static \"Panel\"", L"    Button \"OK\""}));
            EXPECT_EQ(screen.Chosen(window, kTree), Rows{L"    Button \"OK\""});
            screen.Picture(window, L"object-selection");
            screen.Choose(window, kTree, L"Static \"Panel\"");
            screen.Press(window, IDOK);
        },
        S_OK);
    EXPECT_EQ(Name(chosen.Object()), L"Static \"Panel\"");
    chosen = Choose(
        [&](UserScreen& screen) { screen.DoubleClick(Open(screen), kTree, L"OrderEntry \"Main Window\""); },
        S_OK);
    EXPECT_EQ(Name(chosen.Object()), L"OrderEntry \"Main Window\"");
    chosen = Choose([&](UserScreen& screen) { screen.Press(Open(screen), IDCANCEL); }, S_FALSE);
    EXPECT_EQ(chosen.Type(), VT_EMPTY);
    EXPECT_EQ(selection_->Choose(nullptr, chosen.Put()), E_INVALIDARG);
}

}  // namespace
}  // namespace tovarin

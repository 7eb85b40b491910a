// Objects on the screen: pointed at, chosen, identified and stored.
#include <gtest/gtest.h>

#include "HostInterfaces.h"
#include "com/Automation.h"
#include "com/SafeArray.h"
#include "harness/ComTest.h"
#include "harness/HelpViewer.h"
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

constexpr const wchar_t* kHandClass = L"TovarinPointingHand";

// An application under test: a group box in front of a disabled edit box, a panel with a label and a button.
class Application {
public:
    Application() {
        WNDCLASSW kind{};
        kind.lpfnWndProc = Procedure;
        kind.lpszClassName = L"Application";
        kind.hInstance = GetModuleHandleW(nullptr);
        kind.hbrBackground = GetSysColorBrush(COLOR_3DFACE);
        RegisterClassW(&kind);
        clicks = 0;
        window = CreateWindowW(L"Application", L"Main Window", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 100,
                               500, 400, nullptr, nullptr, nullptr, nullptr);
        Add(L"Button", L"Group", BS_GROUPBOX, window, 0, {10, 10, 200, 150});
        edit = Add(L"Edit", L"typed", WS_DISABLED, window, 7, {20, 40, 100, 30});
        panel = Add(L"Static", L"Panel", 0, window, 0, {10, 200, 300, 100});
        Add(L"Static", L"First line\r\nand second", 0, window, 0, {320, 10, 150, 40});
        button = Add(L"Button", L"OK", 0, panel, 1, {10, 30, 80, 30});
        bare = Add(L"ScrollBar", L"", 0, window, 0, {10, 320, 100, 20});
    }
    ~Application() { Close(); }
    void Close() {
        if (window) DestroyWindow(std::exchange(window, nullptr));
    }
    static POINT MiddleOf(HWND control) {
        RECT place{};
        GetWindowRect(control, &place);
        return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    }

    HWND window, edit, panel, button, bare;
    static inline int clicks = 0;

private:
    static HWND Add(const wchar_t* kind, const wchar_t* text, DWORD style, HWND parent, int id, RECT place) {
        return CreateWindowW(kind, text, style | WS_CHILD | WS_VISIBLE, place.left, place.top, place.right,
                             place.bottom, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr,
                             nullptr);
    }
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_PARENTNOTIFY || message == WM_LBUTTONDOWN || message == WM_LBUTTONUP ||
            message == WM_RBUTTONDOWN || message == WM_MOUSEACTIVATE)
            clicks += message != WM_PARENTNOTIFY || LOWORD(wParam) == WM_LBUTTONDOWN;
        return DefWindowProcW(window, message, wParam, lParam);
    }
};

class HostScreen : public ComTest {
protected:
    std::vector<com::Ptr<IDispatch>> ObjectsAt(POINT point) {
        com::CVtlSafeArray<VARIANT> list;
        EXPECT_EQ(recorder_->GetObjectsAtPoint(list.Put(), point.x, point.y), S_OK);
        EXPECT_EQ(list.Verify(), S_OK);
        std::vector<com::Ptr<IDispatch>> objects;
        for (LONG index = 0; index <= list.UpperBound(); ++index) {
            Variant element;
            EXPECT_EQ(list.GetElement(index, &element), S_OK);
            EXPECT_EQ(element.Type(), VT_DISPATCH);
            objects.push_back(com::Query<IDispatch>(element.Object()));
        }
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
    EXPECT_EQ(Names(ObjectsAt(Application::MiddleOf(application_.edit))),
              L"Edit \"typed\";Application \"Main Window\";");
    EXPECT_EQ(Names(ObjectsAt({130, 275})), L"Button \"Group\";Application \"Main Window\";");
    EXPECT_EQ(ObjectsAt({-30'000, -30'000}).size(), 0u);
    const auto objects = ObjectsAt(Application::MiddleOf(application_.button));
    ASSERT_EQ(Names(objects), L"Button \"OK\";Static \"Panel\";Application \"Main Window\";");

    const auto text = [](IDispatch* object) -> std::wstring {
        const auto source = com::Query<IWindowTextSource>(object);
        Bstr given;
        return source && source->GetText(given.Put()) == S_OK ? given.Text() : L"none";
    };
    EXPECT_EQ(text(objects[2].Get()), L"Main Window\nPanel\nFirst line\nand second") << "with its labels";
    EXPECT_EQ(text(ObjectsAt(Application::MiddleOf(application_.bare))[0].Get()), L"none");

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

// The hand, moved by the mouse of the machine.
class HostPointingHand : public HostScreen {
protected:
    static void MoveTo(UserScreen& screen, POINT point, HWND framed) {
        SetCursorPos(point.x, point.y);
        screen.WaitUntil("the window is framed", [&] {
            RECT wanted{}, place{};
            GetWindowRect(framed, &wanted);
            for (const HWND window : test::TopLevelWindows()) {
                if (test::ClassOf(window) != kHandClass || !IsWindowVisible(window)) continue;
                GetWindowRect(window, &place);
                if (EqualRect(&wanted, &place)) return true;
            }
            return false;
        });
    }
    static void RunMessages() {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    }
};

TEST_F(HostPointingHand, AClickGivesThePointAndNeverReachesTheWindow) {
    const auto finger = New<IVtlFinger>(L"Vantrel.VtlFinger");
    const POINT target = Application::MiddleOf(application_.button);
    long x = -1, y = -1, cancelled = -1;
    HRESULT second = S_OK;
    const auto click = [](DWORD down = MOUSEEVENTF_LEFTDOWN) {
        for (const DWORD event : {down, down * 2}) mouse_event(event, 0, 0, 0, 0);  // then up
    };
    {
        const User user([&](UserScreen& screen) {
            MoveTo(screen, target, application_.button);
            click(MOUSEEVENTF_RIGHTDOWN);
            screen.Do([] {});
        });
        EXPECT_EQ(finger->CapturePoint(&x, &y, &cancelled), S_OK);
        EXPECT_NE(cancelled, 0) << "the right button gives up";
    }
    {
        const User user([&](UserScreen& screen) {
            MoveTo(screen, Application::MiddleOf(application_.edit), application_.edit);
            screen.Do([&] {
                long none;
                second = New<IVtlFinger>(L"Vantrel.VtlFinger")->CapturePoint(&none, &none, &none);
            });
            MoveTo(screen, target, application_.button);
            click();
            screen.Do([] {});
        });
        EXPECT_EQ(finger->CapturePoint(&x, &y, &cancelled), S_OK);
    }
    EXPECT_EQ(second, E_UNEXPECTED) << "there is only one hand";
    EXPECT_EQ(cancelled, 0);
    EXPECT_EQ(x, target.x);
    EXPECT_EQ(y, target.y);
    RunMessages();
    EXPECT_EQ(Application::clicks, 0);
    // Without the hand it does: the test would notice.
    click();
    RunMessages();
    EXPECT_NE(Application::clicks, 0);
}

class HostSelection : public HostScreen {
protected:
    Variant Choose(User::Script script, HRESULT expected) {
        com::CVtlSafeArray<VARIANT> candidates;
        const POINT point = Application::MiddleOf(application_.button);
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
            screen.Do([&] { SetFocus(screen.Control(window, kTree)); });
            EXPECT_EQ(screen.RowsOf(window, kTree),
                      (Rows{L"Application \"Main Window\"", L"  Static \"Panel\"", L"    Button \"OK\""}));
            EXPECT_EQ(screen.Chosen(window, kTree), Rows{L"    Button \"OK\""});
            screen.Picture(window, L"object-selection");
            screen.Choose(window, kTree, L"Static \"Panel\"");
            screen.Press(window, IDOK);
        },
        S_OK);
    EXPECT_EQ(Name(chosen.Object()), L"Static \"Panel\"");
    chosen = Choose(
        [&](UserScreen& screen) { screen.DoubleClick(Open(screen), kTree, L"Application \"Main Window\""); },
        S_OK);
    EXPECT_EQ(Name(chosen.Object()), L"Application \"Main Window\"");
    chosen = Choose([&](UserScreen& screen) { screen.Press(Open(screen), IDCANCEL); }, S_FALSE);
    EXPECT_EQ(chosen.Type(), VT_EMPTY);
    EXPECT_EQ(selection_->Choose(nullptr, chosen.Put()), E_INVALIDARG);
}

}  // namespace
}  // namespace tovarin

// The objects under a point of the screen.
#include <gtest/gtest.h>

#include "HostInterfaces.h"
#include "com/Automation.h"
#include "com/SafeArray.h"
#include "harness/ApplicationWindow.h"
#include "harness/ComTest.h"
#include "harness/Pointing.h"
#include "harness/ProcessWindows.h"

namespace tovarin {
namespace {

using namespace recoveryui;
using com::Bstr;
using com::Variant;
using recoveryui::test::ComTest;

// An application under test: a group box in front of a disabled edit box, a panel with a label and a button.
struct Application {
    ~Application() { DestroyWindow(window); }

    HWND window = test::MakeApplication(L"Main Window", {100, 100, 500, 400},
                                        {{L"Button", L"Group", 0, {10, 10, 200, 150}, BS_GROUPBOX},
                                         {L"Edit", L"typed", 7, {20, 40, 100, 30}, WS_DISABLED},
                                         {L"Static", L"Panel", 8, {10, 200, 300, 100}},
                                         {L"Static", L"First line\r\nand second", 0, {320, 10, 150, 40}},
                                         {L"ScrollBar", L"", 9, {10, 320, 100, 20}}});
    HWND edit = GetDlgItem(window, 7), bare = GetDlgItem(window, 9),
         button = CreateWindowW(L"Button", L"OK", WS_CHILD | WS_VISIBLE, 10, 30, 80, 30,
                                GetDlgItem(window, 8), reinterpret_cast<HMENU>(1), nullptr, nullptr);
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
    // As text; of an object its display name, "none" for nothing.
    static std::wstring Property(IDispatch* object, const wchar_t* name) {
        Variant value, text;
        EXPECT_EQ(com::GetProperty(object, name, &value), S_OK) << test::Utf8(name);
        if (value.Type() == VT_EMPTY) return L"none";
        if (value.Type() == VT_DISPATCH) return Names({com::Query<IDispatch>(value.Object())});
        VariantChangeType(text.Put(), const_cast<VARIANT*>(&value.Get()), VARIANT_ALPHABOOL, VT_BSTR);
        return std::wstring(text.Text());
    }
    static std::wstring Names(const std::vector<com::Ptr<IDispatch>>& objects) {
        std::wstring names;
        Bstr name;
        for (const auto& object : objects) {
            EXPECT_EQ(com::Query<ITestObject>(object.Get())->GetDisplayName(name.Put()), S_OK);
            names += name.Text() + L";";
        }
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
        {L"process name", L"recoveryui_tests.exe"},
        {L"Parent", L"Static \"Panel\";"}};
    for (const auto& [name, value] : answers) EXPECT_EQ(Property(button, name), value) << name;
    EXPECT_EQ(Property(objects[2].Get(), L"parent"), L"none");
    SetWindowTextW(application_.button, L"Cancel");
    EnableWindow(application_.button, FALSE);
    EXPECT_EQ(text(button), L"Cancel");
    EXPECT_EQ(Property(button, L"enabled"), L"False");
    Variant value;
    EXPECT_EQ(com::GetProperty(button, L"colour", &value), DISP_E_UNKNOWNNAME);
    DestroyWindow(application_.button);
    EXPECT_EQ(com::GetProperty(button, L"text", &value), HRESULT_FROM_WIN32(ERROR_INVALID_WINDOW_HANDLE));
}

}  // namespace
}  // namespace tovarin

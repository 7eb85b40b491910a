// The file dialog, used by hand.
#include <gtest/gtest.h>

#include "com/Automation.h"
#include "harness/ComTest.h"
#include "host/temp_folder.h"

namespace tovarin {
namespace {

using namespace recoveryui;
using com::Variant;
using recoveryui::test::ComTest;
using recoveryui::test::User;
using recoveryui::test::UserScreen;

// The dialog's own controls, in both versions of the platform's dialog.
constexpr int kNameEdit = 0x480;

class HostFileDialog : public ComTest {
protected:
    void Put(const wchar_t* name, const Variant& value) {
        EXPECT_EQ(com::PutProperty(dialog_.Get(), name, value), S_OK);
    }
    std::wstring DoModal(bool open, User::Script script) {
        Put(L"FileFilter", Variant(L"Scenario Files (*.trs)|*.trs|All Files (*.*)|*.*||"));
        Put(L"SetDialogCaption4FileSystem", Variant(L"Pick One"));
        const User user(std::move(script));
        const Variant mode(open);
        Variant path;
        EXPECT_EQ(com::CallMethod(dialog_.Get(), L"DoModal", {&mode, 1}, &path), S_OK);
        EXPECT_EQ(path.Type(), VT_BSTR);
        return std::wstring(path.Text());
    }
    static void Give(UserScreen& screen, const std::wstring& path) {
        const HWND window = screen.WaitForWindow(L"Pick One");
        const HWND edit = FindEdit(window);
        screen.Do([&] { SetWindowTextW(edit, path.c_str()); });
        PressOwn(screen, window, IDOK);
    }
    // The dialog's own button: its lists use the same numbers.
    static void PressOwn(UserScreen& screen, HWND window, int id) {
        screen.Do([&] { PostMessageW(GetDlgItem(window, id), BM_CLICK, 0, 0); });
    }
    static HWND FindEdit(HWND window) {
        HWND edit = GetDlgItem(window, kNameEdit);
        if (!edit)
            edit = FindWindowExW(FindWindowExW(GetDlgItem(window, 0x47C), nullptr, L"ComboBox", nullptr),
                                 nullptr, L"Edit", nullptr);
        return edit;
    }

    TempFolder folder_;
    com::Ptr<IDispatch> dialog_ = New<IDispatch>(L"Vantrel.TovCommonFileDialog");
};

TEST_F(HostFileDialog, AFileIsOpenedOrTheDialogCancelled) {
    const std::wstring file = folder_ / L"a.trs";
    TempFolder::Write(file, {});
    EXPECT_EQ(DoModal(true, [&](UserScreen& screen) { Give(screen, file); }), file);
    EXPECT_EQ(
        DoModal(true,
                [&](UserScreen& screen) { PressOwn(screen, screen.WaitForWindow(L"Pick One"), IDCANCEL); }),
        L"");
    Put(L"SetCheckAttachmentExistence", Variant(true));
    EXPECT_EQ(DoModal(true,
                      [&](UserScreen& screen) {
                          Give(screen, folder_ / L"none.trs");
                          screen.Press(screen.WaitForWindow(nullptr), IDOK);
                          PressOwn(screen, screen.WaitForWindow(L"Pick One"), IDCANCEL);
                      }),
              L"");
}

TEST_F(HostFileDialog, SavingNeverReplacesAFileUnasked) {
    const std::wstring file = folder_ / L"a.trs";
    TempFolder::Write(file, {});
    EXPECT_EQ(DoModal(false, [&](UserScreen& screen) { Give(screen, folder_ / L"new.trs"); }),
              folder_ / L"new.trs");
    EXPECT_EQ(DoModal(false,
                      [&](UserScreen& screen) {
                          Give(screen, file);
                          screen.AnswerBox(IDYES, L"Pick One");
                      }),
              file);
    // The name will be completed to that of an existing file.
    EXPECT_EQ(DoModal(false,
                      [&](UserScreen& screen) {
                          Give(screen, folder_ / L"a");
                          EXPECT_EQ(screen.AnswerBox(IDNO, L"Pick One"),
                                    file + L"\nThis file already exists.\nDo you want to replace it?");
                          Give(screen, folder_ / L"b");
                      }),
              folder_ / L"b");
}

TEST_F(HostFileDialog, ItsMembersAreKnownByName) {
    Variant value;
    Put(L"filefilter", Variant(L"x|*.x||"));
    EXPECT_EQ(com::GetProperty(dialog_.Get(), L"FileFilter", &value), S_OK);
    EXPECT_EQ(value.Text(), L"x|*.x||");
    Put(L"CreateAttachmnet", Variant(1L));
    EXPECT_EQ(com::GetProperty(dialog_.Get(), L"CreateAttachmnet", &value), S_OK);
    EXPECT_EQ(value.Get().boolVal, VARIANT_TRUE);
    EXPECT_EQ(com::PutProperty(dialog_.Get(), L"CreateAttachment", Variant(true)), DISP_E_UNKNOWNNAME);
    FailCall(L"TovCommonFileDialog", L"DoModal", E_FAIL);
    const Variant open(true);
    EXPECT_EQ(com::CallMethod(dialog_.Get(), L"DoModal", {&open, 1}, &value), E_FAIL);
    EXPECT_EQ(value.Type(), VT_EMPTY);
}

}  // namespace
}  // namespace tovarin

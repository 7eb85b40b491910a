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

constexpr wchar_t kCaption[] = L"Pick One";

class HostFileDialog : public ComTest {
protected:
    void Put(const wchar_t* name, const Variant& value) {
        EXPECT_EQ(com::PutProperty(dialog_.Get(), name, value), S_OK);
    }
    std::wstring DoModal(bool open, User::Script script) {
        Put(L"FileFilter", Variant(L"Scenario Files (*.trs)|*.trs|All Files (*.*)|*.*||"));
        Put(L"SetDialogCaption4FileSystem", Variant(kCaption));
        const User user(std::move(script));
        const Variant mode(open);
        Variant path;
        EXPECT_EQ(com::CallMethod(dialog_.Get(), L"DoModal", {&mode, 1}, &path), S_OK);
        EXPECT_EQ(path.Type(), VT_BSTR);
        return std::wstring(path.Text());
    }
    TempFolder folder_;
    com::Ptr<IDispatch> dialog_ = New<IDispatch>(L"Vantrel.TovCommonFileDialog");
};

TEST_F(HostFileDialog, AFileIsOpenedOrTheDialogCancelled) {
    const std::wstring file = folder_ / L"a.trs";
    TempFolder::Write(file, {});
    EXPECT_EQ(DoModal(true, [&](UserScreen& screen) { screen.GiveFile(kCaption, file); }), file);
    Put(L"SetCheckAttachmentExistence", Variant(true));
    const std::wstring none = DoModal(true, [&](UserScreen& screen) {
        screen.GiveFile(kCaption, folder_ / L"none.trs");
        screen.Press(screen.WaitForWindow(nullptr), IDOK);
        screen.LeaveFileDialog(kCaption, IDCANCEL);
    });
    EXPECT_EQ(none, L"");
}

TEST_F(HostFileDialog, SavingNeverReplacesAFileUnasked) {
    const std::wstring file = folder_ / L"a.trs";
    TempFolder::Write(file, {});
    std::wstring given = DoModal(false, [&](UserScreen& screen) {
        screen.GiveFile(kCaption, file);
        screen.AnswerBox(IDYES, kCaption);
    });
    EXPECT_EQ(given, file);
    given = DoModal(false, [&](UserScreen& screen) {
        screen.GiveFile(kCaption, folder_ / L"a");  // will be completed to that of an existing file
        EXPECT_EQ(screen.AnswerBox(IDNO, kCaption),
                  file + L"\nThis file already exists.\nDo you want to replace it?");
        screen.GiveFile(kCaption, folder_ / L"b");
    });
    EXPECT_EQ(given, folder_ / L"b");
}

}  // namespace
}  // namespace tovarin

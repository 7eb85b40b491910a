// The pointing hand on its three pages, with the real mouse over the windows of an application.
#include <windows.h>

#include <commctrl.h>

#include "harness/ApplicationWindow.h"
#include "harness/Pointing.h"
#include "objects/ids.h"
#include "objects/screen/TestObject.h"
#include "wizard/WizardTest.h"

namespace recoveryui::test {
namespace {

constexpr const wchar_t* kUnsupported = L"The object you selected does not support this operation.";

// The host's recorder, who may find more than there is, or less.
class Recorder final : public com::Object<Recorder, IRecordMgr> {
public:
    explicit Recorder(com::Ptr<IRecordMgr> host) : host_(std::move(host)) {}

    HRESULT STDMETHODCALLTYPE IsActive(VARIANT_BOOL*) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Suspend() noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Resume() noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetObjectsAtPoint(SAFEARRAY** out, long x, long y) noexcept override {
        com::CVtlSafeArray<VARIANT> found;
        const HRESULT hr = host_->GetObjectsAtPoint(found.Put(), x, y);
        std::vector<com::Variant> all = before;
        if (SUCCEEDED(hr)) {
            EXPECT_EQ(found.ForEach([&](const com::Variant& object) { all.push_back(object); }), S_OK);
        }
        all.resize(std::min(all.size(), most));
        *out = SUCCEEDED(hr) ? ArrayOf<VARIANT>(all).Detach() : nullptr;
        return hr;
    }

    std::vector<com::Variant> before;
    size_t most = 100;

private:
    com::Ptr<IRecordMgr> host_;
};

// A control that answers every question for its text with a failure of its own.
LRESULT CALLBACK Rude(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) noexcept {
    return message == WM_GETTEXT ? -1 : DefSubclassProc(window, message, wParam, lParam);
}

class PointingHandTest : public WizardTest {
protected:
    static constexpr int kCancel = 13, kSecret = 14, kUnnamed = 15, kRude = 16, kRemember = 17;

    PointingHandTest() {
        rack_.Put(L"RecordMgr", recorder_.Get());
        ShowWindow(Button(kSecret), SW_HIDE);
        SetWindowSubclass(Button(kRude), &Rude, 0, 0);
    }
    ~PointingHandTest() override {
        for (const HWND window : {login_, bare_}) DestroyWindow(window);
    }
    HWND Button(int id) const { return GetDlgItem(login_, id); }
    void OnPage(int radio, const Story& story) {
        Browse([&](UserScreen& screen, HWND wizard) {
            NextUntil(screen, wizard, L"Select Trigger Event");
            screen.Check(wizard, radio);
            screen.Next(wizard);
            story(screen, wizard);
        });
    }

    const com::Ptr<Recorder> recorder_ = Recorder::Make(New<IRecordMgr>(L"Tovarin.RecordMgr"));
    // Neither says anything, nor has a window.
    const com::Variant stranger_{New<IDispatch>(L"Tovarin.ObjectRack").Get()};
    const HWND login_ =
                   MakeApplication(L"Log in", {10, 500, 260, 200},
                                   {{L"Static", L"Name:", 0, {5, 5, 70, 20}},
                                    {L"Static", L"Password:", 0, {80, 5, 70, 20}},
                                    {L"Button", L"Remember", kRemember, {5, 30, 70, 20}, BS_AUTOCHECKBOX},
                                    {L"Button", L"&OK", 0, {5, 120, 70, 20}, BS_DEFPUSHBUTTON},
                                    {L"Button", L"Cancel", kCancel, {80, 120, 70, 20}},
                                    {L"Button", L"Secret", kSecret, {155, 120, 70, 20}},
                                    {L"Button", L"", kUnnamed, {155, 30, 70, 20}},
                                    {L"Button", L"", kRude, {80, 30, 70, 20}}}),
               bare_ = MakeApplication(L"", {300, 500, 260, 160}, {});
};

TEST_F(PointingHandTest, PointingAtAPopUpFillsTheConditionsWithWhatItSays) {
    recorder_->before = {com::Variant(7L), com::Variant(static_cast<IDispatch*>(nullptr)), stranger_};
    OnPage(IDC_SELECT_TRIGGER_POPUP, [&](UserScreen& screen, HWND wizard) {
        const auto point = [&](const char* why, HWND at, const Rows& shown) {
            PointAt(screen, wizard, IDC_POPUP_HAND, at);
            ClearFaults();
            if (at == bare_) {
                EXPECT_EQ(screen.AnswerBox(IDOK), kUnsupported);
            }
            EXPECT_EQ((Rows{screen.Text(wizard, IDC_POPUP_TITLE), screen.Text(wizard, IDC_POPUP_TEXT)}),
                      shown)
                << why;
            EXPECT_EQ(screen.IsChecked(wizard, IDC_POPUP_TITLE_REGEX), shown[0] == L"typed") << why;
            EXPECT_EQ(screen.IsChecked(wizard, IDC_POPUP_TEXT_CHECK), !shown[1].empty()) << why;
        };
        const Rows typed{L"typed", L""};
        screen.Enter(wizard, IDC_POPUP_TITLE, L"typed");
        screen.Check(wizard, IDC_POPUP_TITLE_REGEX);
        point("gave up", nullptr, typed);
        FailCall(L"RecordMgr", L"GetObjectsAtPoint");
        point("the recorder fails", login_, typed);
        FailCall(L"TestObject", L"GetText", S_FALSE);
        point("no text at all", login_, typed);
        point("nothing that has a text", bare_, typed);
        point("the first that has a text", Button(kUnnamed), {L"Log in", L"Log in\r\nName:\r\nPassword:"});
        // What says nothing any more still has a title to go with.
        SetWindowTextW(bare_, L"Bare");
        recorder_->before = {com::Variant(static_cast<IDispatch*>(
            tovarin::TestObject::Make(bare_, com::Ptr<tovarin::TestObject>()).Get()))};
        SetWindowTextW(bare_, L"");
        PointAt(screen, wizard, IDC_POPUP_HAND, login_);
        EXPECT_EQ(screen.Text(wizard, IDC_POPUP_TITLE), L"Log in");
        EXPECT_FALSE(screen.IsChecked(wizard, IDC_POPUP_TEXT_CHECK));
        EXPECT_TRUE(CanGoOn(screen, wizard));
    });
}

TEST_F(PointingHandTest, PointingAtADialogOffersTheLabelsOfItsButtons) {
    recorder_->before = {stranger_};
    OnPage(IDC_SELECT_TRIGGER_POPUP, [&](UserScreen& screen, HWND wizard) {
        const auto pointAt = [&](HWND target) { PointAt(screen, wizard, IDC_CLICK_HAND, target); };
        GoToOperations(screen, wizard);
        AddOperation(screen, wizard, IDC_SELECT_OPERATION_CLICK);
        EXPECT_FALSE(screen.IsEnabled(wizard, IDC_CLICK_HAND) || screen.IsEnabled(wizard, IDC_CLICK_HOTKEY));
        screen.Check(wizard, IDC_CLICK_LABEL);
        EXPECT_FALSE(CanGoOn(screen, wizard) || screen.IsEnabled(wizard, IDC_CLICK_LABEL_LIST));
        // A click on a button stands for the window that it is in.
        pointAt(Button(kCancel));
        EXPECT_EQ(screen.RowsOf(wizard, IDC_CLICK_LABEL_LIST), (Rows{L"OK", L"Cancel"}));
        EXPECT_TRUE(CanGoOn(screen, wizard));
        pointAt(nullptr);
        EXPECT_EQ(screen.Chosen(wizard, IDC_CLICK_LABEL_LIST), Rows{L"OK"}) << "gave up";
        pointAt(Button(kRemember));
        EXPECT_FALSE(IsDlgButtonChecked(login_, kRemember)) << "the click reaches nobody else";
        pointAt(bare_);
        EXPECT_EQ(screen.AnswerBox(IDOK),
                  L"The dialog box or window you clicked does not contain any buttons");
        EXPECT_TRUE(screen.RowsOf(wizard, IDC_CLICK_LABEL_LIST).empty());
        EXPECT_FALSE(CanGoOn(screen, wizard));

        pointAt(login_);
        screen.Choose(wizard, IDC_CLICK_LABEL_LIST, L"Cancel");
        ForgetCalls();
        screen.Next(wizard);
        EXPECT_EQ(screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS),
                  Rows{L"Keyboard click | Click button with label: Cancel "});
        EXPECT_TRUE(
            CalledInOrder({L"ObjectAccessorRecoveryAction.Create", L".SetTargetKind(2)",
                           L".SetMethodName(\"PseudoMethod_SubButton_EC782BF2-CCE6-4d77-AC31-14EC4C8AF2AC\")",
                           L".SetMethodArguments([\"Cancel\", \"Click\"])"}));
        screen.Choose(wizard, IDC_OPERATION_LIST_ROWS, L"Keyboard click");
        screen.Press(wizard, IDC_OPERATION_LIST_DELETE);
        EXPECT_TRUE(screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS).empty());
    });
}

TEST_F(PointingHandTest, TheOnlyObjectIsTakenSeveralAreOfferedAndNothingElseIs) {
    constexpr int kTree = IDC_SELECT_OBJECT_TREE;
    OnPage(IDC_SELECT_TRIGGER_OBJECT_STATE, [&](UserScreen& screen, HWND wizard) {
        const auto point = [&](HWND at) { PointAt(screen, wizard, IDC_SELECT_OBJECT_HAND, at); };
        const auto choose = [&](int button) {
            screen.Press(screen.WaitForWindow(L"Object Selection - Object State Trigger"), button);
            return screen.RowsOf(wizard, kTree);
        };
        const auto pointInVain = [&](std::vector<com::Variant> found, const wchar_t* message) {
            recorder_->before = std::move(found);
            recorder_->most = recorder_->before.size();
            point(login_);
            EXPECT_EQ(screen.AnswerBox(IDOK), message);
            EXPECT_EQ(screen.WizardButtons(wizard), L"B n* f");
        };
        pointInVain({}, L"Object not found");
        pointInVain({com::Variant(7L)}, kUnsupported);
        recorder_->before.clear();

        recorder_->most = 100;
        point(Button(kCancel));
        EXPECT_EQ(choose(IDCANCEL), Rows{});
        point(Button(kCancel));
        const Rows tree{L"OrderEntry \"Log in\"", L"  Button \"Cancel\""};
        EXPECT_EQ(choose(IDOK), tree);
        EXPECT_EQ(screen.Chosen(wizard, kTree), Rows{tree.back()});
        point(Button(kCancel));
        const HWND selection = screen.WaitForWindow(L"Object Selection - Object State Trigger");
        screen.Press(selection, IDC_OBJECT_SELECTION_HELP);
        EXPECT_EQ(help_->Take(), L"OS_Object_State.htm");
        EXPECT_EQ(screen.RowsOf(selection, IDC_OBJECT_SELECTION_TREE), tree);
        screen.DoubleClick(selection, IDC_OBJECT_SELECTION_TREE, tree.front());
        EXPECT_EQ(screen.RowsOf(wizard, kTree), Rows{tree.front()});
        point(Button(kCancel));
        EXPECT_EQ(choose(IDOK), tree);
        screen.Next(wizard);
        EXPECT_EQ(screen.RowsOf(wizard, IDC_OBJECT_PROPS_TREE), tree);

        // Another pick is another hierarchy on both pages; giving up is none.
        screen.Back(wizard);
        point(nullptr);
        EXPECT_EQ(screen.RowsOf(wizard, kTree), tree);
        point(login_);
        EXPECT_EQ(screen.RowsOf(wizard, kTree), Rows{tree.front()});
        screen.Next(wizard);
        EXPECT_EQ(screen.RowsOf(wizard, IDC_OBJECT_PROPS_TREE), Rows{tree.front()});
        EXPECT_EQ(screen.RowsOf(wizard, IDC_OBJECT_PROPS_GRID),
                  (Rows{L"class | OrderEntry", L"text | Log in"}));
        NextUntil(screen, wizard, L"Recovery Operations");
    });
}

}  // namespace
}  // namespace recoveryui::test

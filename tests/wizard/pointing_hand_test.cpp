// The pointing hand on its three pages, with the real mouse over a second window.
#include "model/FakeTestObject.h"
#include "wizard/TargetApplication.h"
#include "wizard/WizardTest.h"

namespace recoveryui::test {
namespace {

constexpr int kBesideTheScreen = -3000;
constexpr const wchar_t* kUnsupported = L"The object you selected does not support this operation.";

com::Variant ValueOf(FakeTestObject* object) {
    return com::Variant(static_cast<IDispatch*>(object));
}

// Answers what the test says; what real windows give is the stand-in's own matter.
class FakeRecorder final : public com::Object<FakeRecorder, IRecordMgr> {
public:
    HRESULT STDMETHODCALLTYPE IsActive(VARIANT_BOOL*) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Suspend() noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Resume() noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetObjectsAtPoint(SAFEARRAY** out, long x, long y) noexcept override {
        asked = {x, y};
        *out = SUCCEEDED(result) ? ArrayOf<VARIANT>(objects).Detach() : nullptr;
        return result;
    }

    std::vector<com::Variant> objects;
    HRESULT result = S_OK;
    POINT asked{};
};

class PointingHandTest : public WizardTest {
protected:
    PointingHandTest() { rack_.Put(L"RecordMgr", recorder_.Get()); }

    // Presses the hand's button, and when the hand is out clicks into the window or gives up. The
    // wizard stands beside the screen meanwhile and is back in its place when this returns.
    void Point(UserScreen& screen, HWND wizard, int hand, HWND target) {
        RECT before{}, place{};
        GetWindowRect(wizard, &before);
        screen.Press(wizard, hand);
        screen.WaitUntil("the hand is out", [] {
            for (const HWND window : TopLevelWindows())
                if (ClassOf(window) == L"TovarinPointingHand" && IsWindowVisible(window)) return true;
            return false;
        });
        GetWindowRect(wizard, &place);
        EXPECT_LT(place.left, kBesideTheScreen);
        if (target) {
            GetWindowRect(target, &place);
            SetCursorPos((place.left + place.right) / 2, place.bottom - 8);
            for (const DWORD event : {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP})
                mouse_event(event, 0, 0, 0, 0);
        } else {
            screen.RealKeys({VK_ESCAPE});
        }
        screen.WaitUntil("the wizard is back", [&] {
            GetWindowRect(wizard, &place);
            return EqualRect(&place, &before) != 0;
        });
        screen.Do([] {});
    }
    void OnPage(int radio, const Script& script) {
        Browse([&](UserScreen& screen, HWND wizard) {
            NextUntil(screen, wizard, L"Select Trigger Event");
            screen.Check(wizard, radio);
            screen.Next(wizard);
            script(screen, wizard);
        });
    }

    TargetApplication target_;
    com::Ptr<FakeRecorder> recorder_ = FakeRecorder::Make();
};

TEST_F(PointingHandTest, PointingAtAPopUpFillsTheConditionsWithWhatItSays) {
    const auto silent = FakeTestObject::Make(L"Frame"), object = FakeTestObject::Make(L"Log in");
    object->hasText = true;
    const com::Variant frame = ValueOf(silent.Get()), dialog = ValueOf(object.Get());
    // What stands at the point, what it says, and what the page shows then.
    const struct {
        const char* why;
        bool points;
        HRESULT result;
        std::vector<com::Variant> objects;
        const wchar_t *text, *message;
        Rows shown;
    } cases[] = {
        {"gave up", false, S_OK, {frame, dialog}, L"Name:", nullptr, {L"typed", L""}},
        {"the recorder fails", true, E_FAIL, {frame, dialog}, L"Name:", nullptr, {L"typed", L""}},
        {"no text at all", true, S_OK, {frame, dialog}, nullptr, nullptr, {L"typed", L""}},
        {"nothing that has a text", true, S_OK, {frame}, nullptr, kUnsupported, {L"typed", L""}},
        {"the first that has a text",
         true,
         S_OK,
         {com::Variant(7L), ValueOf(nullptr), frame, dialog},
         L"Name:\nPassword:",
         nullptr,
         {L"Log in", L"Name:\r\nPassword:"}},
        {"only a title", true, S_OK, {frame, dialog}, L"", nullptr, {L"Log in", L""}},
    };
    OnPage(IDC_SELECT_TRIGGER_POPUP, [&](UserScreen& screen, HWND wizard) {
        screen.Enter(wizard, IDC_POPUP_TITLE, L"typed");
        screen.Check(wizard, IDC_POPUP_TITLE_REGEX);
        for (const auto& c : cases) {
            recorder_->objects = c.objects;
            recorder_->result = c.result;
            object->text = c.text;
            Point(screen, wizard, IDC_POPUP_HAND, c.points ? target_.Login() : nullptr);
            if (c.message) {
                EXPECT_EQ(screen.AnswerBox(IDOK), c.message);
            }
            EXPECT_EQ((Rows{screen.Text(wizard, IDC_POPUP_TITLE), screen.Text(wizard, IDC_POPUP_TEXT)}),
                      c.shown)
                << c.why;
            const bool isTyped = c.shown[0] == L"typed";
            EXPECT_EQ(screen.IsChecked(wizard, IDC_POPUP_TITLE_REGEX), isTyped) << c.why;
            EXPECT_EQ(screen.IsChecked(wizard, IDC_POPUP_TEXT_CHECK), !c.shown[1].empty()) << c.why;
        }
        RECT place{};
        GetWindowRect(target_.Login(), &place);
        EXPECT_TRUE(PtInRect(&place, recorder_->asked));
        screen.Picture(wizard, L"hand-popup");
        EXPECT_TRUE(CanGoOn(screen, wizard));
    });
}

TEST_F(PointingHandTest, PointingAtADialogOffersTheLabelsOfItsButtons) {
    const auto nowhere = FakeTestObject::Make(L"Sprite"), object = FakeTestObject::Make(L"Log in");
    recorder_->objects = {ValueOf(nowhere.Get()), ValueOf(object.Get())};
    OnPage(IDC_SELECT_TRIGGER_POPUP, [&](UserScreen& screen, HWND wizard) {
        const auto pointAt = [&](HWND window, HWND target) {
            object->window = window;
            Point(screen, wizard, IDC_CLICK_HAND, target);
        };
        GoToOperations(screen, wizard);
        AddOperation(screen, wizard, IDC_SELECT_OPERATION_CLICK);
        screen.Check(wizard, IDC_CLICK_LABEL);
        EXPECT_FALSE(CanGoOn(screen, wizard));
        // A click on a button stands for the window that it is in.
        pointAt(FindWindowExW(target_.Login(), nullptr, L"Button", L"Cancel"), target_.Login());
        EXPECT_EQ(screen.RowsOf(wizard, IDC_CLICK_LABEL_LIST), (Rows{L"OK", L"Cancel"}));
        EXPECT_TRUE(CanGoOn(screen, wizard));
        screen.Picture(wizard, L"hand-labels");
        pointAt(nullptr, nullptr);
        EXPECT_EQ(screen.Chosen(wizard, IDC_CLICK_LABEL_LIST), Rows{L"OK"}) << "gave up";
        pointAt(target_.Bare(), target_.Bare());
        EXPECT_EQ(screen.AnswerBox(IDOK),
                  L"The dialog box or window you clicked does not contain any buttons");
        EXPECT_TRUE(screen.RowsOf(wizard, IDC_CLICK_LABEL_LIST).empty());
        EXPECT_FALSE(CanGoOn(screen, wizard));

        pointAt(target_.Login(), target_.Login());
        screen.Choose(wizard, IDC_CLICK_LABEL_LIST, L"Cancel");
        ForgetCalls();
        screen.Next(wizard);
        EXPECT_EQ(screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS),
                  Rows{L"Keyboard click | Click button with label: Cancel "});
        EXPECT_TRUE(
            CalledInOrder({L"ObjectAccessorRecoveryAction.Create", L".SetTargetKind(2)",
                           L".SetMethodName(\"PseudoMethod_SubButton_EC782BF2-CCE6-4d77-AC31-14EC4C8AF2AC\")",
                           L".SetMethodArguments([\"Cancel\", \"Click\"])"}));
    });
}

TEST_F(PointingHandTest, TheOnlyObjectAtThePointIsTakenAndNothingElseIs) {
    constexpr int kTree = IDC_SELECT_OBJECT_TREE;
    const auto object = FakeTestObject::LoginName();
    OnPage(IDC_SELECT_TRIGGER_OBJECT_STATE, [&](UserScreen& screen, HWND wizard) {
        const auto point = [&](HWND at) { Point(screen, wizard, IDC_SELECT_OBJECT_HAND, at); };
        point(target_.Login());
        EXPECT_EQ(screen.AnswerBox(IDOK), L"Object not found");
        recorder_->objects = {com::Variant(7L)};
        point(target_.Login());
        EXPECT_EQ(screen.AnswerBox(IDOK), kUnsupported);
        EXPECT_EQ(screen.WizardButtons(wizard), L"B n* f");

        recorder_->objects = {ValueOf(object.Get())};
        point(target_.Login());
        const Rows tree{L"Login", L"  Name"};
        EXPECT_EQ(screen.RowsOf(wizard, kTree), tree);
        EXPECT_EQ(screen.Chosen(wizard, kTree), Rows{L"  Name"});
        screen.Next(wizard);
        EXPECT_EQ(screen.RowsOf(wizard, IDC_OBJECT_PROPS_TREE), tree);

        // Another pick is another hierarchy on both pages; giving up is none.
        screen.Back(wizard);
        recorder_->objects = {ValueOf(object->Parent())};
        point(nullptr);
        EXPECT_EQ(screen.RowsOf(wizard, kTree), tree);
        point(target_.Login());
        EXPECT_EQ(screen.RowsOf(wizard, kTree), Rows{L"Login"});
        screen.Next(wizard);
        EXPECT_EQ(screen.RowsOf(wizard, IDC_OBJECT_PROPS_TREE), Rows{L"Login"});
        EXPECT_EQ(screen.RowsOf(wizard, IDC_OBJECT_PROPS_GRID), Rows{L"text | Log in"});
    });
}

TEST_F(PointingHandTest, SeveralObjectsAtThePointAreOfferedForAChoice) {
    constexpr const wchar_t* kSelection = L"Object Selection - Object State Trigger";
    rack_.Put(L"RecordMgr", L"Tovarin.RecordMgr");
    OnPage(IDC_SELECT_TRIGGER_OBJECT_STATE, [&](UserScreen& screen, HWND wizard) {
        for (const auto& [button, objects] : {std::pair(IDCANCEL, 0u), {IDOK, 2u}}) {
            Point(screen, wizard, IDC_SELECT_OBJECT_HAND,
                  FindWindowExW(target_.Login(), nullptr, L"Button", L"Cancel"));
            screen.Press(screen.WaitForWindow(kSelection), static_cast<int>(button));
            EXPECT_EQ(screen.RowsOf(wizard, IDC_SELECT_OBJECT_TREE).size(), objects);
        }
        EXPECT_TRUE(Called(L"ObjectSelection.SetHelpTopic(\"OS_Object_State.htm\")"));
        NextUntil(screen, wizard, L"Recovery Operations");
    });
}

}  // namespace
}  // namespace recoveryui::test

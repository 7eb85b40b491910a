// The pointing hand on its three pages, with the real mouse over a second window.
#include <optional>

#include "com/SafeArray.h"
#include "model/FakeTestObject.h"
#include "wizard/TargetApplication.h"
#include "wizard/WizardTest.h"

namespace recoveryui::test {
namespace {

constexpr int kBesideTheScreen = -3000;

// Answers what the test says; what real windows give is the stand-in's own matter.
class FakeRecorder final : public com::Object<FakeRecorder, IRecordMgr> {
public:
    HRESULT STDMETHODCALLTYPE IsActive(VARIANT_BOOL*) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Suspend() noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Resume() noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetObjectsAtPoint(SAFEARRAY** out, long x, long y) noexcept override {
        asked = {x, y};
        com::CVtlSafeArray<VARIANT> array;
        EXPECT_EQ(array.Create(static_cast<ULONG>(objects.size())), S_OK);
        for (size_t i = 0; i < objects.size(); ++i)
            EXPECT_EQ(array.PutElement(static_cast<LONG>(i), objects[i]), S_OK);
        *out = SUCCEEDED(result) ? array.Detach() : nullptr;
        return result;
    }
    void Give(std::initializer_list<FakeTestObject*> given) {
        objects.clear();
        for (FakeTestObject* object : given) objects.emplace_back(static_cast<IDispatch*>(object));
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
            Mouse(MOUSEEVENTF_LEFTDOWN);
            Mouse(MOUSEEVENTF_LEFTUP);
        } else {
            screen.RealKeys({VK_ESCAPE});
        }
        screen.WaitUntil("the wizard is back", [&] {
            GetWindowRect(wizard, &place);
            return EqualRect(&place, &before) != 0;
        });
        screen.Do([] {});
    }
    static void Mouse(DWORD flags) {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = flags;
        SendInput(1, &input, sizeof input);
    }
    HRESULT OnPage(int radio, std::function<void(UserScreen&, HWND)> script) {
        return Run([&](UserScreen& screen, HWND wizard) {
            NextUntil(screen, wizard, L"Select Trigger Event");
            screen.Check(wizard, radio);
            screen.Next(wizard);
            script(screen, wizard);
            screen.Cancel(wizard);
        });
    }

    TargetApplication target_;
    com::Ptr<FakeRecorder> recorder_ = FakeRecorder::Make();
};

TEST_F(PointingHandTest, PointingAtAPopUpFillsTheConditionsWithWhatItSays) {
    const auto silent = FakeTestObject::Make(L"Frame"), object = FakeTestObject::Make(L"Log in");
    object->hasText = true;
    object->text = L"Name:\nPassword:";
    const auto texts = [](UserScreen& screen, HWND wizard) {
        return Rows{screen.Text(wizard, IDC_POPUP_TITLE), screen.Text(wizard, IDC_POPUP_TEXT)};
    };
    EXPECT_EQ(OnPage(IDC_SELECT_TRIGGER_POPUP,
                     [&](UserScreen& screen, HWND wizard) {
                         const auto point = [&](HWND at) { Point(screen, wizard, IDC_POPUP_HAND, at); };
                         screen.Enter(wizard, IDC_POPUP_TITLE, L"typed");
                         screen.Check(wizard, IDC_POPUP_TITLE_REGEX);
                         const Rows typed{L"typed", L""};
                         recorder_->Give({silent.Get(), object.Get()});
                         point(nullptr);
                         EXPECT_EQ(texts(screen, wizard), typed) << "gave up";
                         recorder_->result = E_FAIL;
                         point(target_.Login());
                         EXPECT_EQ(texts(screen, wizard), typed) << "the recorder fails";
                         recorder_->result = S_OK;
                         object->text = nullptr;
                         point(target_.Login());
                         EXPECT_EQ(texts(screen, wizard), typed) << "no text at all";
                         recorder_->Give({silent.Get()});
                         point(target_.Login());
                         EXPECT_EQ(screen.AnswerBox(IDOK),
                                   L"The object you selected does not support this operation.");
                         EXPECT_EQ(texts(screen, wizard), typed);

                         object->text = L"Name:\nPassword:";
                         recorder_->objects = {com::Variant(7L),
                                               com::Variant(static_cast<IDispatch*>(nullptr)),
                                               com::Variant(static_cast<IDispatch*>(silent.Get())),
                                               com::Variant(static_cast<IDispatch*>(object.Get()))};
                         point(target_.Login());
                         EXPECT_EQ(texts(screen, wizard), (Rows{L"Log in", L"Name:\r\nPassword:"}));
                         EXPECT_FALSE(screen.IsChecked(wizard, IDC_POPUP_TITLE_REGEX));
                         EXPECT_TRUE(screen.IsEnabled(wizard, IDC_POPUP_TEXT));
                         EXPECT_TRUE(screen.IsEnabled(wizard, 0x3024));
                         RECT place{};
                         GetWindowRect(target_.Login(), &place);
                         EXPECT_TRUE(PtInRect(&place, recorder_->asked));
                         screen.Picture(wizard, L"hand-popup");

                         object->text = L"";
                         point(target_.Login());
                         EXPECT_EQ(texts(screen, wizard), (Rows{L"Log in", L""})) << "only a title";
                         EXPECT_FALSE(screen.IsChecked(wizard, IDC_POPUP_TEXT_CHECK));
                     }),
              S_FALSE);
}

TEST_F(PointingHandTest, PointingAtADialogOffersTheLabelsOfItsButtons) {
    const auto nowhere = FakeTestObject::Make(L"Sprite"), object = FakeTestObject::Make(L"Log in");
    const auto next = [](UserScreen& screen, HWND wizard) { return screen.IsEnabled(wizard, 0x3024); };
    recorder_->Give({nowhere.Get(), object.Get()});
    EXPECT_EQ(OnPage(IDC_SELECT_TRIGGER_POPUP,
                     [&](UserScreen& screen, HWND wizard) {
                         screen.Enter(wizard, IDC_POPUP_TITLE, L"Log in");
                         screen.Next(wizard);
                         AddOperation(screen, wizard, IDC_SELECT_OPERATION_CLICK);
                         screen.Check(wizard, IDC_CLICK_LABEL);
                         EXPECT_FALSE(next(screen, wizard));
                         // A click on a button stands for the window that it is in.
                         object->window = FindWindowExW(target_.Login(), nullptr, L"Button", L"Cancel");
                         Point(screen, wizard, IDC_CLICK_HAND, target_.Login());
                         EXPECT_EQ(screen.RowsOf(wizard, IDC_CLICK_LABEL_LIST), (Rows{L"OK", L"Cancel"}));
                         EXPECT_EQ(screen.Chosen(wizard, IDC_CLICK_LABEL_LIST), Rows{L"OK"});
                         EXPECT_TRUE(next(screen, wizard));
                         screen.Picture(wizard, L"hand-labels");
                         Point(screen, wizard, IDC_CLICK_HAND, nullptr);
                         EXPECT_EQ(screen.Chosen(wizard, IDC_CLICK_LABEL_LIST), Rows{L"OK"}) << "gave up";
                         object->window = target_.Bare();
                         Point(screen, wizard, IDC_CLICK_HAND, target_.Bare());
                         EXPECT_EQ(screen.AnswerBox(IDOK),
                                   L"The dialog box or window you clicked does not contain any buttons");
                         EXPECT_TRUE(screen.RowsOf(wizard, IDC_CLICK_LABEL_LIST).empty());
                         EXPECT_FALSE(next(screen, wizard));

                         object->window = target_.Login();
                         Point(screen, wizard, IDC_CLICK_HAND, target_.Login());
                         screen.Choose(wizard, IDC_CLICK_LABEL_LIST, L"Cancel");
                         ForgetCalls();
                         screen.Next(wizard);
                         EXPECT_EQ(screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS),
                                   Rows{L"Keyboard click | Click button with label: Cancel "});
                         EXPECT_TRUE(CalledInOrder(
                             {L"ObjectAccessorRecoveryAction.Create", L".SetTargetKind(2)",
                              L".SetMethodName(\"PseudoMethod_SubButton_EC782BF2-CCE6-4d77-AC31-14EC4C8AF2AC\")",
                              L".SetMethodArguments([\"Cancel\", \"Click\"])"}));
                     }),
              S_FALSE);
}

TEST_F(PointingHandTest, TheOnlyObjectAtThePointIsTakenAndNothingElseIs) {
    const auto object = FakeTestObject::LoginName();
    EXPECT_EQ(OnPage(IDC_SELECT_TRIGGER_OBJECT_STATE,
                     [&](UserScreen& screen, HWND wizard) {
                         const auto point = [&](HWND at) {
                             Point(screen, wizard, IDC_SELECT_OBJECT_HAND, at);
                         };
                         point(target_.Login());
                         EXPECT_EQ(screen.AnswerBox(IDOK), L"Object not found");
                         recorder_->objects = {com::Variant(7L)};
                         point(target_.Login());
                         EXPECT_EQ(screen.AnswerBox(IDOK),
                                   L"The object you selected does not support this operation.");
                         EXPECT_EQ(screen.WizardButtons(wizard), L"B* n f");

                         recorder_->Give({object.Get()});
                         point(target_.Login());
                         const Rows tree{L"Login", L"  Name"};
                         EXPECT_EQ(screen.RowsOf(wizard, IDC_SELECT_OBJECT_TREE), tree);
                         EXPECT_EQ(screen.Chosen(wizard, IDC_SELECT_OBJECT_TREE), Rows{L"  Name"});
                         screen.Next(wizard);
                         EXPECT_EQ(screen.RowsOf(wizard, IDC_OBJECT_PROPS_TREE), tree);

                         // Another pick is another hierarchy on both pages; giving up is none.
                         screen.Back(wizard);
                         recorder_->Give({object->Parent()});
                         point(nullptr);
                         EXPECT_EQ(screen.RowsOf(wizard, IDC_SELECT_OBJECT_TREE), tree);
                         point(target_.Login());
                         EXPECT_EQ(screen.RowsOf(wizard, IDC_SELECT_OBJECT_TREE), Rows{L"Login"});
                         screen.Next(wizard);
                         EXPECT_EQ(screen.RowsOf(wizard, IDC_OBJECT_PROPS_TREE), Rows{L"Login"});
                         EXPECT_EQ(screen.RowsOf(wizard, IDC_OBJECT_PROPS_GRID), Rows{L"text | Log in"});
                     }),
              S_FALSE);
}

TEST_F(PointingHandTest, SeveralObjectsAtThePointAreOfferedForAChoice) {
    constexpr const wchar_t* kSelection = L"Object Selection - Object State Trigger";
    rack_.Put(L"RecordMgr", L"Tovarin.RecordMgr");
    const HWND button = FindWindowExW(target_.Login(), nullptr, L"Button", L"Cancel");
    EXPECT_EQ(OnPage(IDC_SELECT_TRIGGER_OBJECT_STATE,
                     [&](UserScreen& screen, HWND wizard) {
                         Point(screen, wizard, IDC_SELECT_OBJECT_HAND, button);
                         screen.Press(screen.WaitForWindow(kSelection), IDCANCEL);
                         EXPECT_TRUE(screen.RowsOf(wizard, IDC_SELECT_OBJECT_TREE).empty());
                         Point(screen, wizard, IDC_SELECT_OBJECT_HAND, button);
                         const HWND selection = screen.WaitForWindow(kSelection);
                         EXPECT_TRUE(Called(L"ObjectSelection.SetHelpTopic(\"OS_Object_State.htm\")"));
                         screen.Picture(selection, L"hand-selection");
                         screen.Press(selection, IDOK);
                         EXPECT_EQ(screen.RowsOf(wizard, IDC_SELECT_OBJECT_TREE).size(), 2u);
                         screen.Picture(wizard, L"hand-object");
                         screen.Next(wizard);
                         EXPECT_FALSE(screen.RowsOf(wizard, IDC_OBJECT_PROPS_GRID).empty());
                         screen.Picture(wizard, L"hand-props");
                         screen.Next(wizard);
                         EXPECT_EQ(screen.PageTitle(wizard), L"Recovery Operations");
                     }),
              S_FALSE);
}

}  // namespace
}  // namespace recoveryui::test

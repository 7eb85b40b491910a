// "Select Object" and "Set Object Properties and Values" as their users meet them.
#include "model/FakeTestObject.h"
#include "wizard/WizardTest.h"

namespace recoveryui::test {
namespace {

constexpr const wchar_t* kSelectTitle = L"Select Object";
constexpr const wchar_t* kPropsTitle = L"Set Object Properties and Values";
constexpr const wchar_t* kOperationsTitle = L"Recovery Operations";
constexpr const wchar_t* kDialogTitle = L"Edit Properties";

class ObjectPagesTest : public WizardTest {
protected:
    void EditObject(com::Ptr<FakeTestObject> object) {
        object_ = std::move(object);
        const auto trigger = New<IObjectStateRecoveryTrigger>(L"Vantrel.ObjectStateRecoveryTrigger");
        EXPECT_EQ(trigger->SetTestObject(object_.Get()), S_OK);
        Edit(trigger.Get());
        ForgetCalls();
    }
    // From the wizard on its first page; the script gets it on the page of properties and cancels at its end.
    HRESULT OnProperties(std::function<void(UserScreen&, HWND)> script) {
        return Run([&](UserScreen& screen, HWND wizard) {
            NextUntil(screen, wizard, kPropsTitle);
            script(screen, wizard);
            screen.Cancel(wizard);
        });
    }
    static void EnterValue(UserScreen& screen, HWND wizard, const wchar_t* row, const wchar_t* value) {
        screen.Choose(wizard, IDC_OBJECT_PROPS_GRID, row);
        screen.Enter(wizard, IDC_OBJECT_PROPS_VALUE, value);
    }

    com::Ptr<FakeTestObject> object_;
};

TEST_F(ObjectPagesTest, AFreshWizardWaitsForAnObject) {
    EXPECT_EQ(Run([&](UserScreen& screen, HWND wizard) {
                  NextUntil(screen, wizard, L"Select Trigger Event");
                  screen.Check(wizard, IDC_SELECT_TRIGGER_OBJECT_STATE);
                  screen.Next(wizard);
                  EXPECT_EQ(screen.PageTitle(wizard), kSelectTitle);
                  EXPECT_EQ(screen.WizardButtons(wizard), L"B* n f");
                  screen.Picture(wizard, L"object-fresh");
                  screen.Cancel(wizard);
              }),
              S_FALSE);
}

TEST_F(ObjectPagesTest, EditingShowsTheObjectItsParentsAndWhatIdentifiesThem) {
    EditObject(FakeTestObject::LoginName());
    EXPECT_EQ(
        Run([&](UserScreen& screen, HWND wizard) {
            NextUntil(screen, wizard, kSelectTitle);
            EXPECT_EQ(screen.RowsOf(wizard, IDC_SELECT_OBJECT_TREE), (Rows{L"Login", L"  Name"}));
            EXPECT_EQ(screen.WizardButtons(wizard), L"B N* f");
            screen.Picture(wizard, L"object-selected");
            screen.Next(wizard);
            EXPECT_EQ(screen.Chosen(wizard, IDC_OBJECT_PROPS_TREE), Rows{L"  Name"});
            EXPECT_EQ(screen.RowsOf(wizard, IDC_OBJECT_PROPS_GRID), (Rows{L"text | Your name", L"x | 12"}));
            EXPECT_TRUE(screen.IsRowChecked(wizard, IDC_OBJECT_PROPS_GRID, L"x"));
            EXPECT_EQ(screen.Text(wizard, IDC_OBJECT_PROPS_VALUE), L"Your name");
            screen.Picture(wizard, L"object-props");
            screen.Choose(wizard, IDC_OBJECT_PROPS_GRID, L"x");
            EXPECT_EQ(screen.Text(wizard, IDC_OBJECT_PROPS_VALUE), L"12");
            screen.Choose(wizard, IDC_OBJECT_PROPS_TREE, L"Login");
            EXPECT_EQ(screen.RowsOf(wizard, IDC_OBJECT_PROPS_GRID), Rows{L"text | Log in"});
            EXPECT_EQ(screen.Text(wizard, IDC_OBJECT_PROPS_VALUE), L"Log in");
            screen.Cancel(wizard);
        }),
        S_FALSE);
}

TEST_F(ObjectPagesTest, WhatIsTypedReachesTheObjectAndNextMakesATriggerOfIt) {
    EditObject(FakeTestObject::LoginName());
    EXPECT_EQ(
        OnProperties([&](UserScreen& screen, HWND wizard) {
            EnterValue(screen, wizard, L"text", L"Your .*");
            screen.Check(wizard, IDC_OBJECT_PROPS_REGEX);
            EXPECT_EQ(object_->Identification(), L"*text='Your name' *x=12 items=? visible=True");
            EnterValue(screen, wizard, L"x", L"13");
            EXPECT_EQ(screen.RowsOf(wizard, IDC_OBJECT_PROPS_GRID), (Rows{L"text | Your .*", L"x | 12"}));
            screen.Choose(wizard, IDC_OBJECT_PROPS_GRID, L"text");
            EXPECT_TRUE(screen.IsChecked(wizard, IDC_OBJECT_PROPS_REGEX));
            EXPECT_EQ(object_->Identification(), L"*text='Your .*'/ *x=13 items=? visible=True");
            EnterValue(screen, wizard, L"x", L"wide");
            screen.Next(wizard);
            EXPECT_EQ(screen.PageTitle(wizard), kOperationsTitle);
            EXPECT_EQ(object_->Identification(), L"*text='Your .*'/ *x='wide' items=? visible=True");
            EXPECT_TRUE(CalledInOrder({L"ObjectStateRecoveryTrigger.SetRack", L".SetTestObject",
                                       L".SetObjectStateOption(0)"}));

            // The page is as it was left; what a failing host keeps from being made stays here.
            screen.Back(wizard);
            EXPECT_EQ(screen.PageTitle(wizard), kPropsTitle);
            EXPECT_EQ(screen.Chosen(wizard, IDC_OBJECT_PROPS_GRID), Rows{L"x | wide"});
            for (const wchar_t* call : {L"SetRack", L"SetTestObject", L"SetObjectStateOption"}) {
                FailCall(L"ObjectStateRecoveryTrigger", call);
                screen.Next(wizard);
                EXPECT_EQ(screen.PageTitle(wizard), kPropsTitle) << Utf8(call);
            }
            object_->writing = E_FAIL;
            screen.Enter(wizard, IDC_OBJECT_PROPS_VALUE, L"narrow");
            screen.Next(wizard);
            EXPECT_EQ(screen.PageTitle(wizard), kPropsTitle) << "the object refuses the value";
            object_->writing = S_OK;
        }),
        S_FALSE);
    EXPECT_EQ(object_->Identification(), L"*text='Your name' *x=12 items=? visible=True") << "cancelled";
}

TEST_F(ObjectPagesTest, EveryMemberNeedsACheckedProperty) {
    EditObject(FakeTestObject::LoginName());
    EXPECT_EQ(OnProperties([&](UserScreen& screen, HWND wizard) {
                  screen.Choose(wizard, IDC_OBJECT_PROPS_TREE, L"Login");
                  screen.ToggleRow(wizard, IDC_OBJECT_PROPS_GRID, L"text");
                  EXPECT_EQ(object_->Parent()->Identification(), L"text='Log in' enabled=True");
                  screen.Choose(wizard, IDC_OBJECT_PROPS_TREE, L"Name");
                  screen.Next(wizard);
                  EXPECT_EQ(screen.AnswerBox(IDOK), L"At least one property must be checked");
                  EXPECT_EQ(screen.PageTitle(wizard), kPropsTitle);
                  // All of them are there to choose from.
                  EXPECT_EQ(screen.Chosen(wizard, IDC_OBJECT_PROPS_TREE), Rows{L"Login"});
                  EXPECT_EQ(screen.RowsOf(wizard, IDC_OBJECT_PROPS_GRID),
                            (Rows{L"text | Log in", L"enabled | True"}));
                  object_->Parent()->writing = E_FAIL;
                  screen.ToggleRow(wizard, IDC_OBJECT_PROPS_GRID, L"enabled");
                  EXPECT_FALSE(screen.IsRowChecked(wizard, IDC_OBJECT_PROPS_GRID, L"enabled")) << "refused";
                  object_->Parent()->writing = S_OK;
                  screen.ToggleRow(wizard, IDC_OBJECT_PROPS_GRID, L"enabled");
                  screen.Next(wizard);
                  EXPECT_EQ(screen.PageTitle(wizard), kOperationsTitle);
              }),
              S_FALSE);
}

TEST_F(ObjectPagesTest, PropertiesAreAddedAndRemovedInTheirDialog) {
    EditObject(FakeTestObject::LoginName());
    EXPECT_EQ(OnProperties([&](UserScreen& screen, HWND wizard) {
                  screen.Press(wizard, IDC_OBJECT_PROPS_ADD_REMOVE);
                  HWND dialog = screen.WaitForWindow(kDialogTitle);
                  EXPECT_EQ(
                      screen.RowsOf(dialog, IDC_EDIT_PROPERTIES_GRID),
                      (Rows{L"text | Your name", L"x | 12", L"items | [complex value]", L"visible | True"}));
                  EXPECT_TRUE(screen.IsRowChecked(dialog, IDC_EDIT_PROPERTIES_GRID, L"x"));
                  EXPECT_FALSE(screen.IsRowChecked(dialog, IDC_EDIT_PROPERTIES_GRID, L"items"));
                  screen.ToggleRow(dialog, IDC_EDIT_PROPERTIES_GRID, L"items");
                  screen.Picture(dialog, L"object-edit-properties");
                  screen.Press(dialog, IDCANCEL);
                  EXPECT_EQ(object_->Identification(), L"*text='Your name' *x=12 items=? visible=True");

                  screen.Press(wizard, IDC_OBJECT_PROPS_ADD_REMOVE);
                  dialog = screen.WaitForWindow(kDialogTitle);
                  screen.ToggleRow(dialog, IDC_EDIT_PROPERTIES_GRID, L"items");
                  screen.ToggleRow(dialog, IDC_EDIT_PROPERTIES_GRID, L"x");
                  screen.Press(dialog, IDOK);
                  EXPECT_EQ(object_->Identification(), L"*text='Your name' x=12 *items=? visible=True");
                  EXPECT_EQ(screen.RowsOf(wizard, IDC_OBJECT_PROPS_GRID),
                            (Rows{L"text | Your name", L"items | [complex value]"}));
                  screen.Choose(wizard, IDC_OBJECT_PROPS_GRID, L"items");
                  EXPECT_EQ(screen.Text(wizard, IDC_OBJECT_PROPS_VALUE), L"[complex value]");
                  EXPECT_FALSE(screen.IsEnabled(wizard, IDC_OBJECT_PROPS_VALUE));
                  EXPECT_FALSE(screen.IsEnabled(wizard, IDC_OBJECT_PROPS_REGEX));
                  screen.Picture(wizard, L"object-props-complex");
              }),
              S_FALSE);
}

TEST_F(ObjectPagesTest, AHierarchyOfFortyLevelsIsThereWithinABlink) {
    EditObject(FakeTestObject::Nested(40));
    EXPECT_EQ(Run([&](UserScreen& screen, HWND wizard) {
                  NextUntil(screen, wizard, L"Select Trigger Event");
                  const ULONGLONG before = GetTickCount64();
                  screen.Next(wizard);
                  EXPECT_EQ(screen.RowsOf(wizard, IDC_SELECT_OBJECT_TREE).size(), 40u);
                  screen.Picture(wizard, L"object-deep");
                  screen.Next(wizard);
                  screen.Choose(wizard, IDC_OBJECT_PROPS_TREE, L"level 20");
                  screen.Next(wizard);
                  EXPECT_EQ(screen.PageTitle(wizard), kOperationsTitle);
                  EXPECT_LT(GetTickCount64() - before, 2000u);
                  screen.Cancel(wizard);
              }),
              S_FALSE);
}

TEST_F(ObjectPagesTest, AnObjectThatCannotBeReadIsPickedAnew) {
    EditObject(FakeTestObject::LoginName());
    FailCall(L"ObjectStateRecoveryTrigger", L"GetTestObject");
    EXPECT_EQ(Run([&](UserScreen& screen, HWND wizard) {
                  NextUntil(screen, wizard, kSelectTitle);
                  EXPECT_TRUE(screen.RowsOf(wizard, IDC_SELECT_OBJECT_TREE).empty());
                  EXPECT_EQ(screen.WizardButtons(wizard), L"B* n f");
                  screen.Cancel(wizard);
              }),
              S_FALSE);
}

}  // namespace
}  // namespace recoveryui::test

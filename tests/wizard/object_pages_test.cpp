// "Select Object" and "Set Object Properties and Values" as their users meet them.
#include "model/LoginName.h"
#include "objects/Journal.h"
#include "support/HelpTopics.h"
#include "wizard/WizardTest.h"

namespace recoveryui::test {
namespace {

constexpr const wchar_t* kPropsTitle = L"Set Object Properties and Values";
constexpr const wchar_t* kOperationsTitle = L"Recovery Operations";
constexpr const wchar_t* kUntouched = L"*text='Your name' *x=12 items=0 visible=1";
constexpr int kTree = IDC_OBJECT_PROPS_TREE, kGrid = IDC_OBJECT_PROPS_GRID;

// "text='value'", "*" in front of a checked one, "/" behind a regular expression.
std::wstring Identification(const tovarin::store::TestObject& object) {
    std::wstring all;
    for (const auto& property : object.properties) {
        const bool isText = property.value.type == tovarin::store::ValueType::Text;
        all += (all.empty() ? L"" : L" ") + std::wstring(property.isChecked ? L"*" : L"") + property.name +
               L"=" + (isText ? L"'" + property.value.text + L"'" : std::to_wstring(property.value.integer)) +
               (property.isRegularExpression ? L"/" : L"");
    }
    return all;
}

class ObjectPagesTest : public WizardTest {
protected:
    ObjectPagesTest() {
        const auto trigger = New<IObjectStateRecoveryTrigger>(L"Vantrel.ObjectStateRecoveryTrigger");
        EXPECT_EQ(trigger->SetTestObject(object_.Get()), S_OK);
        Edit(trigger.Get());
        ForgetCalls();
    }
    // The script gets the wizard on the page of properties.
    void OnProperties(const Story& story) {
        Browse([&](UserScreen& screen, HWND wizard) {
            NextUntil(screen, wizard, kPropsTitle);
            story(screen, wizard);
        });
    }
    static void EnterValue(UserScreen& screen, HWND wizard, const wchar_t* row, const wchar_t* value) {
        screen.Choose(wizard, kGrid, row);
        screen.Enter(wizard, IDC_OBJECT_PROPS_VALUE, value);
    }

    // What identifies the object, or a parent of it.
    std::wstring Now(size_t member = 0) const {
        tovarin::store::Hierarchy hierarchy;
        EXPECT_EQ(object_->Write(hierarchy), S_OK);
        return Identification(hierarchy.at(member));
    }
    // The object itself is this program's, and so is its journal.
    static void Refuse(const wchar_t* operation) {
        tovarin::Journal::Instance().FailCall(L"TestObject", operation, 1, E_FAIL, 1);
    }

    const com::Ptr<tovarin::TestObject> object_ = LoginName();
};

TEST_F(ObjectPagesTest, EditingShowsTheObjectItsParentsAndWhatIdentifiesThem) {
    Browse([&](UserScreen& screen, HWND wizard) {
        NextUntil(screen, wizard, L"Select Object");
        EXPECT_EQ(screen.RowsOf(wizard, IDC_SELECT_OBJECT_TREE), (Rows{L"Login", L"  Name"}));
        EXPECT_EQ(screen.WizardButtons(wizard), L"B N* f");
        screen.Next(wizard);
        EXPECT_EQ(screen.Chosen(wizard, kTree), Rows{L"  Name"});
        EXPECT_EQ(screen.RowsOf(wizard, kGrid), (Rows{L"text | Your name", L"x | 12"}));
        EXPECT_TRUE(screen.IsRowChecked(wizard, kGrid, L"x"));
        EXPECT_EQ(screen.Text(wizard, IDC_OBJECT_PROPS_VALUE), L"Your name");
        screen.Choose(wizard, kGrid, L"x");
        EXPECT_EQ(screen.Text(wizard, IDC_OBJECT_PROPS_VALUE), L"12");
        screen.Choose(wizard, kTree, L"Login");
        EXPECT_EQ(screen.RowsOf(wizard, kGrid), Rows{L"text | Log in"});
        EXPECT_EQ(screen.Text(wizard, IDC_OBJECT_PROPS_VALUE), L"Log in");
    });
    // What cannot be read is picked anew.
    FailCall(L"ObjectStateRecoveryTrigger", L"GetTestObject");
    Browse([&](UserScreen& screen, HWND wizard) {
        NextUntil(screen, wizard, L"Select Object");
        EXPECT_TRUE(screen.RowsOf(wizard, IDC_SELECT_OBJECT_TREE).empty());
        EXPECT_EQ(screen.WizardButtons(wizard), L"B n* f");
    });
}

TEST_F(ObjectPagesTest, WhatIsTypedReachesTheObjectAndNextMakesATriggerOfIt) {
    OnProperties([&](UserScreen& screen, HWND wizard) {
        EnterValue(screen, wizard, L"text", L"Your .*");
        screen.Check(wizard, IDC_OBJECT_PROPS_REGEX);
        EXPECT_EQ(Now(), kUntouched);
        EnterValue(screen, wizard, L"x", L"13");
        EXPECT_EQ(screen.RowsOf(wizard, kGrid), (Rows{L"text | Your .*", L"x | 12"}));
        screen.Choose(wizard, kGrid, L"text");
        EXPECT_TRUE(screen.IsChecked(wizard, IDC_OBJECT_PROPS_REGEX));
        EXPECT_EQ(Now(), L"*text='Your .*'/ *x=13 items=0 visible=1");
        EnterValue(screen, wizard, L"x", L"wide");
        screen.Next(wizard);
        EXPECT_EQ(screen.PageTitle(wizard), kOperationsTitle);
        EXPECT_EQ(Now(), L"*text='Your .*'/ *x='wide' items=0 visible=1");
        EXPECT_TRUE(CalledInOrder(
            {L"ObjectStateRecoveryTrigger.SetRack", L".SetTestObject", L".SetObjectStateOption(0)"}));

        // The page is as it was left; what a failing host keeps from being made stays here.
        screen.Back(wizard);
        EXPECT_EQ(screen.Chosen(wizard, kGrid), Rows{L"x | wide"});
        for (const wchar_t* call : {L"SetRack", L"SetTestObject", L"SetObjectStateOption"}) {
            FailCall(L"ObjectStateRecoveryTrigger", call);
            screen.Next(wizard);
            EXPECT_EQ(screen.PageTitle(wizard), kPropsTitle) << Utf8(call);
        }
        Refuse(L"SetPropertyValue");
        screen.Enter(wizard, IDC_OBJECT_PROPS_VALUE, L"narrow");
        screen.Next(wizard);
        EXPECT_EQ(screen.PageTitle(wizard), kPropsTitle) << "the object refuses the value";
    });
    EXPECT_EQ(Now(), kUntouched) << "cancelled";
}

TEST_F(ObjectPagesTest, PropertiesAreAddedAndRemovedInTheirDialogAndEveryMemberNeedsACheckedOne) {
    constexpr int kAll = IDC_EDIT_PROPERTIES_GRID;
    OnProperties([&](UserScreen& screen, HWND wizard) {
        const auto open = [&] {
            screen.Press(wizard, IDC_OBJECT_PROPS_ADD_REMOVE);
            return screen.WaitForWindow(L"Edit Properties");
        };
        HWND dialog = open();
        EXPECT_EQ(screen.RowsOf(dialog, kAll),
                  (Rows{L"text | Your name", L"x | 12", L"items | [complex value]", L"visible | True"}));
        EXPECT_TRUE(screen.IsRowChecked(dialog, kAll, L"x"));
        EXPECT_FALSE(screen.IsRowChecked(dialog, kAll, L"items"));
        screen.RealKeys({VK_F1});
        EXPECT_EQ(help_->Take(), support::topics::kObjectProps);
        screen.ToggleRow(dialog, kAll, L"items");
        screen.Press(dialog, IDCANCEL);
        EXPECT_EQ(Now(), kUntouched);

        dialog = open();
        for (const wchar_t* row : {L"items", L"x"}) screen.ToggleRow(dialog, kAll, row);
        screen.Press(dialog, IDOK);
        EXPECT_EQ(Now(), L"*text='Your name' x=12 *items=0 visible=1");
        EXPECT_EQ(screen.RowsOf(wizard, kGrid), (Rows{L"text | Your name", L"items | [complex value]"}));
        screen.Choose(wizard, kGrid, L"items");
        EXPECT_EQ(screen.Text(wizard, IDC_OBJECT_PROPS_VALUE), L"[complex value]");
        EXPECT_FALSE(screen.IsEnabled(wizard, IDC_OBJECT_PROPS_VALUE));
        EXPECT_FALSE(screen.IsEnabled(wizard, IDC_OBJECT_PROPS_REGEX));
        screen.Picture(wizard, L"object-props-complex");

        screen.Choose(wizard, kTree, L"Login");
        screen.ToggleRow(wizard, kGrid, L"text");
        EXPECT_EQ(Now(1), L"text='Log in' enabled=1");
        screen.Choose(wizard, kTree, L"Name");
        screen.Next(wizard);
        EXPECT_EQ(screen.AnswerBox(IDOK), L"At least one property must be checked");
        EXPECT_EQ(screen.PageTitle(wizard), kPropsTitle);
        // All of them are there to choose from.
        EXPECT_EQ(screen.Chosen(wizard, kTree), Rows{L"Login"});
        EXPECT_EQ(screen.RowsOf(wizard, kGrid), (Rows{L"text | Log in", L"enabled | True"}));
        Refuse(L"SetPropertyChecked");
        screen.ToggleRow(wizard, kGrid, L"enabled");
        EXPECT_FALSE(screen.IsRowChecked(wizard, kGrid, L"enabled")) << "refused";
        screen.ToggleRow(wizard, kGrid, L"enabled");
        screen.Next(wizard);
        EXPECT_EQ(screen.PageTitle(wizard), kOperationsTitle);
    });
}

}  // namespace
}  // namespace recoveryui::test

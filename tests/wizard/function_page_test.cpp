// "Recovery Operation - Function Call" as its user meets it, over real library files.
#include <windows.h>

#include "wizard/WizardTest.h"

namespace recoveryui::test {
namespace {

constexpr const wchar_t* kPage = L"Recovery Operation - Function Call";
constexpr const char* kLibrary =
    "Function Alpha(Object)\r\n  Log Object\r\nEnd Function\r\n\r\nSub Beta(a)\nEnd Sub\r\n";

class FunctionPageTest : public WizardTest {
protected:
    FunctionPageTest() {
        MakeFile(L"lib.vbs", kLibrary);
        MakeFile(L"empty.vbs", "' nothing yet\r\n");
        PutLocator();
        Edit(PopUp(L"Error").Get());
    }

    static void OpenPage(UserScreen& screen, HWND wizard) {
        AddOperation(screen, wizard, IDC_SELECT_OPERATION_FUNCTION);
        EXPECT_EQ(screen.PageTitle(wizard), kPage);
    }
    // The same for a user who cancels in the end.
    void BrowsePage(const Story& story) {
        Browse([&](UserScreen& screen, HWND wizard) {
            OpenPage(screen, wizard);
            story(screen, wizard);
        });
    }
    static void TypePath(UserScreen& screen, HWND wizard, const std::wstring& path) {
        screen.Enter(screen.Control(wizard, IDC_FUNC_LIBRARY), kEditOfCombo, path);
    }
    static void Load(UserScreen& screen, HWND wizard, const std::wstring& path) {
        TypePath(screen, wizard, path);
        screen.Keys({VK_RETURN});
    }
    static void Define(UserScreen& screen, HWND wizard, const wchar_t* name) {
        screen.Check(wizard, IDC_FUNC_DEFINE);
        screen.Enter(wizard, IDC_FUNC_NAME, name);
        screen.Next(wizard);
    }
    static Rows Functions(UserScreen& screen, HWND wizard) { return screen.RowsOf(wizard, IDC_FUNC_LIST); }
    // Name, "|", text; in brackets when they cannot be edited.
    static std::wstring Shown(UserScreen& screen, HWND wizard) {
        const HWND text = screen.Control(wizard, IDC_FUNC_TEXT);
        const std::wstring shown =
            screen.Text(wizard, IDC_FUNC_NAME) + L"|" + screen.Text(wizard, IDC_FUNC_TEXT);
        const bool editable = IsWindowEnabled(text) && !(GetWindowLongW(text, GWL_STYLE) & ES_READONLY);
        return editable ? shown : L"[" + shown + L"]";
    }
};

TEST_F(FunctionPageTest, AFunctionOfTheLibraryIsChosen) {
    BrowsePage([&](UserScreen& screen, HWND wizard) {
        EXPECT_EQ(screen.WizardButtons(wizard), L"B n* f");
        EXPECT_EQ(screen.Text(wizard, IDC_FUNC_PROTOTYPE),
                  L"Function prototype: Function RecoveryFunction1(Object)");
        for (const int id : {IDC_FUNC_SELECT, IDC_FUNC_DEFINE, IDC_FUNC_LIST, IDC_FUNC_NAME, IDC_FUNC_TEXT})
            EXPECT_FALSE(screen.IsEnabled(wizard, id)) << id;
        screen.Picture(wizard, L"function-fresh");

        Load(screen, wizard, L"lib.vbs");
        EXPECT_EQ(screen.PageTitle(wizard), kPage);
        EXPECT_EQ(Functions(screen, wizard), (Rows{L"Alpha", L"Beta"}));
        EXPECT_EQ(Shown(screen, wizard), L"[Alpha|Function Alpha(Object)\r\n  Log Object\r\nEnd Function]");
        screen.Choose(wizard, IDC_FUNC_LIST, L"Beta");
        EXPECT_EQ(Shown(screen, wizard), L"[Beta|Sub Beta(a)\r\nEnd Sub]");
        FailCall(L"FunctionCallRecoveryAction", L"SetLibraryPath");
        screen.Next(wizard);
        EXPECT_EQ(screen.PageTitle(wizard), kPage);
        ForgetCalls();
        screen.Next(wizard);
        EXPECT_TRUE(CalledInOrder({L"Action.SetFunctionName(\"Beta\")", L"Locator.Locate(\"lib.vbs\", 5, 0)",
                                   L"Action.SetLibraryPath", L"Action.SetPrototypeMode(1)"}));
        EXPECT_EQ(screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS),
                  Rows{L"Function call | " + Path(L"lib.vbs") + L"::Beta"});

        // The library is there again for the next call.
        screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER);
        OpenPage(screen, wizard);
        EXPECT_EQ(screen.Chosen(wizard, IDC_FUNC_LIST), Rows{L"Alpha"});
        EXPECT_TRUE(CanGoOn(screen, wizard));
    });
}

TEST_F(FunctionPageTest, ANewFunctionTakesItsNameForItselfAndReachesTheLibraryAtFinish) {
    const std::wstring ending = L"(Object)\r\n\r\nEnd Function\r\n";
    const HRESULT result = Run([&](UserScreen& screen, HWND wizard) {
        OpenPage(screen, wizard);
        Load(screen, wizard, Path(L"empty.vbs"));
        EXPECT_FALSE(screen.IsEnabled(wizard, IDC_FUNC_SELECT));
        EXPECT_EQ(Shown(screen, wizard), L"RecoveryFunction1|Function RecoveryFunction1" + ending);

        Load(screen, wizard, Path(L"lib.vbs"));
        screen.Check(wizard, IDC_FUNC_DEFINE);
        EXPECT_FALSE(screen.IsEnabled(wizard, IDC_FUNC_LIST));
        screen.Enter(wizard, IDC_FUNC_NAME, L"");
        EXPECT_FALSE(CanGoOn(screen, wizard));
        screen.Keys({VK_RETURN});
        EXPECT_EQ(screen.PageTitle(wizard), kPage) << "Enter leaves no unfinished page, in neither direction";
        screen.Check(wizard, IDC_FUNC_SELECT);
        EXPECT_TRUE(CanGoOn(screen, wizard));
        EXPECT_EQ(Shown(screen, wizard).substr(0, 7), L"[Alpha|");
        screen.Check(wizard, IDC_FUNC_DEFINE);
        EXPECT_EQ(Shown(screen, wizard), L"|Function " + ending);
        for (const wchar_t* refused : {L"Fix Dialog", L"alpha", L"  "}) {
            Define(screen, wizard, refused);
            EXPECT_EQ(screen.AnswerBox(IDOK), L"Function name is invalid or already exists.");
            EXPECT_EQ(screen.FocusId(), IDC_FUNC_NAME);
        }
        screen.Enter(wizard, IDC_FUNC_NAME, L" Fix ");
        EXPECT_EQ(Shown(screen, wizard), L" Fix |Function  Fix " + ending);
        screen.Next(wizard);
        EXPECT_EQ(screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS),
                  Rows{L"Function call | " + Path(L"lib.vbs") + L"::Fix"});

        // The same library in another form of its path.
        screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER);
        OpenPage(screen, wizard);
        Load(screen, wizard, L"LIB.VBS");
        EXPECT_EQ(Functions(screen, wizard), (Rows{L"Alpha", L"Beta", L"Fix"}));
        screen.Choose(wizard, IDC_FUNC_LIST, L"Fix");
        EXPECT_EQ(Shown(screen, wizard), L"[Fix|Function Fix" + ending + L"]");
        screen.Check(wizard, IDC_FUNC_DEFINE);
        EXPECT_EQ(screen.Text(wizard, IDC_FUNC_NAME), L"RecoveryFunction1");
        Define(screen, wizard, L"FIX");
        EXPECT_EQ(screen.AnswerBox(IDOK), L"Function name is invalid or already exists.");
        for (const wchar_t* name : {L"Deleted", L"Second"}) {
            Define(screen, wizard, name);
            screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER);
            if (name == std::wstring_view(L"Deleted")) OpenPage(screen, wizard);
        }
        screen.Choose(wizard, IDC_OPERATION_LIST_ROWS, screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS)[1]);
        screen.Press(wizard, IDC_OPERATION_LIST_DELETE);
        EXPECT_EQ(screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS).size(), 2u);
        screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER, false);
        GoToSummary(screen, wizard, L"scenario");
        screen.Finish(wizard);
    });
    EXPECT_EQ(result, S_OK);
    const std::string written = "(Object)\r\n\r\nEnd Function";
    EXPECT_EQ(Content(L"lib.vbs"),
              kLibrary + ("\r\nFunction Fix" + written) + "\r\nFunction Second" + written)
        << "a function goes with its operation";
}

TEST_F(FunctionPageTest, ALibraryIsLoadedOnLeavingItsBoxAndRefusedWithAReason) {
    MakeFile(L"broken.vbs", "Function Alpha(\r\nEnd Sub\r\n");
    BrowsePage([&](UserScreen& screen, HWND wizard) {
        TypePath(screen, wizard, Path(L"lib.vbs"));
        screen.Keys({VK_TAB});
        EXPECT_EQ(Functions(screen, wizard).size(), 2u);
        TypePath(screen, wizard, Path(L"none.vbs"));
        screen.Next(wizard);
        EXPECT_EQ(screen.AnswerBox(IDOK), Path(L"none.vbs") + L"\nFilename or path not found.");
        EXPECT_EQ(screen.PageTitle(wizard), kPage);
        EXPECT_FALSE(screen.IsEnabled(wizard, IDC_FUNC_LIST));
        Load(screen, wizard, Path(L"broken.vbs"));
        EXPECT_EQ(screen.AnswerBox(IDOK), L"The file you specified is not a valid library file.");
        EXPECT_FALSE(CanGoOn(screen, wizard));

        Load(screen, wizard, Path(L"lib.vbs"));
        Load(screen, wizard, L"");
        EXPECT_EQ(Functions(screen, wizard), Rows{});
        screen.Next(wizard);
        EXPECT_EQ(screen.PageTitle(wizard), kPage);

        // Keys stay in the text and leave it to the wizard.
        Load(screen, wizard, Path(L"empty.vbs"));
        screen.Enter(wizard, IDC_FUNC_TEXT, L"x");
        screen.Keys({VK_RETURN});
        screen.Type(L"y");
        screen.Enter(wizard, IDC_FUNC_NAME, L"Other");
        EXPECT_EQ(Shown(screen, wizard), L"Other|x\r\ny");
        screen.Enter(wizard, IDC_FUNC_TEXT, L"");
        EXPECT_FALSE(CanGoOn(screen, wizard));
        screen.Keys({VK_TAB});
        EXPECT_EQ(screen.FocusId(), kBack);
        TypePath(screen, wizard, L"half typed");
        screen.Keys({VK_ESCAPE});
    });
}

TEST_F(FunctionPageTest, AFileIsFoundWithTheHostsDialogAndUsedOnesAreOfferedAgain) {
    BrowsePage([&](UserScreen& screen, HWND wizard) {
        screen.Press(wizard, IDC_FUNC_BROWSE);
        screen.GiveFile(L"Open Function Library", Path(L"lib.vbs"));
        screen.WaitUntil("the library is shown", [&] { return Functions(screen, wizard).size() == 2; });
        EXPECT_EQ(screen.Text(wizard, IDC_FUNC_LIBRARY), L"lib.vbs");
        for (const wchar_t* path : {L"empty.vbs", L"none.vbs"}) Load(screen, wizard, path);
        screen.AnswerBox(IDOK);
    });
    BrowsePage([&](UserScreen& screen, HWND wizard) {
        EXPECT_EQ(screen.RowsOf(wizard, IDC_FUNC_LIBRARY), (Rows{L"empty.vbs", L"lib.vbs"}));
        screen.Choose(wizard, IDC_FUNC_LIBRARY, L"lib.vbs");
        EXPECT_EQ(Functions(screen, wizard), (Rows{L"Alpha", L"Beta"}));
    });
}

}  // namespace
}  // namespace recoveryui::test

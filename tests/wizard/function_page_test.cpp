// "Recovery Operation - Function Call" as its user meets it, over real library files.
#include <windows.h>

#include <prsht.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "harness/ProcessorTime.h"
#include "wizard/WizardTest.h"

namespace recoveryui::test {
namespace {

namespace fs = std::filesystem;

constexpr const wchar_t* kPage = L"Recovery Operation - Function Call";
constexpr int kComboEdit = 1001;  // the edit box inside every combo box
constexpr const char* kLibrary =
    "Function Alpha(Object)\r\n  Log Object\r\nEnd Function\r\n\r\nSub Beta(a)\nEnd Sub\r\n";

class FunctionPageTest : public WizardTest {
protected:
    FunctionPageTest() : folder_(fs::temp_directory_path() / L"function page test") {
        fs::create_directories(folder_);
        Write(L"lib.vbs", kLibrary);
        Write(L"empty.vbs", "' nothing yet\r\n");
        const auto locator = New<IFileLocatorFolders>(L"Tovarin.FileLocator");
        EXPECT_EQ(locator->SetTestFolder(com::Bstr(folder_.wstring()).Get()), S_OK);
        const auto options = New<ITestFile>(L"Tovarin.TestOptions");
        EXPECT_EQ(options->SetSettingsRegistryPath(com::Bstr(L"Software\\RecoveryUITests").Get()), S_OK);
        rack_.Put(L"RACK_FILE_LOCATOR", locator.Get()).Put(L"TestOptions", options.Get());
        const auto trigger = New<IPopUpRecoveryTrigger>(L"Vantrel.PopUpRecoveryTrigger");
        EXPECT_EQ(trigger->SetWindowTitle(com::Bstr(L"Error").Get(), 0), S_OK);
        Edit(trigger.Get());
    }
    ~FunctionPageTest() override {
        fs::remove_all(folder_);
        RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\RecoveryUITests");
    }
    std::wstring Path(const wchar_t* name) const { return (folder_ / name).wstring(); }
    void Write(const wchar_t* name, const std::string& text) const {
        std::ofstream(folder_ / name, std::ios::binary) << text;
    }

    std::string Read(const wchar_t* name) const {
        std::ostringstream text;
        text << std::ifstream(folder_ / name, std::ios::binary).rdbuf();
        return text.str();
    }

    static void OpenPage(UserScreen& screen, HWND wizard) {
        AddOperation(screen, wizard, IDC_SELECT_OPERATION_FUNCTION);
        EXPECT_EQ(screen.PageTitle(wizard), kPage);
    }
    static void TypePath(UserScreen& screen, HWND wizard, const std::wstring& path) {
        screen.Enter(screen.Control(wizard, IDC_FUNC_LIBRARY), kComboEdit, path);
    }
    static void Load(UserScreen& screen, HWND wizard, const std::wstring& path) {
        TypePath(screen, wizard, path);
        screen.Keys({VK_RETURN});
    }
    static bool CanGoOn(UserScreen& screen, HWND wizard) { return screen.IsEnabled(wizard, 0x3024); }
    static Rows Functions(UserScreen& screen, HWND wizard) { return screen.RowsOf(wizard, IDC_FUNC_LIST); }
    // Name, "|", text; in brackets when they cannot be edited.
    static std::wstring Shown(UserScreen& screen, HWND wizard) {
        const HWND text = screen.Control(wizard, IDC_FUNC_TEXT);
        const std::wstring shown =
            screen.Text(wizard, IDC_FUNC_NAME) + L"|" + screen.Text(wizard, IDC_FUNC_TEXT);
        const bool editable = IsWindowEnabled(text) && !(GetWindowLongW(text, GWL_STYLE) & ES_READONLY);
        return editable ? shown : L"[" + shown + L"]";
    }

    fs::path folder_;
};

TEST_F(FunctionPageTest, AFunctionOfTheLibraryIsChosen) {
    EXPECT_EQ(Run([&](UserScreen& screen, HWND wizard) {
                  OpenPage(screen, wizard);
                  EXPECT_EQ(screen.WizardButtons(wizard), L"B* n f");
                  EXPECT_EQ(screen.Text(wizard, IDC_FUNC_PROTOTYPE),
                            L"Function prototype: Function RecoveryFunction1(Object)");
                  for (const int id :
                       {IDC_FUNC_SELECT, IDC_FUNC_DEFINE, IDC_FUNC_LIST, IDC_FUNC_NAME, IDC_FUNC_TEXT})
                      EXPECT_FALSE(screen.IsEnabled(wizard, id)) << id;
                  screen.Picture(wizard, L"function-fresh");

                  Load(screen, wizard, L"lib.vbs");
                  EXPECT_EQ(screen.PageTitle(wizard), kPage);
                  EXPECT_EQ(Functions(screen, wizard), (Rows{L"Alpha", L"Beta"}));
                  EXPECT_TRUE(screen.IsChecked(wizard, IDC_FUNC_SELECT));
                  EXPECT_EQ(Shown(screen, wizard),
                            L"[Alpha|Function Alpha(Object)\r\n  Log Object\r\nEnd Function]");
                  screen.Choose(wizard, IDC_FUNC_LIST, L"Beta");
                  EXPECT_EQ(Shown(screen, wizard), L"[Beta|Sub Beta(a)\r\nEnd Sub]");
                  screen.Picture(wizard, L"function-selected");
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
                  screen.Cancel(wizard);
              }),
              S_FALSE);
}

TEST_F(FunctionPageTest, ANewFunctionTakesItsNameForItselfAndReachesTheLibraryAtFinish) {
    const std::wstring ending = L"(Object)\r\n\r\nEnd Function\r\n";
    EXPECT_EQ(Run([&](UserScreen& screen, HWND wizard) {
                  OpenPage(screen, wizard);
                  Load(screen, wizard, Path(L"empty.vbs"));
                  EXPECT_TRUE(screen.IsChecked(wizard, IDC_FUNC_DEFINE));
                  EXPECT_FALSE(screen.IsEnabled(wizard, IDC_FUNC_SELECT));
                  EXPECT_EQ(Shown(screen, wizard), L"RecoveryFunction1|Function RecoveryFunction1" + ending);

                  Load(screen, wizard, Path(L"lib.vbs"));
                  screen.Check(wizard, IDC_FUNC_DEFINE);
                  EXPECT_FALSE(screen.IsEnabled(wizard, IDC_FUNC_LIST));
                  screen.Enter(wizard, IDC_FUNC_NAME, L"");
                  EXPECT_FALSE(CanGoOn(screen, wizard));
                  screen.Check(wizard, IDC_FUNC_SELECT);
                  EXPECT_TRUE(CanGoOn(screen, wizard));
                  EXPECT_EQ(Shown(screen, wizard).substr(0, 7), L"[Alpha|");
                  screen.Check(wizard, IDC_FUNC_DEFINE);
                  EXPECT_EQ(Shown(screen, wizard), L"|Function " + ending);
                  for (const wchar_t* refused : {L"Fix Dialog", L"alpha", L"  "}) {
                      screen.Enter(wizard, IDC_FUNC_NAME, refused);
                      screen.Next(wizard);
                      EXPECT_EQ(screen.AnswerBox(IDOK), L"Function name is invalid or already exists.");
                      EXPECT_EQ(screen.FocusId(), IDC_FUNC_NAME);
                  }
                  screen.Enter(wizard, IDC_FUNC_NAME, L" Fix ");
                  EXPECT_EQ(Shown(screen, wizard), L" Fix |Function  Fix " + ending);
                  screen.Picture(wizard, L"function-new");
                  screen.Next(wizard);
                  EXPECT_EQ(screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS),
                            Rows{L"Function call | " + Path(L"lib.vbs") + L"::Fix"});

                  screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER);
                  OpenPage(screen, wizard);
                  EXPECT_EQ(Functions(screen, wizard), (Rows{L"Alpha", L"Beta", L"Fix"}));
                  screen.Choose(wizard, IDC_FUNC_LIST, L"Fix");
                  EXPECT_EQ(Shown(screen, wizard), L"[Fix|Function Fix" + ending + L"]");
                  screen.Check(wizard, IDC_FUNC_DEFINE);
                  EXPECT_EQ(screen.Text(wizard, IDC_FUNC_NAME), L"RecoveryFunction1");
                  screen.Enter(wizard, IDC_FUNC_NAME, L"FIX");
                  screen.Next(wizard);
                  EXPECT_EQ(screen.AnswerBox(IDOK), L"Function name is invalid or already exists.");
                  screen.Back(wizard);
                  screen.Back(wizard);
                  screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER, false);
                  NextUntil(screen, wizard, L"Name and Description");
                  screen.Enter(wizard, IDC_SCEN_NAME, L"scenario");
                  screen.Next(wizard);
                  screen.Finish(wizard);
              }),
              S_OK);
    EXPECT_EQ(Read(L"lib.vbs"), std::string(kLibrary) + "\r\nFunction Fix(Object)\r\n\r\nEnd Function");
}

TEST_F(FunctionPageTest, ALibraryIsLoadedOnLeavingItsBoxAndRefusedWithAReason) {
    Write(L"broken.vbs", "Function Alpha(\r\nEnd Sub\r\n");
    EXPECT_EQ(Run([&](UserScreen& screen, HWND wizard) {
                  OpenPage(screen, wizard);
                  TypePath(screen, wizard, Path(L"lib.vbs"));
                  screen.Keys({VK_TAB});
                  EXPECT_EQ(Functions(screen, wizard).size(), 2u);
                  TypePath(screen, wizard, Path(L"none.vbs"));
                  screen.Next(wizard);
                  EXPECT_EQ(screen.AnswerBox(IDOK), Path(L"none.vbs") + L"\nFilename or path not found.");
                  EXPECT_EQ(screen.PageTitle(wizard), kPage);
                  EXPECT_FALSE(CanGoOn(screen, wizard));
                  EXPECT_FALSE(screen.IsEnabled(wizard, IDC_FUNC_LIST));
                  Load(screen, wizard, Path(L"broken.vbs"));
                  EXPECT_EQ(screen.AnswerBox(IDOK), L"The file you specified is not a valid library file.");
                  EXPECT_FALSE(CanGoOn(screen, wizard));

                  Load(screen, wizard, Path(L"lib.vbs"));
                  Load(screen, wizard, L"");
                  EXPECT_EQ(Functions(screen, wizard), Rows{});
                  screen.Next(wizard);
                  EXPECT_EQ(screen.PageTitle(wizard), kPage);
                  TypePath(screen, wizard, L"half typed");
                  screen.Cancel(wizard);
              }),
              S_FALSE);
}

TEST_F(FunctionPageTest, KeysStayInTheTextAndLeaveItToTheWizard) {
    EXPECT_EQ(Run([&](UserScreen& screen, HWND wizard) {
                  OpenPage(screen, wizard);
                  Load(screen, wizard, Path(L"empty.vbs"));
                  screen.Enter(wizard, IDC_FUNC_TEXT, L"x");
                  screen.Keys({VK_RETURN});
                  screen.Type(L"y");
                  EXPECT_EQ(Shown(screen, wizard), L"RecoveryFunction1|x\r\ny");
                  screen.Enter(wizard, IDC_FUNC_NAME, L"Other");
                  EXPECT_EQ(Shown(screen, wizard), L"Other|x\r\ny");
                  screen.Enter(wizard, IDC_FUNC_TEXT, L"");
                  EXPECT_FALSE(CanGoOn(screen, wizard));
                  screen.Keys({VK_TAB});
                  EXPECT_EQ(screen.FocusId(), 0x3023);
                  screen.Enter(wizard, IDC_FUNC_TEXT, L"z");
                  screen.Keys({VK_ESCAPE});
              }),
              S_FALSE);
}

TEST_F(FunctionPageTest, ThePrototypeFollowsTheTrigger) {
    const struct {
        const wchar_t* trigger;
        const wchar_t* arguments;
        const wchar_t* mode;
    } cases[] = {
        {L"Vantrel.ErrorRecoveryTrigger", L"(Object, Method, Arguments, retVal)", L"0"},
        {L"Vantrel.CrashRecoveryTrigger", L"(ProcessName, ProcessID)", L"2"},
        {L"Vantrel.ObjectStateRecoveryTrigger", L"(Object)", L"1"},
    };
    for (const auto& each : cases) {
        Edit(New<IRecoveryTrigger>(each.trigger).Get());
        ForgetCalls();
        EXPECT_EQ(Run([&](UserScreen& screen, HWND wizard) {
                      screen.Do([&] { SendMessageW(wizard, PSM_SETCURSELID, 0, IDD_OPERATION_LIST); });
                      OpenPage(screen, wizard);
                      const std::wstring head = L"Function RecoveryFunction1" + std::wstring(each.arguments);
                      EXPECT_EQ(screen.Text(wizard, IDC_FUNC_PROTOTYPE), L"Function prototype: " + head);
                      Load(screen, wizard, Path(L"empty.vbs"));
                      EXPECT_EQ(screen.Text(wizard, IDC_FUNC_TEXT), head + L"\r\n\r\nEnd Function\r\n");
                      screen.Picture(wizard, L"function-mode-" + std::wstring(each.mode));
                      screen.Next(wizard);
                      screen.Cancel(wizard);
                  }),
                  S_FALSE);
        EXPECT_TRUE(Called(L"SetPrototypeMode(" + std::wstring(each.mode) + L")"));
    }
}

TEST_F(FunctionPageTest, LibrariesThatWereUsedAreOfferedAgain) {
    HKEY key = nullptr;
    RegCreateKeyExW(HKEY_CURRENT_USER, L"Software\\RecoveryUITests\\ReplayRecovery", 0, nullptr, 0,
                    KEY_ALL_ACCESS, nullptr, &key, nullptr);
    RegCloseKey(key);
    EXPECT_EQ(Run([&](UserScreen& screen, HWND wizard) {
                  OpenPage(screen, wizard);
                  for (const wchar_t* path : {L"lib.vbs", L"empty.vbs"}) Load(screen, wizard, path);
                  Load(screen, wizard, L"none.vbs");
                  screen.AnswerBox(IDOK);
                  screen.Cancel(wizard);
              }),
              S_FALSE);
    EXPECT_EQ(Run([&](UserScreen& screen, HWND wizard) {
                  OpenPage(screen, wizard);
                  EXPECT_EQ(screen.RowsOf(wizard, IDC_FUNC_LIBRARY), (Rows{L"empty.vbs", L"lib.vbs"}));
                  screen.Choose(wizard, IDC_FUNC_LIBRARY, L"lib.vbs");
                  EXPECT_EQ(Functions(screen, wizard), (Rows{L"Alpha", L"Beta"}));
                  screen.Cancel(wizard);
              }),
              S_FALSE);
}

TEST_F(FunctionPageTest, AFileIsFoundWithTheHostsDialog) {
    EXPECT_EQ(Run([&](UserScreen& screen, HWND wizard) {
                  OpenPage(screen, wizard);
                  screen.Press(wizard, IDC_FUNC_BROWSE);
                  const HWND dialog = screen.WaitForWindow(L"Open Function Library");
                  screen.Picture(dialog, L"function-browse");
                  constexpr int kFileName =
                      0x47C;  // the number of the list, of the box in it and of the edit in that
                  const HWND box = screen.Control(screen.Control(dialog, kFileName), kFileName);
                  screen.Enter(box, kFileName, Path(L"lib.vbs"));
                  // The dialog's list has the number of its button.
                  screen.Do([=] { PostMessageW(GetDlgItem(dialog, IDOK), BM_CLICK, 0, 0); });
                  screen.WaitUntilClosed(dialog);
                  EXPECT_EQ(screen.Text(wizard, IDC_FUNC_LIBRARY), L"lib.vbs");
                  EXPECT_EQ(Functions(screen, wizard).size(), 2u);
                  screen.Cancel(wizard);
              }),
              S_FALSE);
}

TEST_F(FunctionPageTest, AFunctionGoesWithItsOperationAndTheOthersAreWrittenInOrder) {
    const std::pair<std::wstring, const wchar_t*> functions[] = {
        {L"lib.vbs", L"Deleted"}, {L"LIB.VBS", L"First"}, {Path(L"lib.vbs"), L"Second"}};
    EXPECT_EQ(Run([&](UserScreen& screen, HWND wizard) {
                  for (const auto& [library, name] : functions) {
                      OpenPage(screen, wizard);
                      Load(screen, wizard, library);
                      screen.Check(wizard, IDC_FUNC_DEFINE);
                      screen.Enter(wizard, IDC_FUNC_NAME, name);
                      screen.Next(wizard);
                      screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER);
                  }
                  screen.Choose(wizard, IDC_OPERATION_LIST_ROWS, L"Function call");
                  screen.Press(wizard, IDC_OPERATION_LIST_DELETE);
                  EXPECT_EQ(screen.RowsOf(wizard, IDC_OPERATION_LIST_ROWS).size(), 2u);
                  screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER, false);
                  NextUntil(screen, wizard, L"Name and Description");
                  screen.Enter(wizard, IDC_SCEN_NAME, L"scenario");
                  screen.Next(wizard);
                  screen.Finish(wizard);
              }),
              S_OK);
    const std::string ending = "(Object)\r\n\r\nEnd Function";
    EXPECT_EQ(Read(L"lib.vbs"), kLibrary + ("\r\nFunction First" + ending) + "\r\nFunction Second" + ending);
}

TEST_F(FunctionPageTest, ALargeLibraryIsShownWithinABlink) {
    std::string text;
    for (int i = 0; i < 2000; ++i) text += "Function F" + std::to_string(i) + "(Object)\r\nEnd Function\r\n";
    Write(L"large.vbs", text);
    EXPECT_EQ(Run([&](UserScreen& screen, HWND wizard) {
                  OpenPage(screen, wizard);
                  TypePath(screen, wizard, Path(L"large.vbs"));
                  const ULONGLONG before = ProcessorMilliseconds();
                  screen.Keys({VK_RETURN});
                  EXPECT_LT(ProcessorMilliseconds() - before, 1000u);
                  EXPECT_EQ(screen.Ask(screen.Control(wizard, IDC_FUNC_LIST), CB_GETCOUNT), 2000);
                  screen.Cancel(wizard);
              }),
              S_FALSE);
}

}  // namespace
}  // namespace recoveryui::test

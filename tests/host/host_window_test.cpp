// The reference host as its user meets it.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "app/Host.h"
#include "app/OpenTest.h"
#include "app/ids.h"
#include "com/Variant.h"
#include "harness/ComTest.h"
#include "harness/ProcessWindows.h"
#include "host/temp_folder.h"

namespace recoveryui::test {
namespace {

constexpr int kJournal = 100, kStatus = 101;
constexpr const wchar_t* kSettingsPath = L"Software\\Tovarin\\HostTest";

class HostTest : public ComTest {
protected:
    ~HostTest() override { RegDeleteTreeW(HKEY_CURRENT_USER, kSettingsPath); }

    // Runs the host for a user, who closes it in the end.
    void Run(const Story& story, const tovarin::HostOptions& options = {}) {
        User user([&](UserScreen& screen) {
            const HWND window = screen.WaitForWindow(nullptr, tovarin::kMainWindowClass);
            story(screen, window);
            screen.Close(window);
        });
        EXPECT_EQ(tovarin::RunHost(options), 0);
    }

    tovarin::TempFolder folder;
};

void Command(UserScreen& screen, HWND window, int id) {
    screen.Do([=] { PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(id), 0); });
}

std::wstring StatusText(UserScreen& screen, HWND window, int part) {
    wchar_t text[300] = L"";
    screen.Ask(screen.Control(window, kStatus), SB_GETTEXTW, static_cast<WPARAM>(part),
               reinterpret_cast<LPARAM>(text));
    return text;
}

TEST_F(HostTest, WithoutTheAddInTheUserIsToldAndTheMenuSaysSo) {
    FailCall(L"AddInManager", L"RegisterCommand", E_ACCESSDENIED);
    User user([](UserScreen& screen) {
        EXPECT_EQ(screen.AnswerBox(IDOK),
                  L"The add-in Vantrel.RecoveryUIAddin could not be connected (E_ACCESSDENIED).");
        const HWND window = screen.WaitForWindow(nullptr, tovarin::kMainWindowClass);
        screen.RealKeys({VK_MENU, 'R'});
        EXPECT_EQ(screen.MenuItems(), Rows{L"[(No add-in is connected)]"});
        screen.ChooseMenu(L"");
        screen.Close(window);
    });
    EXPECT_EQ(tovarin::RunHost({}), 0);
}

TEST_F(HostTest, AHostThatCannotStartSaysWhyAndLeavesNothingBehind) {
    const struct {
        const wchar_t *object, *operation, *text;
    } kFaults[] = {
        {L"Tovarin.ObjectRack", L"Create",
         L"Tovarin cannot start: the objects in TovarinObjects.dll cannot be created (E_FAIL)."},
        {L"ObjectRack", L"SetObject", L"The command could not be completed (E_FAIL)."},
    };
    for (const auto& [object, operation, text] : kFaults) {
        FailCall(object, operation);
        User user([text = text](UserScreen& screen) { EXPECT_EQ(screen.AnswerBox(IDOK), text); });
        EXPECT_EQ(tovarin::RunHost({}), 1);
    }
}

TEST_F(HostTest, TheTestOfTheCommandLineIsOpened) {
    const std::wstring path = folder / L"Basket.tvt";
    for (const bool there : {false, true}) {
        User user([&](UserScreen& screen) {
            if (!there) {
                EXPECT_EQ(screen.AnswerBox(IDOK),
                          L"The test " + path + L" could not be opened (STG_E_FILENOTFOUND).");
            }
            screen.Close(screen.WaitForWindow(there ? L"Basket.tvt - Tovarin" : L"Untitled - Tovarin",
                                              tovarin::kMainWindowClass));
        });
        tovarin::HostOptions options;
        options.testFile = path;
        EXPECT_EQ(tovarin::RunHost(options), 0);
        EXPECT_EQ(New<ITestFile>(L"Tovarin.TestOptions")->SaveTest(com::Bstr(path).Get()), S_OK);
    }
}

TEST_F(HostTest, TheJournalIsShownCopiedAndWrittenToAFile) {
    const auto story = [](UserScreen& screen, HWND window) {
        const HWND list = screen.Control(window, kJournal);
        const auto count = static_cast<size_t>(screen.Ask(list, LVM_GETITEMCOUNT));
        EXPECT_GT(count, 5u);
        EXPECT_EQ(StatusText(screen, window, 1), std::to_wstring(count) + L" calls");
        screen.Ask(window, WM_MENUSELECT, MAKEWPARAM(IDM_ADDIN_FIRST, MF_HILITE),
                   reinterpret_cast<LPARAM>(GetSubMenu(GetMenu(window), 1)));
        EXPECT_EQ(StatusText(screen, window, 0), L"Displays the Recovery Scenario Manager dialog box");
        Command(screen, window, IDM_JOURNAL_SELECT_ALL);
        Command(screen, window, IDM_JOURNAL_COPY);
        const std::wstring text = ClipboardText();
        EXPECT_NE(text.find(L"\tAddInManager\tGetRack\t\tS_OK: ObjectRack\r\n"), std::wstring::npos)
            << Utf8(text);
        EXPECT_EQ(static_cast<size_t>(std::count(text.begin(), text.end(), L'\n')), count);
        screen.Picture(window, L"host-journal");
        Command(screen, window, IDM_JOURNAL_CLEAR);
        EXPECT_EQ(screen.Ask(list, LVM_GETITEMCOUNT), 0);
    };
    tovarin::HostOptions options;
    options.journalFile = folder / L"journal.txt";
    Run(story, options);
    const std::string written = tovarin::TempFolder::Read(options.journalFile);
    EXPECT_NE(written.find("AddInManager.UnregisterCommand(1) -> S_OK\n"), std::string::npos);
}

TEST_F(HostTest, AChangedTestIsLeftOnlyWithTheUsersConsent) {
    tovarin::HostServices services;
    services.FillRacks();
    services.Find<ITestFile>(L"TestOptions")->SetSettingsRegistryPath(com::Bstr(kSettingsPath).Get());
    tovarin::OpenTest test(services);
    const auto options = services.Find<ITestOptions>(L"TestOptions");
    const auto change = [&](long value, const wchar_t* section = L"") {
        options->SetOptionValue(com::Bstr(section).Get(), com::Bstr(L"Enabled").Get(),
                                com::Variant(value).Get(), 0, 1, 0, 3, 0);
    };
    // What a test asks before it is left, and the user's answer.
    const auto leave = [&](WORD answer, const std::wstring& question, const std::function<bool()>& leaving) {
        User user([&](UserScreen& screen) { EXPECT_EQ(screen.AnswerBox(answer), question); });
        return leaving();
    };
    const std::wstring path = folder / L"Basket.tvt";
    test.New(nullptr);
    change(1, L"GlobalVariables");
    EXPECT_TRUE(test.MayLeave(nullptr)) << "values that the pages share are never stored";
    change(1);
    EXPECT_FALSE(leave(IDCANCEL, L"Save the changes to Untitled?", [&] { return test.MayLeave(nullptr); }));
    {
        User user([&](UserScreen& screen) {
            screen.AnswerBox(IDYES);
            screen.GiveFile(TextOf(screen.WaitForWindow(nullptr)).c_str(), path);
        });
        EXPECT_TRUE(test.MayLeave(nullptr));
    }
    EXPECT_EQ(test.Name(), L"Basket.tvt");
    EXPECT_FALSE(test.IsChanged());
    const std::string saved = tovarin::TempFolder::Read(path);
    EXPECT_NE(saved.find("Enabled"), std::string::npos);

    change(0);
    leave(IDNO, L"Save the changes to Basket.tvt?", [&] { return test.New(nullptr), true; });
    EXPECT_EQ(test.Name(), L"Untitled");
    EXPECT_EQ(tovarin::TempFolder::Read(path), saved);

    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
    test.OpenFile(nullptr, path);
    EXPECT_TRUE(test.IsReadOnly());
    com::Variant enabled;
    options->GetOptionValue(nullptr, com::Bstr(L"Enabled").Get(), enabled.Put(), 0, 0);
    EXPECT_EQ(enabled.Get().lVal, 1);
    change(1);
    EXPECT_FALSE(test.IsChanged()) << "the same value is no change";
    const std::wstring foreign = folder / L"Foreign.tvt";
    tovarin::TempFolder::Write(foreign, "{");
    leave(IDOK, L"The test " + foreign + L" could not be opened (STG_E_DOCFILECORRUPT).",
          [&] { return test.OpenFile(nullptr, foreign), true; });
    EXPECT_EQ(test.Name(), L"Basket.tvt");
}

TEST_F(HostTest, HelpTopicsAreFilesOfTheHelpFolderOnly) {
    tovarin::HostServices services;
    services.FillRacks();
    const auto viewer = services.Find<IHelpViewer>(L"HelpViewer");
    for (const wchar_t* const topic : {L"", L"..\\TovarinHost.exe", L"C:x.htm", L"a/b.htm"})
        EXPECT_EQ(viewer->ShowTopic(0, com::Bstr(topic).Get()), E_INVALIDARG) << Utf8(topic);
    User user([](UserScreen& screen) {
        EXPECT_NE(screen.AnswerBox(IDOK).find(L"cannot be shown:\nNobody.htm\n"), std::wstring::npos);
    });
    EXPECT_EQ(viewer->ShowTopic(0, com::Bstr(L"Nobody.htm").Get()), S_OK);
}

}  // namespace
}  // namespace recoveryui::test

// The Recovery tab as its user meets it.
#include <windows.h>

#include <commctrl.h>

#include "settings/SettingsTest.h"
#include "support/HelpTopics.h"

namespace recoveryui::test {
namespace {

using com::Variant;
using namespace tovarin::store;

class RecoveryTabTest : public SettingsTest {
protected:
    static constexpr int kList = IDC_RECOVERY_LIST;
    // The buttons above the list, then "Set as Default": a letter each, "." for a disabled one.
    static std::string Buttons(UserScreen& screen, HWND frame) {
        std::string states;
        const char letters[] = "ARUDPS";
        for (const int id : {IDC_RECOVERY_ADD, IDC_RECOVERY_REMOVE, IDC_RECOVERY_UP, IDC_RECOVERY_DOWN,
                             IDC_RECOVERY_PROPERTIES, IDC_RECOVERY_SET_DEFAULT})
            states += screen.IsEnabled(frame, id) ? letters[states.size()] : '.';
        return states;
    }
    // The icon of each row.
    static std::string Icons(UserScreen& screen, HWND frame) {
        std::string icons;
        LVITEMW item{};
        item.mask = LVIF_IMAGE;
        for (const HWND list = screen.Control(frame, kList);
             screen.Ask(list, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)); ++item.iItem)
            icons += std::to_string(item.iImage);
        return icons;
    }
};

TEST_F(RecoveryTabTest, ScenariosOfTwoFilesAreAddedOrderedSwitchedOffAndFoundAgain) {
    const std::wstring common =
        MakeFile(L"common.trs", {{L"Popup", {1, PopUpTrigger{}, {}, L"Closes it.\nThen goes on."}},
                                 {L"Crash", {1, CrashTrigger{}, {}, L""}},
                                 {L"Error", {1, ErrorTrigger{}, {}, L""}}});
    const std::wstring other = MakePopUps(L"other.trs", {L"Popup"});
    const std::wstring crash = L"Crash | " + common, popup = L"Popup | " + common,
                       error = L"Error | " + common, otherPopup = L"Popup | " + other;
    OpenSettings([&](UserScreen& screen, HWND frame) {
        EXPECT_EQ(Buttons(screen, frame), "A.....");
        EXPECT_EQ(screen.Chosen(frame, IDC_RECOVERY_ACTIVATION), Rows{});
        Add(screen, frame, common, {L"Crash", L"Popup"});
        EXPECT_EQ(screen.RowsOf(frame, kList), (Rows{crash, popup}));
        EXPECT_EQ(screen.Chosen(frame, kList), Rows{popup});
        EXPECT_EQ(screen.Text(frame, IDC_RECOVERY_DESCRIPTION), L"Closes it.\r\nThen goes on.");
        EXPECT_EQ(Buttons(screen, frame), "ARUDPS");

        Add(screen, frame, common, {L"Error", L"Popup"});
        EXPECT_EQ(screen.BoxLook(), L"warning: [OK]");
        EXPECT_EQ(screen.AnswerBox(IDOK), L"The 'Popup' scenario is already associated with your test.");
        Add(screen, frame, other, {L"Popup"});
        EXPECT_EQ(screen.BoxLook(), L"information: [OK]");
        EXPECT_EQ(screen.AnswerBox(IDOK),
                  L"You have selected a different file path for the Popup scenario.  Confirm that the Popup "
                  L"scenario is defined in this file before you run your test.");
        EXPECT_EQ(Icons(screen, frame), "3121");
        EXPECT_EQ(screen.FocusId(), kList);

        screen.RealKeys({VK_MENU, VK_UP});
        // On the first row only the focus moves.
        for (int i = 0; i < 3; ++i) screen.Press(frame, IDC_RECOVERY_UP);
        EXPECT_EQ(screen.Chosen(frame, kList), Rows{otherPopup});
        screen.RealKeys({VK_MENU, VK_DOWN});
        EXPECT_EQ(screen.RowsOf(frame, kList), (Rows{crash, otherPopup, popup, error}));
        // A second quick click is a click.
        const HWND down = screen.Control(frame, IDC_RECOVERY_DOWN);
        for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP})
            screen.Do([=] { PostMessageW(down, message, 0, 0); });
        EXPECT_EQ(screen.RowsOf(frame, kList), (Rows{crash, popup, error, otherPopup}));
        for (int i = 0; i < 2; ++i) screen.RealKeys({VK_MENU, VK_UP});
        screen.Keys({VK_SPACE});
        for (int twice = 0; twice < 2; ++twice) screen.ToggleRow(frame, kList, crash);
        EXPECT_TRUE(screen.IsRowChecked(frame, kList, crash));
        EXPECT_FALSE(screen.IsRowChecked(frame, kList, otherPopup));

        screen.Choose(frame, IDC_RECOVERY_ACTIVATION, L"Never");
        screen.RealKeys({VK_MENU, 'D'});
        EXPECT_EQ(Buttons(screen, frame).back(), '.');
        screen.Choose(frame, IDC_RECOVERY_ACTIVATION, L"On every step");
        EXPECT_EQ(Buttons(screen, frame).back(), 'S');
        screen.Choose(frame, IDC_RECOVERY_ACTIVATION, L"On error");
        EXPECT_EQ(Buttons(screen, frame).back(), '.');
        screen.Choose(frame, IDC_RECOVERY_ACTIVATION, L"On every step");
        screen.Press(frame, kFrameApply);
    });
    EXPECT_EQ(settings_.Stored(L"RecoveryScenarios"),
              L"common.trs;Crash;1;ffffffff*other.trs;Popup;0;ffffffff*common.trs;Popup;1;ffffffff*"
              L"common.trs;Error;1;ffffffff*");
    EXPECT_EQ(settings_.Stored(L"RecoveryDefScenarios"),
              L"common.trs;Crash;1;1*other.trs;Popup;0;1*common.trs;Popup;1;1*common.trs;Error;1;1*");
    EXPECT_EQ(settings_.Stored(L"Enabled"), L"1");

    ForgetCalls();
    OpenSettings([&](UserScreen& screen, HWND frame) {
        EXPECT_EQ(screen.Chosen(frame, kList), Rows{crash});
        for (const int id : {IDC_RECOVERY_ACTIVATION, kList}) {
            screen.Focus(frame, id);
            screen.RealKeys({VK_F1});
            EXPECT_EQ(help_->Take(), support::topics::kRecoveryTab) << id;
        }
        int button = IDC_RECOVERY_ADD;
        for (const wchar_t* tip : {L"Add", L"Remove", L"Move up", L"Move down", L"Properties"})
            EXPECT_EQ(screen.Tip(frame, button++), tip);
        for (const auto& row : {popup, crash, error}) screen.Choose(frame, kList, row);
        EXPECT_FALSE(screen.IsEnabled(frame, kFrameApply));
        screen.Press(frame, IDC_RECOVERY_UP);
        EXPECT_TRUE(screen.IsEnabled(frame, kFrameApply)) << "another order is a change";
    });
    const std::wstring calls = Calls();
    const size_t first = calls.find(L"common.trs\", true)");
    EXPECT_NE(first, std::wstring::npos);
    EXPECT_EQ(calls.find(L"common.trs\", true)", first + 1), std::wstring::npos) << "each file is read once";
}

TEST_F(RecoveryTabTest, RemovingTheLastRowSelectsTheOneAboveAndNothingIsLeftInTheEnd) {
    const std::wstring file = MakePopUps(L"f.trs", {L"A", L"B"});
    settings_.Store(L"RecoveryScenarios",
                    Variant(L"f.trs;A;1;1*f.trs;Gone;1;1*f.trs;A;2;1*missing.trs;A;1;1*"));
    settings_.Store(L"Enabled", Variant(0L));
    OpenSettings([&](UserScreen& screen, HWND frame) {
        EXPECT_EQ(screen.RowsOf(frame, kList),
                  (Rows{L"A | " + file, L"Gone | " + file, L"A | " + file, L"A | missing.trs"}));
        EXPECT_EQ(screen.Chosen(frame, IDC_RECOVERY_ACTIVATION), Rows{L"Never"});
        screen.Choose(frame, kList, L"A | missing.trs");
        EXPECT_EQ(Buttons(screen, frame), "ARUD.S");
        EXPECT_EQ(Icons(screen, frame).back(), '4');
        screen.Picture(frame, L"recovery-tab-unreadable");
        screen.Press(frame, IDC_RECOVERY_REMOVE);
        EXPECT_EQ(screen.Text(frame, IDC_RECOVERY_DESCRIPTION), L"About A.");
        screen.Keys({VK_DELETE});  // takes its equal along
        EXPECT_EQ(screen.RowsOf(frame, kList), Rows{L"Gone | " + file});
        EXPECT_EQ(screen.Chosen(frame, kList), Rows{L"Gone | " + file});
        screen.Keys({VK_DELETE});
        EXPECT_EQ(Buttons(screen, frame), "A....S");
        EXPECT_EQ(screen.Text(frame, IDC_RECOVERY_DESCRIPTION), L"");
        screen.Press(frame, IDOK);
    });
    EXPECT_EQ(settings_.Stored(L"RecoveryScenarios"), L"");
    EXPECT_EQ(settings_.Stored(L"Enabled"), L"0");
}

TEST_F(RecoveryTabTest, AScenarioIsLookedForAndShownAndManyAreAddedInListsWithoutABarAcross) {
    const std::wstring file = MakePopUps(L"f.trs", {L"Popup", L"State of it", L"Stop"});
    Rows names;
    for (int i = 0; i < 40; ++i) names.push_back(L"Scenario " + std::to_wstring(i));
    const std::wstring many = MakePopUps(L"many.trs", names);
    settings_.Store(L"RecoveryScenarios", Variant(L"f.trs;Popup;1;1*f.trs;State of it;1;1*f.trs;Stop;1;1*"));
    OpenSettings([&](UserScreen& screen, HWND frame) {
        screen.Focus(frame, kList);
        screen.Type(L"sto");
        EXPECT_EQ(screen.Chosen(frame, kList), Rows{L"Stop | " + file});
        screen.Press(frame, IDC_RECOVERY_DOWN);  // nowhere to go: nothing is changed
        screen.Press(frame, IDC_RECOVERY_PROPERTIES);
        const HWND sheet = screen.WaitForWindow(L"Recovery Scenario Properties");
        EXPECT_EQ(screen.Text(sheet, IDC_GENERAL_NAME), L"Stop");
        EXPECT_EQ(screen.Text(sheet, IDC_GENERAL_FILE), file);
        screen.Press(sheet, IDCANCEL);
        EXPECT_EQ(screen.FocusId(), kList);
        DeleteFileW(file.c_str());
        screen.Press(frame, IDC_RECOVERY_PROPERTIES);  // what cannot be read is not shown
        EXPECT_TRUE(IsWindowEnabled(frame));
        EXPECT_EQ(settings_.Global(L"g_bDirty").Get().lVal, 0);

        screen.Press(frame, IDC_RECOVERY_ADD);
        const HWND dialog = screen.WaitForWindow(L"Add Recovery Scenario");
        EnterFile(screen, dialog, many);
        EXPECT_FALSE(GetWindowLongW(screen.Control(dialog, IDC_ADD_SCENARIO_LIST), GWL_STYLE) & WS_HSCROLL);
        screen.RealKeys({VK_CONTROL, 'A'});
        screen.Press(dialog, IDOK);
        EXPECT_TRUE(screen.IsLastRowInView(frame, kList));
    });
}

TEST_F(RecoveryTabTest, OpensWhateverTheOptionsHold) {
    const wchar_t *every = L"a;b;1;FFFFFFFF", *loud = L"A;b;1;FFFFFFFF";
    const struct {
        Variant scenarios, enabled, defaults;
        Rows rows, activation;
        char setDefault;
    } cases[] = {
        {Variant(7L), Variant(L"yes"), Variant(7L), {}, {}, '.'},
        {Variant(L"broken"), Variant(1L), Variant(L"broken"), {}, {L"On error"}, '.'},
        {Variant(L"a;b;1;1*c;d"), Variant(-7L), Variant(L""), {L"b | a"}, {L"On error"}, 'S'},
        {Variant(every), Variant(1L), Variant(loud), {L"b | a"}, {L"On every step"}, 'S'},
        {Variant(L""), Variant(0L), Variant(0L), {}, {L"Never"}, 'S'},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        settings_.Store(L"RecoveryScenarios", c.scenarios);
        settings_.Store(L"Enabled", c.enabled);
        settings_.Store(L"RecoveryDefScenarios", c.defaults, true);
        OpenSettings([&](UserScreen& screen, HWND frame) {
            EXPECT_EQ(screen.RowsOf(frame, kList), c.rows);
            EXPECT_EQ(screen.Chosen(frame, IDC_RECOVERY_ACTIVATION), c.activation);
            EXPECT_EQ(Buttons(screen, frame).back(), c.setDefault);
        });
    }
    FailCall(L"TestOptions", L"GetItem");
    OpenSettings([&](UserScreen& screen, HWND frame) { EXPECT_EQ(Buttons(screen, frame), "A....."); });
}

TEST_F(RecoveryTabTest, ADefaultThatIsRefusedIsToldAndALostFileKeepsItsPath) {
    MakePopUps(L"f.trs", {L"A"});
    settings_.Store(L"RecoveryScenarios", Variant(L"f.trs;A;1;ffffffff*lost.trs;B;1;ffffffff*"));
    OpenSettings([&](UserScreen& screen, HWND frame) {
        FailCall(L"TestOptions.ReplayRecovery", L"SetOptionValue");
        screen.Press(frame, IDC_RECOVERY_SET_DEFAULT);
        EXPECT_EQ(screen.BoxLook(), L"error: [OK]");
        EXPECT_EQ(screen.AnswerBox(IDOK),
                  L"Failed to set your Recovery Scenarios settings as the default for new tests.");
        EXPECT_EQ(Buttons(screen, frame).back(), 'S');
        screen.ToggleRow(frame, kList, L"A");
        screen.Press(frame, IDC_RECOVERY_SET_DEFAULT);
        EXPECT_EQ(Buttons(screen, frame).back(), '.') << "what is shown is the default now";
        screen.Press(frame, IDOK);
    });
    // Without a choice the mode stays as it was.
    EXPECT_EQ(settings_.Stored(L"RecoveryScenarios"), L"f.trs;A;0;ffffffff*lost.trs;B;1;ffffffff*");
    EXPECT_EQ(settings_.Stored(L"Enabled"), L"1");
}

}  // namespace
}  // namespace recoveryui::test

// The Recovery tab as its user meets it.
#include <windows.h>

#include <commctrl.h>
#include <uxtheme.h>

#include "harness/ProcessorTime.h"
#include "settings/CheckImages.h"
#include "settings/SettingsTest.h"

namespace recoveryui::test {
namespace {

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
    static void AltKey(UserScreen& screen, WORD key) { screen.RealKeys({VK_MENU, key}); }
    static int IconOf(UserScreen& screen, HWND frame, int row) {
        LVITEMW item{};
        item.mask = LVIF_IMAGE;
        item.iItem = row;
        screen.Ask(screen.Control(frame, kList), LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        return item.iImage;
    }
};

TEST_F(RecoveryTabTest, ScenariosOfTwoFilesAreAddedOrderedSwitchedOffAndFoundAgain) {
    const std::wstring common =
        MakeFile(L"common.trs", {{L"Popup", L"Vantrel.PopUpRecoveryTrigger", L"Closes it.\nThen goes on."},
                                 {L"Crash", L"Vantrel.CrashRecoveryTrigger"},
                                 {L"Error", L"Vantrel.ErrorRecoveryTrigger"}});
    const std::wstring other =
        MakeFile(L"other.trs", {{L"Popup"}, {L"State", L"Vantrel.ObjectStateRecoveryTrigger"}});
    const auto row = [](const std::wstring& name, const std::wstring& file) { return name + L" | " + file; };

    const auto seen = OpenSettings([&](UserScreen& screen, HWND frame) {
        EXPECT_EQ(Buttons(screen, frame), "A.....");
        EXPECT_EQ(screen.Chosen(frame, IDC_RECOVERY_ACTIVATION), Rows{});
        Add(screen, frame, common, {L"Crash", L"Popup"});
        EXPECT_EQ(screen.RowsOf(frame, kList), (Rows{row(L"Crash", common), row(L"Popup", common)}));
        EXPECT_EQ(screen.Chosen(frame, kList), Rows{row(L"Popup", common)});
        EXPECT_EQ(screen.Text(frame, IDC_RECOVERY_DESCRIPTION), L"Closes it.\r\nThen goes on.");
        EXPECT_EQ(IconOf(screen, frame, 0), 3);
        EXPECT_EQ(IconOf(screen, frame, 1), 1);
        EXPECT_EQ(Buttons(screen, frame), "ARUDPS");
        EXPECT_EQ(Global(L"g_bDirty"), 1);
        EXPECT_EQ(Global(L"g_bAllowApply"), 0);

        Add(screen, frame, common, {L"Error", L"Popup"});
        EXPECT_EQ(screen.BoxLook(), L"warning: [OK]");
        EXPECT_EQ(screen.AnswerBox(IDOK), L"The 'Popup' scenario is already associated with your test.");
        Add(screen, frame, other, {L"Popup"});
        EXPECT_EQ(screen.BoxLook(), L"information: [OK]");
        EXPECT_EQ(screen.AnswerBox(IDOK),
                  L"You have selected a different file path for the Popup scenario.  Confirm that the Popup "
                  L"scenario is defined in this file before you run your test.");
        EXPECT_EQ(screen.RowsOf(frame, kList).size(), 4u);
        EXPECT_EQ(IconOf(screen, frame, 2), 2);
        EXPECT_EQ(screen.FocusId(), kList);

        AltKey(screen, VK_UP);
        // On the first row only the focus moves.
        for (int i = 0; i < 3; ++i) screen.Press(frame, IDC_RECOVERY_UP);
        EXPECT_EQ(screen.Chosen(frame, kList), Rows{row(L"Popup", other)});
        AltKey(screen, VK_DOWN);
        EXPECT_EQ(screen.RowsOf(frame, kList), (Rows{row(L"Crash", common), row(L"Popup", other),
                                                     row(L"Popup", common), row(L"Error", common)}));
        screen.Keys({VK_SPACE});
        screen.ToggleRow(frame, kList, row(L"Crash", common));
        screen.ToggleRow(frame, kList, row(L"Crash", common));
        EXPECT_TRUE(screen.IsRowChecked(frame, kList, row(L"Crash", common)));
        EXPECT_FALSE(screen.IsRowChecked(frame, kList, row(L"Popup", other)));

        screen.Choose(frame, IDC_RECOVERY_ACTIVATION, L"Never");
        screen.Mnemonic(L'd');
        EXPECT_EQ(Buttons(screen, frame).back(), '.');
        screen.Choose(frame, IDC_RECOVERY_ACTIVATION, L"On every step");
        EXPECT_EQ(Buttons(screen, frame).back(), 'S');
        screen.Picture(frame, L"recovery-tab");
        screen.Press(frame, kFrameApply);
        EXPECT_EQ(Global(L"g_bDirty"), 0);
        EXPECT_FALSE(screen.IsEnabled(frame, kFrameApply));
    });
    EXPECT_EQ(seen, (std::vector<std::string>{"Apply", "Cancel"}));
    EXPECT_EQ(Stored(L"RecoveryScenarios"),
              L"common.trs;Crash;1;ffffffff*other.trs;Popup;0;ffffffff*common.trs;Popup;1;ffffffff*common."
              L"trs;Error;1;"
              L"ffffffff*");
    EXPECT_EQ(Stored(L"RecoveryDefScenarios"),
              L"common.trs;Crash;1;1*other.trs;Popup;0;1*common.trs;Popup;1;1*common.trs;Error;1;1*");
    EXPECT_EQ(Stored(L"Enabled"), L"1");

    OpenSettings([&](UserScreen& screen, HWND frame) {
        EXPECT_EQ(screen.RowsOf(frame, kList), (Rows{row(L"Crash", common), row(L"Popup", other),
                                                     row(L"Popup", common), row(L"Error", common)}));
        EXPECT_EQ(screen.Chosen(frame, kList), Rows{row(L"Crash", common)});
        EXPECT_FALSE(screen.IsRowChecked(frame, kList, row(L"Popup", other)));
        EXPECT_EQ(screen.Chosen(frame, IDC_RECOVERY_ACTIVATION), Rows{L"On every step"});
        const struct {
            int id;
            const wchar_t* tip;
        } tips[] = {{IDC_RECOVERY_ADD, L"Add"},
                    {IDC_RECOVERY_REMOVE, L"Remove"},
                    {IDC_RECOVERY_UP, L"Move up"},
                    {IDC_RECOVERY_DOWN, L"Move down"},
                    {IDC_RECOVERY_PROPERTIES, L"Properties"}};
        for (const auto& tip : tips) EXPECT_EQ(screen.Tip(frame, tip.id), tip.tip);
    });
}

TEST_F(RecoveryTabTest, RemovingTheLastRowSelectsTheOneAboveAndNothingIsLeftInTheEnd) {
    const std::wstring file =
        MakeFile(L"f.trs", {{L"A", L"Vantrel.PopUpRecoveryTrigger", L"about A"}, {L"B"}});
    Store(L"RecoveryScenarios", com::Variant(L"f.trs;A;1;1*f.trs;Gone;1;1*f.trs;A;2;1*missing.trs;B;1;1*"));
    Store(L"Enabled", com::Variant(0L));
    const auto seen = OpenSettings([&](UserScreen& screen, HWND frame) {
        EXPECT_EQ(screen.RowsOf(frame, kList),
                  (Rows{L"A | " + file, L"Gone | " + file, L"A | " + file, L"B | missing.trs"}));
        EXPECT_EQ(screen.Chosen(frame, IDC_RECOVERY_ACTIVATION), Rows{L"Never"});
        EXPECT_EQ(Buttons(screen, frame), "ARUDPS");
        screen.Choose(frame, kList, L"B | missing.trs");
        EXPECT_EQ(Buttons(screen, frame), "ARUD.S");
        EXPECT_EQ(IconOf(screen, frame, 3), 4);
        screen.Picture(frame, L"recovery-tab-unreadable");
        screen.Press(frame, IDC_RECOVERY_REMOVE);
        EXPECT_EQ(screen.Text(frame, IDC_RECOVERY_DESCRIPTION), L"about A");
        screen.Keys({VK_DELETE});  // takes its equal along
        EXPECT_EQ(screen.RowsOf(frame, kList), Rows{L"Gone | " + file});
        EXPECT_EQ(screen.Chosen(frame, kList), Rows{L"Gone | " + file});
        screen.Keys({VK_DELETE});
        EXPECT_EQ(Buttons(screen, frame), "A....S");
        EXPECT_EQ(screen.Text(frame, IDC_RECOVERY_DESCRIPTION), L"");
        screen.Press(frame, IDOK);
    });
    EXPECT_EQ(seen, std::vector<std::string>{"OK"});
    EXPECT_EQ(Stored(L"RecoveryScenarios"), L"");
    EXPECT_EQ(Stored(L"Enabled"), L"0");
}

TEST_F(RecoveryTabTest, AScenarioIsLookedForByItsLettersAndShownInItsSheet) {
    const std::wstring file = MakeFile(L"f.trs", {{L"Popup"}, {L"State of it"}, {L"Stop"}});
    Store(L"RecoveryScenarios", com::Variant(L"f.trs;Popup;1;1*f.trs;State of it;1;1*f.trs;Stop;1;1*"));
    const auto seen = OpenSettings([&](UserScreen& screen, HWND frame) {
        const HWND list = screen.Control(frame, kList);
        screen.Do([=] { SetFocus(list); });
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
    });
    EXPECT_EQ(seen, std::vector<std::string>{"Cancel"});
    EXPECT_EQ(Global(L"g_bDirty"), -1);
}

TEST_F(RecoveryTabTest, OpensWhateverTheOptionsHold) {
    using com::Variant;
    const struct {
        Variant scenarios, enabled, defaults;
        Rows rows, activation;
        char setDefault;
    } cases[] = {
        {Variant(7L), Variant(L"yes"), Variant(7L), {}, {}, '.'},
        {Variant(L"broken"), Variant(1L), Variant(L"broken"), {}, {L"On error"}, '.'},
        {Variant(L"a;b;1;1*c;d"), Variant(5L), Variant(L""), {L"b | a"}, {L"On error"}, 'S'},
        {Variant(L"a;b;1;FFFFFFFF"),
         Variant(1L),
         Variant(L"A;b;1;FFFFFFFF"),
         {L"b | a"},
         {L"On every step"},
         'S'},
        {Variant(L""), Variant(0L), Variant(0L), {}, {L"Never"}, 'S'},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        Store(L"RecoveryScenarios", c.scenarios);
        Store(L"Enabled", c.enabled);
        Store(L"RecoveryDefScenarios", c.defaults, true);
        OpenSettings([&](UserScreen& screen, HWND frame) {
            EXPECT_EQ(screen.RowsOf(frame, kList), c.rows);
            EXPECT_EQ(screen.Chosen(frame, IDC_RECOVERY_ACTIVATION), c.activation);
            EXPECT_EQ(Buttons(screen, frame).back(), c.setDefault);
        });
    }
    FailCall(L"TestOptions", L"GetItem");
    OpenSettings([&](UserScreen& screen, HWND frame) {
        EXPECT_EQ(screen.RowsOf(frame, kList), Rows{});
        EXPECT_EQ(Buttons(screen, frame), "A.....");
    });
}

TEST_F(RecoveryTabTest, WhatIsRefusedStaysToBeWritten) {
    MakeFile(L"f.trs", {{L"A"}});
    Store(L"RecoveryScenarios", com::Variant(L"f.trs;A;1;1*"));
    const auto seen = OpenSettings([&](UserScreen& screen, HWND frame) {
        FailCall(L"TestOptions.ReplayRecovery", L"SetOptionValue", E_FAIL, 1, 2);
        screen.Press(frame, IDC_RECOVERY_SET_DEFAULT);
        EXPECT_EQ(screen.BoxLook(), L"error: [OK]");
        EXPECT_EQ(screen.AnswerBox(IDOK),
                  L"Failed to set your Recovery Scenarios settings as the default for new tests.");
        EXPECT_EQ(Buttons(screen, frame).back(), 'S');
        screen.Choose(frame, kList, L"A");
        screen.ToggleRow(frame, kList, L"A");
        screen.Press(frame, IDOK);
        screen.Press(frame, IDOK);
    });
    EXPECT_EQ(seen, (std::vector<std::string>{"OK", "Refused", "OK"}));
    EXPECT_EQ(Stored(L"RecoveryScenarios"), L"f.trs;A;0;1*");
    EXPECT_EQ(Stored(L"Enabled"), L"1");
}

TEST_F(RecoveryTabTest, ChangesOfReadOnlySettingsCannotBeApplied) {
    isReadOnly_ = true;
    Store(L"RecoveryScenarios", com::Variant(L"f.trs;A;1;1*"));
    OpenSettings([&](UserScreen& screen, HWND frame) {
        screen.ToggleRow(frame, kList, L"A");
        EXPECT_FALSE(screen.IsEnabled(frame, IDOK));
        EXPECT_FALSE(screen.IsEnabled(frame, kFrameApply));
        EXPECT_FALSE(screen.IsRowChecked(frame, kList, L"A"));
    });
}

TEST_F(RecoveryTabTest, CheckBoxesLeaveTheListItsBorder) {
    const HWND list =
        CreateWindowW(WC_LISTVIEWW, nullptr, WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    const HTHEME own = GetWindowTheme(list);
    ImageList_Destroy(settings::CheckImages(list));
    EXPECT_EQ(GetWindowTheme(list), own);
    DestroyWindow(list);
}

TEST_F(RecoveryTabTest, TenThousandScenariosAreThereAtOnceAndTheirFileIsReadOnce) {
    std::vector<Scenario> many;
    std::wstring records;
    for (int i = 0; i < 10'000; ++i) {
        many.push_back({L"Scenario " + std::to_wstring(i)});
        records += L"big.trs;" + many.back().name + L";1;1*";
    }
    MakeFile(L"big.trs", many);
    Store(L"RecoveryScenarios", com::Variant(records));
    ForgetCalls();
    const ULONGLONG begun = ProcessorMilliseconds();
    OpenSettings([&](UserScreen& screen, HWND frame) {
        const ULONGLONG opened = ProcessorMilliseconds();
        EXPECT_LT(opened - begun, 2000u);
        const HWND list = screen.Control(frame, kList);
        screen.Do([=] { SetFocus(list); });
        screen.Keys({VK_END});
        for (int i = 0; i < 20; ++i) AltKey(screen, VK_UP);
        for (int i = 0; i < 20; ++i) screen.Ask(list, LVM_SCROLL, 0, -5000);
        screen.Do([=] { UpdateWindow(list); });
        EXPECT_LT(ProcessorMilliseconds() - opened, 3000u);
        EXPECT_EQ(ListView_GetNextItem(list, -1, LVNI_SELECTED), 9'979);
    });
    const std::wstring calls = Calls();
    const size_t first = calls.find(L"RecoveryRepository.Load");
    EXPECT_NE(first, std::wstring::npos);
    EXPECT_EQ(calls.find(L"RecoveryRepository.Load", first + 1), std::wstring::npos);
}

}  // namespace
}  // namespace recoveryui::test

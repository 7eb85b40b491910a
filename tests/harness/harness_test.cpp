// The user of the tests, tried on windows made for it.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>
#include <windowsx.h>

#include "harness/ComTest.h"
#include "harness/ProcessWindows.h"
#include "harness/UserScreen.h"

namespace recoveryui::test {
namespace {

enum Id { kEdit = 100, kCheck, kBox, kTable, kTree, kCombo, kMenu, kGrey, kHidden };

// A window with one control of every kind.
class Workshop {
public:
    Workshop() {
        INITCOMMONCONTROLSEX all{sizeof all, ICC_WIN95_CLASSES};
        InitCommonControlsEx(&all);
        WNDCLASSW kind{};
        kind.lpfnWndProc = Procedure;
        kind.hInstance = GetModuleHandleW(nullptr);
        kind.lpszClassName = L"Workshop";
        kind.hbrBackground = GetSysColorBrush(COLOR_3DFACE);
        RegisterClassW(&kind);
        window_ = CreateWindowW(L"Workshop", L"Workshop", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 620, 420,
                                nullptr, nullptr, nullptr, nullptr);
        Add(L"EDIT", L"old", WS_BORDER | WS_TABSTOP, kEdit);
        Add(L"BUTTON", L"&Check", BS_AUTOCHECKBOX | WS_TABSTOP, kCheck);
        const HWND box = Add(L"LISTBOX", L"", LBS_NOTIFY | LBS_EXTENDEDSEL | LBS_HASSTRINGS, kBox);
        for (const wchar_t* row : {L"north", L"south"}) ListBox_AddString(box, row);
        const HWND table = Add(WC_LISTVIEWW, L"", LVS_REPORT, kTable);
        ListView_SetExtendedListViewStyle(table, LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
        for (int i = 0; i < 2; ++i) {
            wchar_t name[] = L"column";
            LVCOLUMNW column{};
            column.mask = LVCF_TEXT | LVCF_WIDTH;
            column.pszText = name;
            column.cx = 80;
            ListView_InsertColumn(table, i, &column);
        }
        for (int i = 0; i < 3; ++i) {
            std::wstring text = L"row " + std::to_wstring(i);
            LVITEMW item{};
            item.mask = LVIF_TEXT;
            item.iItem = i;
            item.pszText = text.data();
            ListView_InsertItem(table, &item);
            text = std::to_wstring(i * i);
            ListView_SetItemText(table, i, 1, text.data());
        }
        const HWND tree = Add(WC_TREEVIEWW, L"", TVS_HASLINES, kTree);
        TVINSERTSTRUCTW leaf{};
        leaf.item.mask = TVIF_TEXT;
        for (const wchar_t* name : {L"root", L"leaf"}) {
            leaf.item.pszText = const_cast<wchar_t*>(name);
            leaf.hParent = TreeView_InsertItem(tree, &leaf);
        }
        const HWND combo = Add(L"COMBOBOX", L"", CBS_DROPDOWNLIST | CBS_HASSTRINGS, kCombo);
        for (const wchar_t* row : {L"one", L"two"}) ComboBox_AddString(combo, row);
        Add(L"BUTTON", L"Menu", WS_TABSTOP, kMenu);
        Add(L"BUTTON", L"Grey", WS_DISABLED, kGrey);
        ShowWindow(Add(L"BUTTON", L"Hidden", 0, kHidden), SW_HIDE);
    }
    // Runs until the window is closed.
    void Open() {
        MSG message;
        while (GetMessageW(&message, nullptr, 0, 0) > 0) {
            if (IsDialogMessageW(window_, &message)) continue;
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    static inline UINT chosen = 0;

private:
    HWND Add(const wchar_t* kind, const wchar_t* text, DWORD style, int id) {
        const int place = id - kEdit;
        return CreateWindowW(kind, text, style | WS_CHILD | WS_VISIBLE, 10 + 200 * (place % 3),
                             10 + 120 * (place / 3), 190, 110, window_,
                             reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    }
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_COMMAND && LOWORD(wParam) == kMenu) {
            const HMENU menu = CreatePopupMenu();
            AppendMenuW(menu, MF_STRING, 1, L"Copy");
            AppendMenuW(menu, MF_STRING | MF_GRAYED, 2, L"Paste");
            AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
            AppendMenuW(menu, MF_STRING, 3, L"Browse");
            chosen = TrackPopupMenu(menu, TPM_RETURNCMD, 30, 30, 0, window, nullptr);
            DestroyMenu(menu);
        }
        if (message == WM_DESTROY) PostQuitMessage(0);
        return DefWindowProcW(window, message, wParam, lParam);
    }

    HWND window_;
};

TEST(HarnessTest, AUserReadsAndChangesEveryKindOfControl) {
    Workshop workshop;
    User user([](UserScreen& screen) {
        const HWND window = screen.WaitForWindow(L"Workshop", L"Workshop");
        screen.Enter(window, kEdit, L"new");
        screen.Type(L"er");
        EXPECT_EQ(screen.Text(window, kEdit), L"newer");
        EXPECT_EQ(screen.FocusId(), kEdit);
        screen.Keys({VK_HOME, VK_DELETE});
        screen.RealKeys({VK_SHIFT, 'K'});
        EXPECT_EQ(screen.Text(window, kEdit), L"Kewer");

        screen.Check(window, kCheck);
        EXPECT_TRUE(screen.IsChecked(window, kCheck));
        screen.Mnemonic(L'c');
        EXPECT_FALSE(screen.IsChecked(window, kCheck));

        EXPECT_EQ(screen.RowsOf(window, kBox), (Rows{L"north", L"south"}));
        screen.Choose(window, kBox, L"south");
        EXPECT_EQ(screen.Chosen(window, kBox), Rows{L"south"});

        EXPECT_EQ(screen.RowsOf(window, kTable), (Rows{L"row 0 | 0", L"row 1 | 1", L"row 2 | 4"}));
        screen.Choose(window, kTable, L"row 2");
        screen.ToggleRow(window, kTable, L"row 1 | 1");
        EXPECT_EQ(screen.Chosen(window, kTable), Rows{L"row 2 | 4"});
        EXPECT_TRUE(screen.IsRowChecked(window, kTable, L"row 1"));
        EXPECT_FALSE(screen.IsRowChecked(window, kTable, L"row 2"));

        EXPECT_EQ(screen.RowsOf(window, kTree), (Rows{L"root", L"  leaf"}));
        screen.Choose(window, kTree, L"leaf");
        EXPECT_EQ(screen.Chosen(window, kTree), Rows{L"  leaf"});
        screen.Choose(window, kCombo, L"two");
        EXPECT_EQ(screen.Chosen(window, kCombo), Rows{L"two"});

        screen.Press(window, kMenu);
        EXPECT_EQ(screen.MenuItems(), (Rows{L"Copy", L"[Paste]", L"-", L"Browse"}));
        screen.ChooseMenu(L"Browse");
        EXPECT_EQ(Workshop::chosen, 3u);

        EXPECT_ANY_THROW(screen.Press(window, kGrey));
        EXPECT_ANY_THROW(screen.Press(window, kHidden));
        EXPECT_ANY_THROW(screen.Choose(window, kBox, L"east"));
        screen.Picture(window, L"harness-workshop");
        screen.Close(window);
    });
    workshop.Open();
}

TEST(HarnessTest, AMessageBoxIsReadAndAnswered) {
    User user([](UserScreen& screen) {
        EXPECT_EQ(screen.AnswerBox(IDNO), L"Save changes?");
        EXPECT_EQ(screen.AnswerBox(IDOK, L"Second"), L"Done.");
    });
    EXPECT_EQ(MessageBoxW(nullptr, L"Save changes?", L"Tovarin", MB_YESNOCANCEL), IDNO);
    EXPECT_EQ(MessageBoxW(nullptr, L"Done.", L"Second", MB_OK), IDOK);
}

// The modal call returns in each case: a test that has failed does not hang.
TEST(HarnessTest, AUserWhoCannotGoOnFailsTheTestWithTheWindowsAndClosesThem) {
    static const auto show = [](User::Script script) {
        User user(std::move(script), 1);
        MessageBoxW(nullptr, L"Unexpected text", L"Tovarin", MB_YESNOCANCEL);
    };
    EXPECT_NONFATAL_FAILURE_ON_ALL_THREADS(
        show([](UserScreen& screen) { screen.Press(screen.WaitForWindow(L"Tovarin"), IDRETRY); }),
        "no control 4");
    EXPECT_NONFATAL_FAILURE_ON_ALL_THREADS(show([](UserScreen& screen) { screen.WaitForWindow(L"Never"); }),
                                           "Unexpected text");
    EXPECT_NONFATAL_FAILURE_ON_ALL_THREADS(show([](UserScreen&) {}), "windows stay open");
}

using HarnessComTest = ComTest;

TEST_F(HarnessComTest, AnOrderedFaultMeetsTheNextCreationOnly) {
    FailCall(L"Tovarin.ObjectRack", L"Create", E_OUTOFMEMORY);
    EXPECT_NONFATAL_FAILURE(New<IObjectRack>(L"Tovarin.ObjectRack"), "Tovarin.ObjectRack");
    EXPECT_TRUE(New<IObjectRack>(L"Tovarin.ObjectRack"));
    EXPECT_NE(Calls().find(L"Create"), std::wstring::npos) << Utf8(Calls());
}

TEST(HarnessTest, ALeakedObjectFailsTheTest) {
    struct Leaky : ComTest {
        void TestBody() override { New<IObjectRack>(L"Tovarin.ObjectRack").Detach(); }
    };
    EXPECT_NONFATAL_FAILURE({ Leaky().TestBody(); }, "stand-ins are alive");
}

}  // namespace
}  // namespace recoveryui::test

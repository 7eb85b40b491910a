// Every dialog of the product, measured at four resolutions, and proof that the checks find what is wrong.
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>
#include <objbase.h>
#include <uxtheme.h>

#include "harness/ProcessWindows.h"
#include "looks/checks.h"
#include "resources/ids.h"
#include "settings/CheckImages.h"

namespace recoveryui::looks {
namespace {

using test::Utf8;

constexpr int kResolutions[] = {96, 120, 144, 192};

struct Module {
    explicit Module(const wchar_t* file) : handle(LoadLibraryExW(file, nullptr, LOAD_LIBRARY_AS_DATAFILE)) {}
    ~Module() { FreeLibrary(handle); }
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;
    HMODULE handle;
};

// Where the letters of the frame around a page come from.
std::wstring FrameLetters(const Screen& screen) {
    if (screen.Find(IDC_PAGE_BITMAP)) return L"BN";                          // Back, Next
    return screen.isChild && screen.size.cx == 300 ? L"A" : std::wstring();  // Apply
}

TEST(Looks, EveryTemplateIsInOrder) {
    std::wstring found;
    size_t count = 0;
    for (const wchar_t* file : {L"RecoveryUI.dll", L"TovarinHost.exe", L"TovarinObjects.dll"}) {
        const Module module(file);
        ASSERT_NE(module.handle, nullptr) << Utf8(file);
        for (Screen& screen : TemplatesOf(module.handle)) {
            screen.name = file + (L" " + screen.name);
            for (const int dpi : kResolutions) found += Clipped(screen, Ruler(dpi));
            found += Overlapping(screen) + OutOfOrder(screen) + Ambiguous(screen, FrameLetters(screen)) +
                     OffGrid(screen);
            // Texts that come while it runs are in the windows' own check.
            if (!screen.Find(IDC_TEST_FLOW_FIRST)) found += Nameless(screen);
            ++count;
        }
    }
    EXPECT_EQ(Utf8(found), "");
    EXPECT_EQ(count, 30u) << "dialogs";
}

struct RunTimeText {
    int dialog, control, first, last;  // strings
};
constexpr RunTimeText kRunTimeTexts[] = {
    {IDD_TEST_FLOW, IDC_TEST_FLOW_FIRST, IDS_OPTION_REPEAT_STEP, IDS_OPTION_STOP_RUN},
    {IDD_SELECT_ERROR, IDC_SELECT_ERROR_LIST, IDS_ERROR_OBJECT_NOT_FOUND, IDS_ERROR_OBJECT_NOT_FOUND},
    {IDD_SELECT_ERROR, IDC_SELECT_ERROR_LIST, IDS_ERROR_ANY, IDS_ERROR_ANY},
    {IDD_SELECT_ERROR, IDC_SELECT_ERROR_LIST, IDS_REPLAY_ITEM_NOT_UNIQUE, IDS_REPLAY_OBJECT_NOT_VISIBLE},
    {IDD_SELECT_ERROR, IDC_SELECT_ERROR_DESCRIPTION, IDS_DESCRIBE_ITEM_NOT_UNIQUE,
     IDS_DESCRIBE_OBJECT_NOT_VISIBLE},
    {IDD_SELECT_ERROR, IDC_SELECT_ERROR_DESCRIPTION, IDS_DESCRIBE_ANY_ERROR, IDS_DESCRIBE_ANY_ERROR},
    {IDD_RECOVERY_TAB, IDC_RECOVERY_ACTIVATION, IDS_ACTIVATE_EVERY_STEP, IDS_ACTIVATE_NEVER},
};

TEST(Looks, TextsThatCodePutsIntoControlsFit) {
    const Module module(L"RecoveryUI.dll");
    for (const RunTimeText& row : kRunTimeTexts) {
        Screen screen = FromTemplate(module.handle, row.dialog);
        const Control* found = screen.Find(row.control);
        ASSERT_NE(found, nullptr) << row.control;
        for (int text = row.first; text <= row.last; ++text) {
            wchar_t words[512] = L"";
            ASSERT_GT(LoadStringW(module.handle, static_cast<UINT>(text), words, 512), 0) << text;
            Screen one = screen;
            one.controls = {*found};
            one.controls[0].text = words;
            for (const int dpi : kResolutions) EXPECT_EQ(Utf8(Clipped(one, Ruler(dpi))), "");
        }
    }
}

// How many pixels of a square stay what they were, and how many take an icon's colours.
std::pair<int, int> Drawn(HMODULE module, int id, int size, COLORREF ground) {
    const HDC screen = GetDC(nullptr), memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, size, size);
    SelectObject(memory, bitmap);
    const RECT whole{0, 0, size, size};
    SetDCBrushColor(memory, ground);
    FillRect(memory, &whole, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    const auto icon = static_cast<HICON>(LoadImageW(module, MAKEINTRESOURCEW(id), IMAGE_ICON, size, size, 0));
    DrawIconEx(memory, 0, 0, icon, size, size, 0, nullptr, DI_NORMAL);
    int left = 0;
    for (int pixel = 0; pixel < size * size; ++pixel)
        left += GetPixel(memory, pixel % size, pixel / size) == ground;
    DestroyIcon(icon);
    DeleteDC(memory);
    DeleteObject(bitmap);
    ReleaseDC(nullptr, screen);
    return {left, size * size - left};
}

// A packed picture without 32 bits per pixel is drawn on black: all of the square takes its colours.
TEST(Looks, IconsAreDrawnOnWhateverIsThere) {
    const Module module(L"RecoveryUI.dll");
    for (int id = IDI_POINTING_HAND; id <= IDI_RECOVERY_FILE; ++id) {
        for (const int size : {16, 20, 24, 32}) {
            for (const COLORREF ground : {RGB(255, 255, 255), RGB(0, 0, 0), RGB(0, 120, 215)}) {
                const auto [left, taken] = Drawn(module.handle, id, size, ground);
                EXPECT_GT(left, size) << id << " at " << size;
                EXPECT_GT(taken, size) << id << " at " << size;
            }
        }
    }
}

// ---- The checks find what is wrong

Control Made(Kind kind, int id, RECT place, const wchar_t* text = L"", DWORD style = 0) {
    const DWORD look = kind == Kind::Radio ? BS_AUTORADIOBUTTON : kind == Kind::Check ? BS_AUTOCHECKBOX : 0;
    return {id, kind, WS_VISIBLE | look | (kind == Kind::Static ? 0 : WS_TABSTOP) | style, place, text};
}
Screen Planted(const std::vector<Control>& controls) {
    return {L"planted", false, {200, 100}, controls};
}
std::wstring AtEveryResolution(const Screen& screen) {
    std::wstring found;
    for (const int dpi : kResolutions) found += Clipped(screen, Ruler(dpi));
    return found;
}

TEST(Looks, APlantedFaultIsFound) {
    const Control label = Made(Kind::Static, -1, {7, 7, 107, 15}, L"Name:");
    const Control edit = Made(Kind::Edit, 1, {7, 18, 107, 32});
    const Control ok = Made(Kind::Push, 2, {89, 79, 139, 93}, L"&OK");
    const Control cancel = Made(Kind::Push, 3, {143, 79, 193, 93}, L"Cancel");
    const Screen good = Planted({label, edit, ok, cancel});
    EXPECT_EQ(Utf8(AtEveryResolution(good) + Overlapping(good) + OutOfOrder(good) + Ambiguous(good, L"BN") +
                   Nameless(good) + OffGrid(good)),
              "");

    const struct {
        std::wstring complaints;
        const wchar_t* expected;
    } faults[] = {
        {AtEveryResolution(Planted({Made(Kind::Static, 5, {7, 7, 57, 15}, L"Too long for one line")})),
         L"at 192 DPI"},
        {AtEveryResolution(Planted({Made(Kind::Push, 5, {7, 7, 57, 21}, L"Too long for it")})), L"at 96 DPI"},
        {AtEveryResolution(Planted({Made(Kind::Radio, 5, {7, 7, 47, 17}, L"Too long for it")})),
         L"at 120 DPI"},
        {AtEveryResolution(Planted({Made(Kind::Check, 5, {7, 7, 107, 14}, L"Low")})), L"at 144 DPI"},
        {AtEveryResolution(Planted({Made(Kind::Combo, 5, {7, 7, 57, 80}, L"Too long for it")})),
         L"at 96 DPI"},
        {Overlapping(Planted({label, Made(Kind::Edit, 5, {7, 14, 107, 28})})), L"overlaps"},
        {Overlapping(Planted({Made(Kind::Edit, 5, {107, 14, 207, 28})})), L"leaves the dialog"},
        {OutOfOrder(Planted({cancel, ok})), L"3 2"},
        {OutOfOrder(Planted({ok, cancel, label, edit})), L"2 3 1"},
        {Ambiguous(Planted({ok, Made(Kind::Check, 5, {7, 7, 107, 17}, L"&Or this")})), L"letter of &OK"},
        {Ambiguous(Planted({Made(Kind::Check, 5, {7, 7, 107, 17}, L"&By name")}), L"BN"),
         L"letter of the frame"},
        {Nameless(Planted({edit})), L"has no name"},
        {Nameless(Planted({label, edit, Made(Kind::List, 5, {7, 40, 107, 60})})), L"5 \"\" has no name"},
        {OffGrid(Planted({Made(Kind::Static, 5, {5, 7, 107, 15}, L"Name:")})), L"margin"},
        {OffGrid(Planted({label, Made(Kind::Edit, 5, {7, 16, 107, 30})})), L"below its label"},
        {OffGrid(Planted({ok, Made(Kind::Push, 5, {141, 79, 193, 93}, L"Help")})), L"beside"},
        {OffGrid(Planted({Made(Kind::Push, 5, {7, 7, 57, 20}, L"Help")})), L"14 high"},
    };
    for (const auto& fault : faults)
        EXPECT_NE(fault.complaints.find(fault.expected), std::wstring::npos)
            << Utf8(fault.expected) << " in " << Utf8(fault.complaints);
}

// In a real window: what no key reaches, a lost focus, and what a screen reader says.
struct Ole {
    Ole() { CoInitialize(nullptr); }
    ~Ole() { CoUninitialize(); }
};

TEST(Looks, APlantedWindowIsReadAsAScreenReaderReadsIt) {
    const Ole ole;
    const struct {
        const wchar_t *kind, *text;
        int id;
    } controls[] = {{L"Static", L"&Name:", -1}, {L"Edit", L"", 1},     {L"Static", L"List:", -1},
                    {L"ListBox", L"", 2},       {L"ComboBox", L"", 6}, {L"Button", L"OK", 3}};
    const HWND dialog =
        CreateWindowW(L"#32770", L"", WS_POPUP, 0, 0, 400, 300, nullptr, nullptr, nullptr, nullptr);
    for (const auto& [kind, text, id] : controls)
        CreateWindowW(kind, text, WS_CHILD | WS_VISIBLE | (id < 0 ? 0 : WS_TABSTOP), 10, 40 * std::abs(id),
                      100, 30, dialog, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    ShowWindow(dialog, SW_SHOW);
    const HWND edit = GetDlgItem(dialog, 1);
    EXPECT_EQ(Utf8(Unspoken(FromWindow(dialog))), "");
    EXPECT_EQ(Utf8(Unreachable(FromWindow(dialog), dialog)), "");
    SetWindowLongW(edit, GWL_STYLE, GetWindowLongW(edit, GWL_STYLE) & ~WS_TABSTOP);
    EXPECT_NE(Unreachable(FromWindow(dialog), dialog).find(L"reached by no key"), std::wstring::npos);
    SetFocus(edit);
    EnableWindow(edit, FALSE);
    EXPECT_NE(Unreachable(FromWindow(dialog), dialog).find(L"no key is taken"), std::wstring::npos);
    DestroyWindow(GetWindow(edit, GW_HWNDPREV));
    EXPECT_NE(Unspoken(FromWindow(dialog)).find(L"by a screen reader"), std::wstring::npos);
    DestroyWindow(dialog);
}

TEST(Looks, CheckBoxesLeaveTheListItsBorder) {
    const HWND list =
        CreateWindowW(WC_LISTVIEWW, nullptr, WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    const HTHEME own = GetWindowTheme(list);
    ImageList_Destroy(settings::CheckImages(list));
    EXPECT_EQ(GetWindowTheme(list), own);
    DestroyWindow(list);
}

}  // namespace
}  // namespace recoveryui::looks

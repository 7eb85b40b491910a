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

// All that can be said of a template.
std::string Complaints(const Screen& screen, const std::wstring& frameLetters) {
    std::wstring found =
        Overlapping(screen) + OutOfOrder(screen) + Ambiguous(screen, frameLetters) + OffGrid(screen);
    for (const int dpi : kResolutions) found += Clipped(screen, Ruler(dpi));
    // Texts that come while it runs are in the windows' own check.
    if (!screen.Find(IDC_TEST_FLOW_FIRST)) found += Nameless(screen);
    return Utf8(found);
}

TEST(Looks, EveryTemplateIsInOrder) {
    size_t count = 0;
    for (const wchar_t* file : {L"RecoveryUI.dll", L"TovarinHost.exe", L"TovarinObjects.dll"}) {
        const Module module(file);
        ASSERT_NE(module.handle, nullptr) << Utf8(file);
        for (const Screen& screen : TemplatesOf(module.handle)) {
            EXPECT_EQ(Complaints(screen, FrameLetters(screen)), "") << Utf8(file);
            ++count;
        }
    }
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

// How many pixels of a square keep their colour when an icon is drawn on it.
int KeptBy(HMODULE module, int id, int size, COLORREF ground) {
    const HDC screen = GetDC(nullptr), memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, size, size);
    SelectObject(memory, bitmap);
    const RECT whole{0, 0, size, size};
    SetDCBrushColor(memory, ground);
    FillRect(memory, &whole, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    const auto icon = static_cast<HICON>(LoadImageW(module, MAKEINTRESOURCEW(id), IMAGE_ICON, size, size, 0));
    DrawIconEx(memory, 0, 0, icon, size, size, 0, nullptr, DI_NORMAL);
    int kept = 0;
    for (int pixel = 0; pixel < size * size; ++pixel)
        kept += GetPixel(memory, pixel % size, pixel / size) == ground;
    DestroyIcon(icon);
    DeleteDC(memory);
    DeleteObject(bitmap);
    ReleaseDC(nullptr, screen);
    return kept;
}

// A packed picture without 32 bits per pixel is drawn on black: all of the square takes its colours.
TEST(Looks, IconsAreDrawnOnWhateverIsThere) {
    const Module module(L"RecoveryUI.dll");
    for (int id = IDI_POINTING_HAND; id <= IDI_RECOVERY_FILE; ++id) {
        for (const int size : {16, 20, 24, 32}) {
            for (const COLORREF ground : {RGB(255, 255, 255), RGB(0, 0, 0), RGB(0, 120, 215)}) {
                const int kept = KeptBy(module.handle, id, size, ground);
                EXPECT_TRUE(kept > size && kept < size * size - size) << id << " at " << size;
            }
        }
    }
}

// ---- The checks find what is wrong

Control Made(Kind kind, int id, RECT place, const wchar_t* text = L"", DWORD style = 0) {
    const DWORD look = kind == Kind::Radio ? BS_AUTORADIOBUTTON : kind == Kind::Check ? BS_AUTOCHECKBOX : 0;
    return {id, kind, WS_VISIBLE | look | (kind == Kind::Static ? 0 : WS_TABSTOP) | style, place, text};
}

TEST(Looks, APlantedFaultIsFound) {
    const Control label = Made(Kind::Static, -1, {7, 7, 107, 15}, L"Name:");
    const Control edit = Made(Kind::Edit, 1, {7, 18, 107, 32});
    const Control ok = Made(Kind::Push, 2, {89, 79, 139, 93}, L"&OK");
    const Control cancel = Made(Kind::Push, 3, {143, 79, 193, 93}, L"Cancel");
    const auto complaints = [](const std::vector<Control>& controls) {
        return Complaints({L"planted", false, {200, 100}, controls}, L"BN");
    };
    EXPECT_EQ(complaints({label, edit, ok, cancel}), "");
    const struct {
        std::vector<Control> controls;
        const char* complaint;
    } faults[] = {
        {{Made(Kind::Static, 5, {7, 7, 57, 15}, L"Too long for one line")}, "at 192 DPI"},
        {{Made(Kind::Push, 5, {7, 7, 57, 21}, L"Too long for it")}, "at 96 DPI"},
        {{Made(Kind::Radio, 5, {7, 7, 47, 17}, L"Too long for it")}, "at 120 DPI"},
        {{Made(Kind::Check, 5, {7, 7, 107, 14}, L"Low")}, "at 144 DPI"},
        {{Made(Kind::Combo, 5, {7, 7, 57, 80}, L"Too long for it")}, "at 96 DPI"},
        {{label, Made(Kind::Edit, 5, {7, 14, 107, 28})}, "overlaps"},
        {{Made(Kind::Edit, 5, {107, 14, 207, 28})}, "leaves the dialog"},
        {{cancel, ok}, "3 2"},
        {{ok, cancel, label, edit}, "2 3 1"},
        {{ok, Made(Kind::Check, 5, {7, 7, 107, 17}, L"&Or this")}, "letter of &OK"},
        {{Made(Kind::Check, 5, {7, 7, 107, 17}, L"&By name")}, "letter of the frame"},
        {{label, edit, Made(Kind::List, 5, {7, 40, 107, 60})}, "5 \"\" has no name"},
        {{Made(Kind::Static, 5, {5, 7, 107, 15}, L"Name:")}, "margin"},
        {{label, Made(Kind::Edit, 5, {7, 16, 107, 30})}, "below its label"},
        {{ok, Made(Kind::Push, 5, {141, 79, 193, 93}, L"Help")}, "beside"},
        {{Made(Kind::Push, 5, {7, 7, 57, 20}, L"Help")}, "14 high"},
    };
    for (const auto& fault : faults)
        EXPECT_NE(complaints(fault.controls).find(fault.complaint), std::string::npos) << fault.complaint;
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

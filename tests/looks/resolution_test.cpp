// Windows that come to a monitor of another resolution. The platform of the tests knows only one, so the
// tests send what Windows sends, and scale what Windows scales by itself.
#include <windows.h>

#include <commctrl.h>

#include "manager/ManagerTest.h"
#include "wizard/WizardTest.h"

namespace recoveryui::test {
namespace {

constexpr UINT kDpiChangedAfterParent = 0x02E3;
constexpr int kDpi = 144;

int Larger(int pixels) {
    return MulDiv(pixels, kDpi, 96);
}

void MoveToMonitor(UserScreen& screen, HWND window) {
    const RECT place = PlaceOf(window);
    const RECT wanted{place.left, place.top, place.left + Larger(place.right - place.left),
                      place.top + Larger(place.bottom - place.top)};
    screen.Do([&] {
        SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(kDpi, kDpi), reinterpret_cast<LPARAM>(&wanted));
        for (const HWND child : Descendants(window)) SendMessageW(child, kDpiChangedAfterParent, 0, 0);
        SetWindowPos(window, nullptr, 0, 0, wanted.right - wanted.left, wanted.bottom - wanted.top,
                     SWP_NOMOVE | SWP_NOZORDER);
    });
}

LOGFONTW FontOf(UserScreen& screen, HWND window) {
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HFONT>(screen.Ask(window, WM_GETFONT)), sizeof font, &font);
    return font;
}

SIZE SizeOf(HBITMAP bitmap) {
    BITMAP info{};
    GetObjectW(bitmap, sizeof info, &info);
    return {info.bmWidth, info.bmHeight};
}

int IconSize(UserScreen& screen, HWND button) {
    ICONINFO info{};
    GetIconInfo(reinterpret_cast<HICON>(screen.Ask(button, BM_GETIMAGE, IMAGE_ICON)), &info);
    const int size = SizeOf(info.hbmColor).cx;
    DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
    return size;
}

TEST_F(WizardTest, APageFollowsTheResolutionWithTitleIconsAndPicture) {
    Edit(New<IUnknown>(L"Vantrel.PopUpRecoveryTrigger").Get());
    Run([&](UserScreen& screen, HWND wizard) {
        NextUntil(screen, wizard, L"Specify Pop-up Window Conditions");
        const HWND title = screen.Control(wizard, IDC_PAGE_TITLE),
                   hand = screen.Control(wizard, IDC_POPUP_HAND);
        const HWND frame = screen.Control(wizard, IDC_PAGE_BITMAP);
        const auto picture = [&] {
            return SizeOf(reinterpret_cast<HBITMAP>(screen.Ask(frame, STM_GETIMAGE, IMAGE_BITMAP)));
        };
        const SIZE small = picture();
        ASSERT_GT(small.cx, 0) << "the page shows no picture";
        const int icon = IconSize(screen, hand);
        screen.Do([&] {
            SetWindowPos(frame, nullptr, 0, 0, Larger(small.cx), Larger(small.cy), SWP_NOMOVE | SWP_NOZORDER);
        });
        MoveToMonitor(screen, wizard);
        const LOGFONTW font = FontOf(screen, title);
        EXPECT_EQ(font.lfHeight, -MulDiv(10, kDpi, 72));
        EXPECT_EQ(font.lfWeight, FW_BOLD);
        EXPECT_STREQ(font.lfFaceName, FontOf(screen, screen.Page(wizard)).lfFaceName);
        EXPECT_EQ(IconSize(screen, hand), Larger(icon));
        EXPECT_EQ(picture().cx, Larger(small.cx));
        EXPECT_EQ(picture().cy, Larger(small.cy));
    });
}

TEST_F(ManagerTest, FollowsTheResolutionWithIconsColumnsAndLayout) {
    const std::wstring file = MakePopUps(L"a.trs", {L"One"});
    Manage([&](UserScreen& screen, HWND manager) {
        OpenFile(screen, manager, file);
        const HWND list = screen.Control(manager, IDC_MANAGER_LIST),
                   close = screen.Control(manager, IDCANCEL);
        const auto icon = [&] {
            int width = 0, height = 0;
            ImageList_GetIconSize(
                reinterpret_cast<HIMAGELIST>(screen.Ask(list, LVM_GETIMAGELIST, LVSIL_SMALL)), &width,
                &height);
            return width;
        };
        const auto smallest = [&] {
            MINMAXINFO info{};
            screen.Do([&] { SendMessageW(manager, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info)); });
            return info.ptMinTrackSize;
        };
        const auto gap = [&] {
            RECT client{};
            GetClientRect(manager, &client);
            return client.right - PlaceOf(close, manager).right;
        };
        const int iconBefore = icon(), column = ListView_GetColumnWidth(list, 0);
        const LONG gapBefore = gap();
        const POINT before = smallest();
        MoveToMonitor(screen, manager);
        EXPECT_EQ(icon(), Larger(iconBefore));
        EXPECT_EQ(smallest().x, Larger(before.x));
        EXPECT_NEAR(gap(), Larger(gapBefore), 4) << "the frame of the window stays as wide as it was";
        EXPECT_GT(ListView_GetColumnWidth(list, 0), Larger(column) - 20);
    });
}

}  // namespace
}  // namespace recoveryui::test

// The top-level windows of this process, from any thread: found, described and closed without ever
// waiting for a window that does not answer.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace recoveryui::test {

std::string Utf8(std::wstring_view text);

std::vector<HWND> TopLevelWindows();
std::vector<HWND> Descendants(HWND window);
std::wstring ClassOf(HWND window);
// Its place on the screen, or in another window's client area.
RECT PlaceOf(HWND window, HWND in = nullptr);
// An open message box, whose text has a number of its own; null when there is none.
inline constexpr int kBoxText = 0xFFFF;
HWND FindBox();
// Empty when the window does not answer in time.
std::wstring TextOf(HWND window);

// The windows of this process but the system's own, each ' window <class> "<text>"'.
std::string WindowsLeft();

// The text in the clipboard.
std::wstring ClipboardText();

// Every visible window with its controls, for the report of a failed test.
std::string DescribeWindows();
// Answers every dialog that can be answered with the most harmless button, and closes the rest.
void CloseWindows();

// A picture of one window, also when others cover it and without a display.
bool SaveBmp(HWND window, const std::wstring& path);

// Ends the process with a report when one test takes longer than this.
void StartWatchdog(unsigned seconds);
void RestartWatchdog();
// A crash is reported with its place and ends the process at once.
void ReportCrashes();

}  // namespace recoveryui::test

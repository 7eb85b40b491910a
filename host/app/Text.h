// Texts of the host's string table, and message boxes under the product's name.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <string>
#include <string_view>

namespace tovarin {

// Empty when there is no such string.
std::wstring LoadText(int id);
// The string with each "%s" replaced by the next argument.
std::wstring FormatText(int id, std::initializer_list<std::wstring_view> arguments);
// A window's text, of any length.
std::wstring TextOf(HWND window);

// Flags and result are MessageBox's.
int ShowMessage(HWND owner, const std::wstring& text, UINT flags = MB_OK | MB_ICONEXCLAMATION);
// For a catch block: tells the user what went wrong.
void ReportException(HWND owner) noexcept;

}  // namespace tovarin

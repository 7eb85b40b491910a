// What is wrong with the looks of a dialog: each check gives its complaints, one per line, empty for none.
#pragma once

#include <string>

#include "looks/Screen.h"

namespace recoveryui::looks {

// Texts that do not fit into their controls.
std::wstring Clipped(const Screen& screen, const Ruler& ruler);
// Controls that cover each other, or leave the dialog.
std::wstring Overlapping(const Screen& screen);
// Tab stops that are not in reading order, be it by rows or by columns.
std::wstring OutOfOrder(const Screen& screen);
// Mnemonics that two controls share; the frame around a page brings letters of its own.
std::wstring Ambiguous(const Screen& screen, const std::wstring& frameLetters = {});
// Controls that a screen reader could not name.
std::wstring Nameless(const Screen& screen);
// Margins, gaps and sizes that are not those of every dialog. Dialog units only.
std::wstring OffGrid(const Screen& screen);
// In an open window: controls that a screen reader names otherwise than the screen does.
std::wstring Unspoken(const Screen& screen);
// In an open window: controls that no key reaches, and a focus where no key is taken.
std::wstring Unreachable(const Screen& screen, HWND dialog);

// All that can be said of an open window and the pages in it, in its present state.
std::wstring ComplaintsAbout(HWND window);

}  // namespace recoveryui::looks

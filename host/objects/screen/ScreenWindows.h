// Windows of any process: which one lies under a point, and what can be learnt about it without ever
// waiting for an application that does not answer.
#pragma once

#include <windows.h>

#include <span>
#include <string>

#include "objects/screen/ObjectIdentity.h"

namespace tovarin {

// The innermost visible window under a point of the screen, disabled and group-covered controls included;
// null over the bare desktop. `except` are passed over.
HWND InnermostWindowAt(POINT point, std::span<const HWND> except = {});

// Null for a top-level window.
HWND ParentOf(HWND window) noexcept;

// With "\r\n" as the window gives it; empty when it does not answer.
std::wstring WindowText(HWND window);

// The window's own text and that of its visible labels, line by line.
std::wstring VisibleText(HWND window);

WindowFacts FactsOf(HWND window);

}  // namespace tovarin

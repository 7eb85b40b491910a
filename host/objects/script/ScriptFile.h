// The text of a script file, whichever of the usual encodings it is in.
#pragma once

#include <windows.h>

#include <string>

namespace tovarin {

// UTF-8 and UTF-16 by their marks, else the ANSI code page. E_INVALIDARG for what is no text in the
// encoding that it claims; storage codes when it cannot be read.
[[nodiscard]] HRESULT ReadScript(HANDLE file, std::wstring& text);

}  // namespace tovarin

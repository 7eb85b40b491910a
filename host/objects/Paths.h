// Paths of any length, and what stands at their end.
#pragma once

#include <windows.h>

#include <string>

namespace tovarin {

// Absolute, with "." and ".." resolved; the path itself when the platform refuses it.
std::wstring FullPath(const std::wstring& path);

// The path as the platform's file functions take it whatever its length.
std::wstring LongPath(const std::wstring& path);

bool IsFile(const std::wstring& path);
// The structured-storage code for a failed file operation.
HRESULT StorageCode(DWORD error) noexcept;

}  // namespace tovarin

#include "objects/Paths.h"

namespace tovarin {
namespace {
// Folders must leave room for a short file name, so theirs is the smaller limit.
constexpr size_t kShortPath = 248;
}  // namespace

std::wstring FullPath(const std::wstring& path) {
    std::wstring full(path.size() + kShortPath, L'\0');
    for (;;) {
        const auto size = static_cast<DWORD>(full.size());
        const DWORD length = GetFullPathNameW(path.c_str(), size, full.data(), nullptr);
        if (length == 0) return path;
        full.resize(length);
        if (length < size) return full;
    }
}

std::wstring LongPath(const std::wstring& path) {
    if (path.size() < kShortPath || path.starts_with(L"\\\\?\\")) return path;
    const std::wstring full = FullPath(path);
    return full.starts_with(L"\\\\") ? L"\\\\?\\UNC" + full.substr(1) : L"\\\\?\\" + full;
}

bool IsFile(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(LongPath(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

HRESULT StorageCode(DWORD error) noexcept {
    switch (error) {
        case ERROR_FILE_NOT_FOUND: return STG_E_FILENOTFOUND;
        case ERROR_PATH_NOT_FOUND:
        case ERROR_BAD_PATHNAME:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
        case ERROR_INVALID_DRIVE: return STG_E_PATHNOTFOUND;
        case ERROR_INVALID_NAME:
        case ERROR_FILENAME_EXCED_RANGE: return STG_E_INVALIDNAME;
        case ERROR_ACCESS_DENIED:
        case ERROR_WRITE_PROTECT:
        case ERROR_NETWORK_ACCESS_DENIED: return STG_E_ACCESSDENIED;
        case ERROR_SHARING_VIOLATION: return STG_E_SHAREVIOLATION;
        case ERROR_LOCK_VIOLATION: return STG_E_LOCKVIOLATION;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL: return STG_E_MEDIUMFULL;
        case ERROR_FILE_EXISTS:
        case ERROR_ALREADY_EXISTS: return STG_E_FILEALREADYEXISTS;
        default: return HRESULT_FROM_WIN32(error);
    }
}

}  // namespace tovarin

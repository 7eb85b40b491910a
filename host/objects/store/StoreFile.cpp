#include "objects/store/StoreFile.h"

#include <algorithm>

#include "objects/Paths.h"
#include "objects/store/StoreFormat.h"

namespace tovarin {
namespace {

constexpr int kReplaceAttempts = 20;
constexpr DWORD kPauseMilliseconds = 25;
constexpr DWORD kChunk = 1u << 20;

HRESULT LastCode() noexcept {
    return StorageCode(GetLastError());
}

HRESULT ReadAll(HANDLE file, std::string& bytes) {
    LARGE_INTEGER size{}, start{};
    if (!GetFileSizeEx(file, &size) || !SetFilePointerEx(file, start, nullptr, FILE_BEGIN)) return LastCode();
    // One byte more than the limit is enough to be refused as too large.
    bytes.resize(static_cast<size_t>(std::min<LONGLONG>(size.QuadPart, store::kMostBytes + 1)));
    for (size_t at = 0; at < bytes.size();) {
        DWORD read = 0;
        const DWORD wanted = static_cast<DWORD>(std::min<size_t>(bytes.size() - at, kChunk));
        if (!ReadFile(file, bytes.data() + at, wanted, &read, nullptr)) return LastCode();
        if (read == 0) bytes.resize(at);
        at += read;
    }
    return S_OK;
}

// The name of the new file beside the old one: short, so that it fits wherever the old one does, and the
// same each time, so that the leavings of a crash are overwritten by the next save.
std::wstring FreshName(const std::wstring& path) {
    const size_t slash = path.find_last_of(L"\\/");
    const size_t name = slash == std::wstring::npos ? 0 : slash + 1;
    std::uint64_t hash = 14695981039346656037u;
    for (wchar_t letter : path.substr(name)) hash = (hash ^ letter) * 1099511628211u;
    std::wstring fresh = path.substr(0, name) + L"~trs";
    for (int shift = 60; shift >= 0; shift -= 4) fresh += L"0123456789abcdef"[hash >> shift & 15];
    return fresh + L".tmp";
}

// The file stays open: until it is in its place nobody else can write it, nor put another under its name.
HRESULT WriteFresh(const std::wstring& fresh, std::string_view bytes, std::shared_ptr<void>& file) {
    const HANDLE opened = CreateFileW(LongPath(fresh).c_str(), GENERIC_WRITE, FILE_SHARE_DELETE, nullptr,
                                      CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (opened == INVALID_HANDLE_VALUE) return LastCode();
    file.reset(opened, &CloseHandle);
    const HRESULT hr = WriteFlushed(opened, bytes);
    if (FAILED(hr)) DeleteFileW(LongPath(fresh).c_str());
    return hr;
}

}  // namespace

HRESULT WriteFlushed(HANDLE file, std::string_view bytes) noexcept {
    while (!bytes.empty()) {
        DWORD written = 0;
        const DWORD wanted = static_cast<DWORD>(std::min<size_t>(bytes.size(), kChunk));
        if (!WriteFile(file, bytes.data(), wanted, &written, nullptr)) return LastCode();
        if (written == 0) return STG_E_MEDIUMFULL;
        bytes.remove_prefix(written);
    }
    return FlushFileBuffers(file) ? S_OK : LastCode();
}

HRESULT StoreFile::Open(std::wstring_view path, bool readOnly, std::string& bytes) {
    if (path.empty() || path.find(L'\0') != std::wstring_view::npos) return STG_E_INVALIDNAME;
    StoreFile opened;
    opened.whenFree = whenFree;
    opened.path_ = FullPath(std::wstring(path));
    opened.readOnly_ = readOnly;
    Handle file;
    if (readOnly) {
        file = OpenHandle(opened.path_, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
        if (!file) return LastCode();
        if (GetFileType(file.get()) != FILE_TYPE_DISK) return STG_E_ACCESSDENIED;
    } else {
        HRESULT hr = S_OK;
        if (taken_ && SameFile(path_, opened.path_)) {
            opened.taken_ = taken_;
        } else {
            hr = Take(opened.path_, opened.taken_);
        }
        if (FAILED(hr)) return hr;
        file = opened.taken_;
    }
    opened.stamp_ = StampOf(opened.path_);
    const HRESULT hr = ReadAll(file.get(), bytes);
    if (SUCCEEDED(hr)) *this = std::move(opened);
    return hr;
}

HRESULT StoreFile::Save(std::wstring_view path, std::string_view bytes) {
    if (path.find(L'\0') != std::wstring_view::npos) return STG_E_INVALIDNAME;
    const std::wstring target = path.empty() ? path_ : FullPath(std::wstring(path));
    if (target.empty()) return STG_E_INVALIDNAME;
    const bool same = !path_.empty() && SameFile(path_, target);
    if (same && readOnly_) return STG_E_ACCESSDENIED;

    Handle taken = same ? taken_ : nullptr;
    if (!taken) {
        const HRESULT hr = Take(target, taken);
        if (FAILED(hr) && hr != STG_E_FILENOTFOUND) return hr;
        // The file was lost to another editor during an earlier save; what that one wrote stays.
        if (same && taken && StampOf(target) != stamp_) return STG_E_NOTCURRENT;
    }
    const std::wstring fresh = FreshName(target);
    Handle file;
    HRESULT hr = WriteFresh(fresh, bytes, file);
    if (FAILED(hr)) return hr;
    if (same) taken_.reset();
    hr = Replace(target, fresh, file, taken);
    const bool replaced = !file;
    if (same) taken_ = taken;
    if (same && replaced) stamp_ = StampOf(path_);
    if (FAILED(hr)) {
        if (!replaced) DeleteFileW(LongPath(fresh).c_str());
        return hr;
    }
    path_ = target;
    readOnly_ = false;
    taken_ = std::move(taken);
    stamp_ = StampOf(path_);
    return S_OK;
}

// The platform replaces no file that is open, so it is let go for the instant of the replacement. Whoever
// takes it then keeps it: before the replacement with the old content, right after it with the new one.
// Readers are waited for, a little.
HRESULT StoreFile::Replace(const std::wstring& path, const std::wstring& fresh, Handle& file, Handle& taken) {
    const Stamp before = StampOf(path);
    const DWORD flags = taken ? MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH : MOVEFILE_WRITE_THROUGH;
    for (int attempt = 1;; ++attempt) {
        taken.reset();
        if (whenFree) whenFree(false);
        const bool replaced = MoveFileExW(LongPath(fresh).c_str(), LongPath(path).c_str(), flags) != FALSE;
        const DWORD error = GetLastError();
        if (replaced) file.reset();
        if (whenFree && replaced) whenFree(true);
        const HRESULT retaken = Take(path, taken);
        if (replaced || (FAILED(retaken) && retaken != STG_E_FILENOTFOUND)) return retaken;
        const bool held = error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION;
        if (!held) return StorageCode(error);
        // Whoever held it may have saved, and let it go again.
        if (taken && StampOf(path) != before) return STG_E_NOTCURRENT;
        if (attempt == kReplaceAttempts) return taken ? STG_E_SHAREVIOLATION : StorageCode(error);
        Sleep(kPauseMilliseconds);
    }
}

StoreFile::Handle StoreFile::OpenHandle(const std::wstring& path, DWORD access, DWORD share) {
    const HANDLE file = CreateFileW(LongPath(path).c_str(), access, share, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    return file == INVALID_HANDLE_VALUE ? Handle() : Handle(file, &CloseHandle);
}

HRESULT StoreFile::Take(const std::wstring& path, Handle& taken) {
    taken.reset();
    // An administrator may write where the attribute says no; the attribute is the owner's word.
    const DWORD attributes = GetFileAttributesW(LongPath(path).c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && attributes & FILE_ATTRIBUTE_READONLY)
        return STG_E_ACCESSDENIED;
    Handle file = OpenHandle(path, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ);
    if (!file) return LastCode();
    if (GetFileType(file.get()) != FILE_TYPE_DISK) return STG_E_ACCESSDENIED;
    taken = std::move(file);
    return S_OK;
}

bool StoreFile::SameFile(const std::wstring& first, const std::wstring& second) {
    if (CompareStringOrdinal(first.c_str(), -1, second.c_str(), -1, TRUE) == CSTR_EQUAL) return true;
    BY_HANDLE_FILE_INFORMATION files[2]{};
    const std::wstring* paths[] = {&first, &second};
    for (int i = 0; i < 2; ++i) {
        const Handle file = OpenHandle(*paths[i], 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
        if (!file || !GetFileInformationByHandle(file.get(), &files[i])) return false;
    }
    return files[0].dwVolumeSerialNumber == files[1].dwVolumeSerialNumber &&
           files[0].nFileIndexHigh == files[1].nFileIndexHigh &&
           files[0].nFileIndexLow == files[1].nFileIndexLow;
}

StoreFile::Stamp StoreFile::StampOf(const std::wstring& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!GetFileAttributesExW(LongPath(path).c_str(), GetFileExInfoStandard, &data)) return {};
    const auto join = [](DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; };
    return {join(data.nFileSizeHigh, data.nFileSizeLow),
            join(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime)};
}

}  // namespace tovarin

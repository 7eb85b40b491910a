#include "objects/script/ScriptFile.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "objects/Paths.h"

namespace tovarin {
namespace {

constexpr LONGLONG kMostBytes = 256 << 20;
constexpr DWORD kChunk = 1 << 20;

HRESULT ReadBytes(HANDLE file, std::string& bytes) {
    LARGE_INTEGER size{};
    if (GetFileType(file) != FILE_TYPE_DISK) return STG_E_ACCESSDENIED;
    if (!GetFileSizeEx(file, &size)) return StorageCode(GetLastError());
    if (size.QuadPart > kMostBytes) return E_INVALIDARG;
    bytes.resize(static_cast<size_t>(size.QuadPart));
    for (size_t at = 0; at < bytes.size();) {
        DWORD read = 0;
        const auto wanted = static_cast<DWORD>(std::min<size_t>(bytes.size() - at, kChunk));
        if (!ReadFile(file, bytes.data() + at, wanted, &read, nullptr)) return StorageCode(GetLastError());
        if (read == 0) bytes.resize(at);
        at += read;
    }
    return S_OK;
}

HRESULT FromCodePage(UINT codePage, std::string_view bytes, std::wstring& text) {
    const DWORD flags = codePage == CP_UTF8 ? MB_ERR_INVALID_CHARS : 0;
    const int size = static_cast<int>(bytes.size());
    const int length = MultiByteToWideChar(codePage, flags, bytes.data(), size, nullptr, 0);
    text.resize(static_cast<size_t>(length));
    const bool done =
        size == 0 || MultiByteToWideChar(codePage, flags, bytes.data(), size, text.data(), length) > 0;
    return done ? S_OK : E_INVALIDARG;
}

HRESULT FromUtf16(std::string_view bytes, bool bigEndian, std::wstring& text) {
    if (bytes.size() % sizeof(wchar_t) != 0) return E_INVALIDARG;
    text.resize(bytes.size() / sizeof(wchar_t));
    std::memcpy(text.data(), bytes.data(), bytes.size());
    if (bigEndian) {
        for (wchar_t& unit : text) unit = static_cast<wchar_t>(unit << 8 | unit >> 8);
    }
    return S_OK;
}

}  // namespace

HRESULT ReadScript(HANDLE file, std::wstring& text) {
    std::string bytes;
    const HRESULT hr = ReadBytes(file, bytes);
    if (FAILED(hr)) return hr;
    const std::string_view all = bytes;
    if (all.starts_with("\xEF\xBB\xBF")) return FromCodePage(CP_UTF8, all.substr(3), text);
    if (all.starts_with("\xFF\xFE")) return FromUtf16(all.substr(2), false, text);
    if (all.starts_with("\xFE\xFF")) return FromUtf16(all.substr(2), true, text);
    return FromCodePage(CP_ACP, all, text);
}

}  // namespace tovarin

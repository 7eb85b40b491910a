#include "objects/services/UserDefaults.h"

#include <memory>
#include <vector>

namespace tovarin {
namespace {

struct CloseKey {
    using pointer = HKEY;
    void operator()(HKEY key) const { RegCloseKey(key); }
};
using Key = std::unique_ptr<HKEY, CloseKey>;

HRESULT Create(const std::wstring& path, Key& key) {
    HKEY opened = nullptr;
    const LSTATUS status = RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                                           nullptr, &opened, nullptr);
    if (status == ERROR_SUCCESS) key.reset(opened);
    return HRESULT_FROM_WIN32(static_cast<DWORD>(status));
}

std::optional<SettingValue> Decode(DWORD type, const std::vector<BYTE>& bytes) {
    if (type == REG_DWORD && bytes.size() == sizeof(std::int32_t)) {
        std::int32_t number = 0;
        memcpy(&number, bytes.data(), sizeof number);
        return number;
    }
    if (type != REG_SZ && type != REG_EXPAND_SZ) return std::nullopt;
    // Written by anyone: the terminator may be missing, and the size odd.
    std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
    if (!text.empty()) memcpy(text.data(), bytes.data(), text.size() * sizeof(wchar_t));
    if (text.ends_with(L'\0')) text.pop_back();
    return text;
}

}  // namespace

std::wstring UserDefaults::KeyOf(std::wstring_view branch) const {
    return branch.empty() ? path_ : path_ + L"\\" + std::wstring(branch);
}

HRESULT UserDefaults::MakeBranch(std::wstring_view branch) const {
    Key key;
    return Create(KeyOf(branch), key);
}

std::optional<SettingValue> UserDefaults::Read(std::wstring_view branch, std::wstring_view name) const {
    HKEY opened = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, KeyOf(branch).c_str(), 0, KEY_QUERY_VALUE, &opened) != ERROR_SUCCESS)
        return std::nullopt;
    const Key key(opened);
    const std::wstring value(name);
    std::vector<BYTE> bytes;
    for (;;) {
        DWORD type = REG_NONE, size = static_cast<DWORD>(bytes.size());
        const LSTATUS status = RegQueryValueExW(opened, value.c_str(), nullptr, &type, bytes.data(), &size);
        if (status != ERROR_SUCCESS && status != ERROR_MORE_DATA) return std::nullopt;
        const bool complete = status == ERROR_SUCCESS && size <= bytes.size();
        bytes.resize(size);
        if (complete) return Decode(type, bytes);
    }
}

HRESULT UserDefaults::Write(std::wstring_view branch, std::wstring_view name,
                            const SettingValue& value) const {
    Key key;
    const HRESULT hr = Create(KeyOf(branch), key);
    if (FAILED(hr)) return hr;
    const auto* const text = std::get_if<std::wstring>(&value);
    const void* const data = text ? static_cast<const void*>(text->c_str()) : &std::get<std::int32_t>(value);
    const size_t size = text ? (text->size() + 1) * sizeof(wchar_t) : sizeof(std::int32_t);
    return HRESULT_FROM_WIN32(
        static_cast<DWORD>(RegSetValueExW(key.get(), std::wstring(name).c_str(), 0, text ? REG_SZ : REG_DWORD,
                                          static_cast<const BYTE*>(data), static_cast<DWORD>(size))));
}

}  // namespace tovarin

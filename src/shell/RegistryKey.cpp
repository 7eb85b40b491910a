#include "shell/RegistryKey.h"

namespace recoveryui::shell {
namespace {
constexpr wchar_t kRefCount[] = L"RefCount";
}

RegistryKey OpenKey(HKEY parent, const std::wstring& path, REGSAM view, LSTATUS* status) {
    HKEY key = nullptr;
    const LSTATUS opened = RegOpenKeyExW(parent, path.c_str(), 0, KEY_ALL_ACCESS | view, &key);
    if (status) *status = opened;
    return opened == ERROR_SUCCESS ? RegistryKey(key) : RegistryKey();
}

RegistryKey CreateKey(HKEY parent, const std::wstring& path, LSTATUS* status) {
    HKEY key = nullptr;
    *status = RegCreateKeyExW(parent, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr);
    return *status == ERROR_SUCCESS ? RegistryKey(key) : RegistryKey();
}

LSTATUS WriteText(HKEY key, const std::wstring& name, const std::wstring& text) {
    return RegSetValueExW(key, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                          static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

DWORD ReadCount(HKEY key) {
    DWORD count = 0, type = 0, size = sizeof count;
    const LSTATUS status =
        RegQueryValueExW(key, kRefCount, nullptr, &type, reinterpret_cast<BYTE*>(&count), &size);
    return status == ERROR_SUCCESS && type == REG_DWORD ? count : 0;
}

LSTATUS WriteCount(HKEY key, DWORD count) {
    return RegSetValueExW(key, kRefCount, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&count), sizeof count);
}

DWORD TakeOne(HKEY key) {
    const DWORD count = ReadCount(key);
    if (count == 0) return 0;
    if (count == 1) {
        RegDeleteValueW(key, kRefCount);
    } else {
        WriteCount(key, count - 1);
    }
    return count - 1;
}

LSTATUS DeleteTree(HKEY parent, const std::wstring& path) {
    const LSTATUS status = RegDeleteTreeW(parent, path.c_str());
    return IsMissing(status) ? ERROR_SUCCESS : status;
}

}  // namespace recoveryui::shell

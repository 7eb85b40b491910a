// search_path add|remove FOLDER: the machine's PATH, of any length, with all else in it left as it is.
// Installers cut long texts off, which would cost the machine the rest of its PATH.
#include <windows.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace {

constexpr wchar_t kEnvironment[] = L"System\\CurrentControlSet\\Control\\Session Manager\\Environment";
constexpr wchar_t kName[] = L"Path";

bool IsFolder(std::wstring_view entry, std::wstring_view folder) {
    if (entry.ends_with(L'\\')) entry.remove_suffix(1);
    return CompareStringOrdinal(entry.data(), static_cast<int>(entry.size()), folder.data(),
                                static_cast<int>(folder.size()), TRUE) == CSTR_EQUAL;
}

std::wstring Without(std::wstring_view path, std::wstring_view folder) {
    std::wstring kept;
    bool isFirst = true;
    for (size_t begin = 0; begin <= path.size();) {
        const size_t end = std::min(path.find(L';', begin), path.size());
        const std::wstring_view entry = path.substr(begin, end - begin);
        begin = end + 1;
        if (IsFolder(entry, folder)) continue;
        if (!isFirst) kept += L';';
        kept += entry;
        isFirst = false;
    }
    return kept;
}

LSTATUS Change(bool add, std::wstring_view folder) {
    HKEY key = nullptr;
    LSTATUS status =
        RegOpenKeyExW(HKEY_LOCAL_MACHINE, kEnvironment, 0, KEY_QUERY_VALUE | KEY_SET_VALUE, &key);
    if (status != ERROR_SUCCESS) return status;
    DWORD type = REG_EXPAND_SZ, size = 0;
    status = RegQueryValueExW(key, kName, nullptr, &type, nullptr, &size);
    std::wstring path(size / sizeof(wchar_t), L'\0');
    if (status == ERROR_SUCCESS)
        status = RegQueryValueExW(key, kName, nullptr, &type, reinterpret_cast<BYTE*>(path.data()), &size);
    if (status == ERROR_FILE_NOT_FOUND) status = ERROR_SUCCESS;
    path.resize(std::wstring_view(path).find_last_not_of(L'\0') + 1);

    std::wstring wanted = Without(path, folder);
    if (add) wanted += (wanted.empty() ? L"" : L";") + std::wstring(folder);
    if (status == ERROR_SUCCESS && wanted != path) {
        status = wanted.empty()
                     ? RegDeleteValueW(key, kName)
                     : RegSetValueExW(key, kName, 0, type, reinterpret_cast<const BYTE*>(wanted.c_str()),
                                      static_cast<DWORD>((wanted.size() + 1) * sizeof(wchar_t)));
        SendMessageTimeoutW(HWND_BROADCAST, WM_SETTINGCHANGE, 0, reinterpret_cast<LPARAM>(L"Environment"),
                            SMTO_ABORTIFHUNG, 2000, nullptr);
    }
    RegCloseKey(key);
    return status;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 3) return ERROR_BAD_ARGUMENTS;
    return Change(std::wstring_view(arguments[1]) == L"add", arguments[2]);
}

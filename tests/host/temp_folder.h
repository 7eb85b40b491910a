// A folder of the test's own, removed with everything in it.
#pragma once

#include <windows.h>

#include <fstream>
#include <iterator>
#include <string>

#include "objects/Paths.h"

namespace tovarin {

class TempFolder {
public:
    TempFolder() {
        std::wstring temp(32768, L'\0');
        temp.resize(GetTempPathW(static_cast<DWORD>(temp.size()), temp.data()));
        // Short file names would not compare equal to full ones.
        path_ = FullPath(temp + L"recovery files \x4e2d\xfc " + std::to_wstring(GetCurrentProcessId()) +
                         L"-" + std::to_wstring(GetTickCount64()));
        CreateDirectoryW(path_.c_str(), nullptr);
    }
    ~TempFolder() { Remove(path_); }

    std::wstring operator/(const std::wstring& name) const { return path_ + L"\\" + name; }
    const std::wstring& Path() const { return path_; }
    // Files and folders in it.
    int Count() const {
        int count = 0;
        Each(path_, [&](const std::wstring&, DWORD) { ++count; });
        return count;
    }

    static std::string Read(const std::wstring& path) {
        std::ifstream file(LongPath(path).c_str(), std::ios::binary);
        return file ? std::string(std::istreambuf_iterator<char>(file), {}) : "no file";
    }
    static void Write(const std::wstring& path, const std::string& bytes) {
        std::ofstream(LongPath(path).c_str(), std::ios::binary) << bytes;
    }

private:
    template <class Visit>
    static void Each(const std::wstring& folder, Visit visit) {
        WIN32_FIND_DATAW found{};
        const HANDLE search = FindFirstFileW((LongPath(folder) + L"\\*").c_str(), &found);
        if (search == INVALID_HANDLE_VALUE) return;
        do {
            const std::wstring name = found.cFileName;
            if (name != L"." && name != L"..") visit(folder + L"\\" + name, found.dwFileAttributes);
        } while (FindNextFileW(search, &found));
        FindClose(search);
    }
    static void Remove(const std::wstring& folder) {
        Each(folder, [](const std::wstring& path, DWORD attributes) {
            SetFileAttributesW(LongPath(path).c_str(), FILE_ATTRIBUTE_NORMAL);
            attributes& FILE_ATTRIBUTE_DIRECTORY ? Remove(path) : void(DeleteFileW(LongPath(path).c_str()));
        });
        RemoveDirectoryW(LongPath(folder).c_str());
    }

    std::wstring path_;
};

}  // namespace tovarin

// A folder of the test's own, removed with everything in it.
#pragma once

#include <windows.h>

#include <filesystem>
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
    // Its files may be too deep for short paths, and read-only.
    ~TempFolder() {
        std::error_code ignored;
        const std::filesystem::path all = L"\\\\?\\" + path_;
        for (const auto& each : std::filesystem::recursive_directory_iterator(all, ignored))
            SetFileAttributesW(each.path().c_str(), FILE_ATTRIBUTE_NORMAL);
        std::filesystem::remove_all(all, ignored);
    }

    std::wstring operator/(const std::wstring& name) const { return path_ + L"\\" + name; }
    const std::wstring& Path() const { return path_; }
    // Files and folders in it.
    auto Count() const {
        return std::distance(std::filesystem::directory_iterator(path_),
                             std::filesystem::directory_iterator());
    }

    static std::string Read(const std::wstring& path) {
        std::ifstream file(LongPath(path).c_str(), std::ios::binary);
        return file ? std::string(std::istreambuf_iterator<char>(file), {}) : "no file";
    }
    static void Write(const std::wstring& path, const std::string& bytes) {
        std::ofstream(LongPath(path).c_str(), std::ios::binary) << bytes;
    }

private:
    std::wstring path_;
};

}  // namespace tovarin

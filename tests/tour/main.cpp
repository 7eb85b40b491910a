// The tour: plays the product's stories in the real windows and leaves their pictures and files.
//   tour.exe folder [test options]
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdio>
#include <string>

#include "harness/ProcessWindows.h"

int wmain(int count, wchar_t** arguments) {
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    if (count < 2) {
        std::puts("usage: tour.exe folder");
        return 2;
    }
    std::wstring folder(32768, L'\0');
    folder.resize(GetFullPathNameW(arguments[1], static_cast<DWORD>(folder.size()), folder.data(), nullptr));
    CreateDirectoryW(folder.c_str(), nullptr);
    if (GetFileAttributesW(folder.c_str()) == INVALID_FILE_ATTRIBUTES) {
        std::printf("the folder cannot be made: %s\n", recoveryui::test::Utf8(folder).c_str());
        return 2;
    }
    SetEnvironmentVariableW(L"RECOVERYUI_SHOTS", folder.c_str());
    _wputenv((L"RECOVERYUI_SHOTS=" + folder).c_str());
    recoveryui::test::ReportCrashes();
    testing::InitGoogleTest(&count, arguments);
    recoveryui::test::StartWatchdog(240);
    return RUN_ALL_TESTS();
}

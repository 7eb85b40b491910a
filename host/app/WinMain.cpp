// TovarinHost.exe [test file]
#include <windows.h>

#include <shellapi.h>

#include "app/Host.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int show) {
    tovarin::HostOptions options;
    options.show = show;
    int count = 0;
    LPWSTR* const words = CommandLineToArgvW(GetCommandLineW(), &count);
    if (words && count > 1) options.testFile = words[1];
    LocalFree(words);
    return tovarin::RunHost(options);
}

// Keeps the desktop of a test slot open. Wine closes a desktop that nobody uses and takes a second for it,
// in which the next test would wait.
#include <windows.h>

#include <cstdio>

int main() {
    GetDesktopWindow();
    std::puts("held");
    std::fflush(stdout);
    Sleep(INFINITE);
}

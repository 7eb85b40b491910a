#pragma once

#include <windows.h>

namespace recoveryui::test {

// What this process has worked; other programs on the machine do not count.
inline ULONGLONG ProcessorMilliseconds() {
    FILETIME created, exited, kernel, user;
    if (!GetProcessTimes(GetCurrentProcess(), &created, &exited, &kernel, &user)) return 0;
    const auto whole = [](const FILETIME& time) {
        return ULONGLONG{time.dwHighDateTime} << 32 | time.dwLowDateTime;
    };
    return (whole(user) + whole(kernel)) / 10'000;
}

}  // namespace recoveryui::test

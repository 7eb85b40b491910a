#include "app/JournalListener.h"

#include <cstdio>
#include <utility>

#include "com/Bstr.h"

namespace tovarin {
namespace com = recoveryui::com;
namespace {

std::wstring Now() {
    SYSTEMTIME time{};
    GetLocalTime(&time);
    wchar_t text[16] = L"";
    swprintf(text, std::size(text), L"%02u:%02u:%02u.%03u", time.wHour, time.wMinute, time.wSecond,
             time.wMilliseconds);
    return text;
}

}  // namespace

HRESULT JournalListener::OnCall(BSTR object, BSTR operation, BSTR arguments, BSTR result) noexcept {
    return com::Guarded([&] {
        JournalRow row{{Now(), std::wstring(com::ViewOf(object)), std::wstring(com::ViewOf(operation)),
                        std::wstring(com::ViewOf(arguments)), std::wstring(com::ViewOf(result))}};
        const std::lock_guard lock(mutex_);
        waiting_.push_back(std::move(row));
        if (waiting_.size() == 1) PostMessageW(window_, message_, 0, 0);
    });
}

std::vector<JournalRow> JournalListener::Take() {
    const std::lock_guard lock(mutex_);
    return std::exchange(waiting_, {});
}

}  // namespace tovarin

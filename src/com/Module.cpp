#include "com/Module.h"

#include <atomic>

extern "C" IMAGE_DOS_HEADER __ImageBase;  // NOLINT(bugprone-reserved-identifier): the linker's name

namespace recoveryui::com {
namespace {
std::atomic<LONG> objects{0};
std::atomic<LONG> locks{0};
}  // namespace

HINSTANCE Module::Instance() noexcept {
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

std::wstring Module::FileName() {
    std::wstring path(256, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(Instance(), path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

void Module::AddObject() noexcept {
    ++objects;
}
void Module::RemoveObject() noexcept {
    --objects;
}
void Module::Lock(bool lock) noexcept {
    lock ? ++locks : --locks;
}
bool Module::CanUnload() noexcept {
    return objects == 0 && locks == 0;
}

}  // namespace recoveryui::com

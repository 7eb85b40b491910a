// The module that this code was linked into: its handle, its file, and what keeps it loaded.
#pragma once

#include <windows.h>

#include <string>

namespace recoveryui::com {

class Module {
public:
    // The handle for resources: this DLL's, never the process's executable.
    static HINSTANCE Instance() noexcept;
    // Full path, of any length.
    static std::wstring FileName();

    // Live COM objects and windows of this module.
    static void AddObject() noexcept;
    static void RemoveObject() noexcept;
    static void Lock(bool lock) noexcept;
    // True when nothing lives and nobody holds a lock.
    static bool CanUnload() noexcept;
};

// A live thing of the module: a member that counts as long as its owner exists.
class LiveObject {
public:
    LiveObject() noexcept { Module::AddObject(); }
    LiveObject(const LiveObject&) noexcept : LiveObject() {}
    LiveObject& operator=(const LiveObject&) noexcept = default;
    ~LiveObject() { Module::RemoveObject(); }
};

}  // namespace recoveryui::com

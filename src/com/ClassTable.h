// The creatable classes of a module as one table, and the class factory that serves them all.
#pragma once

#include <windows.h>

#include <span>

namespace recoveryui::com {

struct ClassEntry {
    const CLSID* clsid;
    const wchar_t* progId;  // version-independent; ".1" makes the version-dependent one
    const wchar_t* description;
    // A new object queried for an interface. The out-argument is never null.
    HRESULT (*create)(REFIID iid, void** object) noexcept;
};

// What DllGetClassObject answers. The table outlives every factory.
HRESULT GetClassObject(std::span<const ClassEntry> classes, REFCLSID clsid, REFIID iid,
                       void** factory) noexcept;

}  // namespace recoveryui::com

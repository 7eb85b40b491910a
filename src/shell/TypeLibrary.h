// The registration of the module's type library.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include "com/Ptr.h"
#include "shell/RegistryKey.h"

namespace recoveryui::shell {

class TypeLibrary {
public:
    // From the module's resources. Throws HResultError.
    TypeLibrary();

    // By the module's bare file name; tries a second time after a moment.
    [[nodiscard]] HRESULT Register() const;
    // Removes the library's version and its interfaces.
    [[nodiscard]] HRESULT Unregister() const;
    // The key that holds the count; empty when it cannot be opened.
    RegistryKey OpenPlatformKey() const;

private:
    std::wstring VersionKey() const;
    void RemoveInterfaces() const;

    com::Ptr<ITypeLib> library_;
    TLIBATTR attributes_{};
};

}  // namespace recoveryui::shell

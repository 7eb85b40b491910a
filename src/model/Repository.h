// One recovery file, through the host's repository object.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "HostInterfaces.h"
#include "com/Ptr.h"

struct IObjectRack;

namespace recoveryui::model {

// Releasing the last copy releases the file. Without an object every operation answers E_POINTER.
class Repository {
public:
    Repository() noexcept = default;

    // A new repository object that was given the rack; an untitled file must still be loaded.
    [[nodiscard]] static HRESULT Create(IObjectRack* rack, Repository& repository);

    explicit operator bool() const noexcept { return object_ != nullptr; }
    IRecoveryRepository* Get() const noexcept { return object_.Get(); }

    [[nodiscard]] HRESULT Load(const std::wstring& path, bool readOnly) const;
    // Empties the object into a new, untitled file.
    [[nodiscard]] HRESULT LoadUntitled() const { return Load({}, false); }
    [[nodiscard]] HRESULT Save(const std::wstring& path) const;

    // The names in file order; those read before a failure are kept.
    [[nodiscard]] HRESULT Names(std::vector<std::wstring>& names) const;
    // E_FAIL when there is no scenario of that name.
    [[nodiscard]] HRESULT Scenario(const std::wstring& name, com::Ptr<IUnknown>& scenario) const;
    [[nodiscard]] HRESULT Exists(const std::wstring& name, bool& exists) const;
    [[nodiscard]] HRESULT Add(IUnknown* scenario, const std::wstring& name, bool replace) const;
    [[nodiscard]] HRESULT Remove(const std::wstring& name) const;

private:
    com::Ptr<IRecoveryRepository> object_;
};

}  // namespace recoveryui::model

// The user's defaults for new tests: values of one key below HKEY_CURRENT_USER.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "objects/services/TestFile.h"

namespace tovarin {

class UserDefaults {
public:
    // The path has no root and no backslash at its end.
    explicit UserDefaults(std::wstring path) : path_(std::move(path)) {}

    const std::wstring& Path() const noexcept { return path_; }
    // Makes the key of a branch when there is none; whoever only opens keys finds it afterwards.
    HRESULT MakeBranch(std::wstring_view branch) const;
    // Texts and 32-bit numbers; anything else counts as no value.
    std::optional<SettingValue> Read(std::wstring_view branch, std::wstring_view name) const;
    HRESULT Write(std::wstring_view branch, std::wstring_view name, const SettingValue& value) const;

private:
    std::wstring KeyOf(std::wstring_view branch) const;

    std::wstring path_;
};

}  // namespace tovarin

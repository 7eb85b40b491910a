// The recovery settings that the host keeps for tests: the "ReplayRecovery" values of its options object.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "HostInterfaces.h"
#include "com/Ptr.h"

struct IObjectRack;

namespace recoveryui::model {

namespace options {
inline constexpr const wchar_t* kScenarios = L"RecoveryScenarios";
inline constexpr const wchar_t* kDefaultScenarios = L"RecoveryDefScenarios";
inline constexpr const wchar_t* kEnabled = L"Enabled";
inline constexpr const wchar_t* kManagerRecent = L"RecoveryManagerMRU";
// These two are values of the registry key that RecentListsKey names.
inline constexpr const wchar_t* kSettingsRecent = L"RecoverySettingsMRU";
inline constexpr const wchar_t* kLibrariesRecent = L"RecoveryFuncLibMRU";
}  // namespace options

class TestOptions {
public:
    enum class Store { CurrentTest, Defaults };

    // Nothing when the host offers no options or none of this branch.
    static std::optional<TestOptions> Fetch(IObjectRack* rack);

    // Nothing when there is no value of that type.
    std::optional<std::wstring> ReadText(const wchar_t* name) const;
    std::optional<std::int32_t> ReadInteger(const wchar_t* name) const;
    // Whether the value was stored.
    bool WriteText(const wchar_t* name, std::wstring_view text, Store store) const;
    bool WriteInteger(const wchar_t* name, std::int32_t number, Store store) const;

private:
    explicit TestOptions(com::Ptr<ITestOptions> values) noexcept : values_(std::move(values)) {}

    com::Ptr<ITestOptions> values_;
};

// The key of the recently-used lists, relative to HKEY_CURRENT_USER; nothing without host options.
std::optional<std::wstring> RecentListsKey(IObjectRack* rack);

}  // namespace recoveryui::model

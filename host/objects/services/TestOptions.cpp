#include "objects/services/TestOptions.h"

#include "objects/store/StoreFile.h"

namespace tovarin {
namespace {

constexpr std::wstring_view kGlobals = L"GlobalVariables";
constexpr std::wstring_view kScenarios = L"RecoveryScenarios";
constexpr std::wstring_view kDefaultScenarios = L"RecoveryDefScenarios";
constexpr std::wstring_view kEnabled = L"Enabled";
constexpr std::wstring_view kManagerRecent = L"RecoveryManagerMRU";

bool BelongsToUser(std::wstring_view name) {
    return name == kDefaultScenarios || name == kManagerRecent;
}

com::Variant ToVariant(const SettingValue& value) {
    if (const auto* text = std::get_if<std::wstring>(&value)) return com::Variant(*text);
    return com::Variant(static_cast<long>(std::get<std::int32_t>(value)));
}

SettingValue ToSetting(const VARIANT& given) {
    const com::Variant value = com::Variant::CopyOf(given);
    switch (value.Type()) {
        case VT_BSTR: return std::wstring(value.Text());
        case VT_BOOL: return std::int32_t{value.Get().boolVal != VARIANT_FALSE};
        case VT_I1:
        case VT_I2:
        case VT_I4:
        case VT_INT:
        case VT_UI1:
        case VT_UI2: {
            com::Variant number;
            com::Check(VariantChangeType(number.Put(), const_cast<VARIANT*>(&value.Get()), 0, VT_I4));
            return static_cast<std::int32_t>(number.Get().lVal);
        }
        default: throw com::HResultError(DISP_E_TYPEMISMATCH);
    }
}

std::optional<SettingValue> ReadSetting(const OptionValues& values, std::wstring_view branch,
                                        std::wstring_view name) {
    if (BelongsToUser(name)) return values.defaults.Read(branch, name);
    const auto list = values.test.find(branch);
    if (list == values.test.end()) return std::nullopt;
    const auto found = list->second.find(name);
    return found != list->second.end() ? std::optional(found->second) : std::nullopt;
}

HRESULT Give(VARIANT* out, com::Variant value) {
    *out = value.Detach();
    return S_OK;
}

}  // namespace

template <class Derived>
HRESULT OptionBranch<Derived>::GetOptionValue(BSTR section, BSTR name, VARIANT* value, long reserved1,
                                              long reserved2) noexcept {
    return JournalCall(Derived::kName, L"GetOptionValue", section, name, reserved1, reserved2)
        .Give(
            [&] {
                if (com::ViewOf(section) == kGlobals) {
                    const auto found = values_->globals.find(com::ViewOf(name));
                    if (found != values_->globals.end()) return Give(value, found->second);
                } else if (com::ViewOf(section).empty()) {
                    const auto found = ReadSetting(*values_, Derived::kBranch, com::ViewOf(name));
                    if (found) return Give(value, ToVariant(*found));
                }
                return DISP_E_MEMBERNOTFOUND;
            },
            value);
}

template <class Derived>
HRESULT OptionBranch<Derived>::SetOptionValue(BSTR section, BSTR name, VARIANT value, long toDefaults,
                                              long toTest, long reserved1, long reserved2,
                                              long reserved3) noexcept {
    return JournalCall(Derived::kName, L"SetOptionValue", section, name, value, toDefaults, toTest, reserved1,
                       reserved2, reserved3)
        .Answer([&] {
            const std::wstring key(com::ViewOf(name));
            if (key.empty()) return E_INVALIDARG;
            if (com::ViewOf(section) == kGlobals) {
                values_->globals.insert_or_assign(key, com::Variant::CopyOf(value));
                return S_OK;
            }
            if (!com::ViewOf(section).empty() || (!toDefaults && !toTest)) return E_INVALIDARG;
            const SettingValue setting = ToSetting(value);
            if (toDefaults) com::Check(values_->defaults.Write(Derived::kBranch, key, setting));
            if (toTest) {
                SettingList& list = values_->test[Derived::kBranch];
                const auto found = list.find(key);
                values_->modified = values_->modified || found == list.end() || found->second != setting;
                list.insert_or_assign(key, setting);
            }
            return S_OK;
        });
}

template <class Derived>
HRESULT OptionBranch<Derived>::GetSettingsRegistryPath(BSTR* path) noexcept {
    return JournalCall(Derived::kName, L"GetSettingsRegistryPath")
        .Give(
            [&] {
                // Whoever asks is about to open the branch's key, and never makes it.
                static_cast<void>(values_->defaults.MakeBranch(RecoveryOptions::kBranch));
                return com::CopyTo(path, values_->defaults.Path());
            },
            path);
}

template class OptionBranch<RecoveryOptions>;
template class OptionBranch<TestOptions>;

HRESULT RecoveryOptions::GetItem(VARIANT item, VARIANT* found) noexcept {
    return Call(L"GetItem", item).Give([] { return E_INVALIDARG; }, found);
}

HRESULT TestOptions::GetItem(VARIANT item, VARIANT* found) noexcept {
    return Call(L"GetItem", item)
        .Give(
            [&] {
                if (com::Variant::CopyOf(item).Text() != RecoveryOptions::kBranch) return E_INVALIDARG;
                const auto branch = RecoveryOptions::Make(values_);
                return Give(found, com::Variant(com::Query<IDispatch>(branch->KeepAlive().Get()).Get()));
            },
            found);
}

HRESULT TestOptions::SetSettingsRegistryPath(BSTR path) noexcept {
    if (com::ViewOf(path).empty()) return E_INVALIDARG;
    return com::Guarded([&] { values_->defaults = UserDefaults(std::wstring(com::ViewOf(path))); });
}

HRESULT TestOptions::NewTest() noexcept {
    return com::Guarded([&] {
        SettingList recovery;
        const UserDefaults& defaults = values_->defaults;
        const auto scenarios = defaults.Read(RecoveryOptions::kBranch, kDefaultScenarios);
        const auto enabled = defaults.Read(RecoveryOptions::kBranch, kEnabled);
        if (scenarios && std::holds_alternative<std::wstring>(*scenarios))
            recovery.emplace(kScenarios, *scenarios);
        if (enabled && std::holds_alternative<std::int32_t>(*enabled)) recovery.emplace(kEnabled, *enabled);
        values_->test.clear();
        values_->test.emplace(RecoveryOptions::kBranch, std::move(recovery));
        values_->modified = false;
        path_.clear();
        text_.clear();
    });
}

HRESULT TestOptions::OpenTest(BSTR path) noexcept {
    return com::Guarded([&] {
        const std::wstring file(com::ViewOf(path));
        std::string text;
        const HRESULT hr = StoreFile().Open(file, true, text);
        if (FAILED(hr)) return hr;
        auto settings = ReadTestFile(text);
        if (!settings) return STG_E_DOCFILECORRUPT;
        values_->test = std::move(*settings);
        values_->modified = false;
        path_ = file;
        text_ = std::move(text);
        return S_OK;
    });
}

HRESULT TestOptions::SaveTest(BSTR path) noexcept {
    return com::Guarded([&] {
        const std::wstring file = com::ViewOf(path).empty() ? path_ : std::wstring(com::ViewOf(path));
        if (file.empty()) return E_INVALIDARG;
        std::string text = WriteTestFile(values_->test, text_);
        const HRESULT hr = StoreFile().Save(file, text);
        if (FAILED(hr)) return hr;
        values_->modified = false;
        path_ = file;
        text_ = std::move(text);
        return S_OK;
    });
}

HRESULT TestOptions::GetTestPath(BSTR* path) noexcept {
    if (!path) return E_POINTER;
    return com::CopyTo(path, path_);
}

HRESULT TestOptions::IsModified(VARIANT_BOOL* modified) noexcept {
    if (!modified) return E_POINTER;
    *modified = values_->modified ? VARIANT_TRUE : VARIANT_FALSE;
    return S_OK;
}

}  // namespace tovarin

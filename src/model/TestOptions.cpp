#include "model/TestOptions.h"

#include "com/Variant.h"
#include "shell/Rack.h"

namespace recoveryui::model {
namespace {

constexpr const wchar_t* kBranch = L"ReplayRecovery";

com::Ptr<ITestOptions> HostOptions(IObjectRack* rack) {
    com::Ptr<ITestOptions> options;
    return SUCCEEDED(shell::Fetch(rack, L"TestOptions", options)) ? options : nullptr;
}

com::Variant Read(ITestOptions* values, const wchar_t* name) {
    com::Variant value;
    if (FAILED(values->GetOptionValue(com::Bstr(L"").Get(), com::Bstr(name).Get(), value.Put(), 0, 0)))
        return {};
    return value;
}

bool Write(ITestOptions* values, const wchar_t* name, const com::Variant& value, TestOptions::Store store) {
    const bool defaults = store == TestOptions::Store::Defaults;
    return SUCCEEDED(values->SetOptionValue(com::Bstr(L"").Get(), com::Bstr(name).Get(), value.Get(),
                                            defaults, !defaults, 0, 3, 0));
}

}  // namespace

std::optional<TestOptions> TestOptions::Fetch(IObjectRack* rack) {
    const com::Ptr<ITestOptions> options = HostOptions(rack);
    com::Variant item;
    if (!options || FAILED(options->GetItem(com::Variant(kBranch).Get(), item.Put())) ||
        item.Type() != VT_DISPATCH)
        return std::nullopt;
    com::Ptr<ITestOptions> values = com::Query<ITestOptions>(item.Object());
    if (!values) return std::nullopt;
    return TestOptions(std::move(values));
}

std::optional<std::wstring> TestOptions::ReadText(const wchar_t* name) const {
    const com::Variant value = Read(values_.Get(), name);
    if (value.Type() != VT_BSTR) return std::nullopt;
    return std::wstring(value.Text());
}

std::optional<std::int32_t> TestOptions::ReadInteger(const wchar_t* name) const {
    const com::Variant value = Read(values_.Get(), name);
    switch (value.Type()) {
        case VT_I2: return value.Get().iVal;
        case VT_I4: return static_cast<std::int32_t>(value.Get().lVal);
        default: return std::nullopt;
    }
}

bool TestOptions::WriteText(const wchar_t* name, std::wstring_view text, Store store) const {
    return Write(values_.Get(), name, com::Variant(text), store);
}

bool TestOptions::WriteInteger(const wchar_t* name, std::int32_t number, Store store) const {
    return Write(values_.Get(), name, com::Variant(static_cast<long>(number)), store);
}

std::optional<std::wstring> RecentListsKey(IObjectRack* rack) {
    const com::Ptr<ITestOptions> options = HostOptions(rack);
    com::Bstr path;
    if (!options || FAILED(options->GetSettingsRegistryPath(path.Put())) || path.View().empty())
        return std::nullopt;
    return path.Text() + L"\\" + kBranch;
}

}  // namespace recoveryui::model

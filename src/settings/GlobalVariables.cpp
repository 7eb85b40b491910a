#include "settings/GlobalVariables.h"

#include "com/Variant.h"

namespace recoveryui::settings {
namespace {

constexpr const wchar_t* kSection = L"GlobalVariables";

com::Variant Read(ITestOptions* settings, const wchar_t* name) {
    com::Variant value;
    if (FAILED(settings->GetOptionValue(com::Bstr(kSection).Get(), com::Bstr(name).Get(), value.Put(), 0, 0)))
        return {};
    return value;
}

}  // namespace

bool GlobalVariables::IsSet(const wchar_t* name) const {
    const com::Variant value = Read(settings_.Get(), name);
    return value.Type() == VT_I4 && value.Get().lVal != 0;
}

std::wstring GlobalVariables::Text(const wchar_t* name) const {
    return std::wstring(Read(settings_.Get(), name).Text());
}

bool GlobalVariables::Write(const wchar_t* name, std::int32_t value) const {
    const com::Variant number(static_cast<long>(value));
    return SUCCEEDED(settings_->SetOptionValue(com::Bstr(kSection).Get(), com::Bstr(name).Get(), number.Get(),
                                               0, 1, 0, 3, 0));
}

}  // namespace recoveryui::settings

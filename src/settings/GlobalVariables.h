#pragma once

#include <cstdint>
#include <string>

#include "HostInterfaces.h"
#include "com/Ptr.h"

namespace recoveryui::settings {

// The values that the host's settings frame shares with its pages, of the section "GlobalVariables".
class GlobalVariables {
public:
    static constexpr const wchar_t* kAlreadyInit = L"g_bAlreadyInit";
    static constexpr const wchar_t* kDirty = L"g_bDirty";
    static constexpr const wchar_t* kIsReadOnlyMode = L"g_bIsReadOnlyMode";
    static constexpr const wchar_t* kAllowApply = L"g_bAllowApply";
    static constexpr const wchar_t* kForceSORConfiguration = L"g_bForceSORConfiguration";
    static constexpr const wchar_t* kWasSORConfigured = L"g_bWasSORConfigured";
    static constexpr const wchar_t* kIsSORTabActive = L"g_bIsSORTabActive";
    static constexpr const wchar_t* kApplyRefusal = L"g_sApplyErrOkMsgBoxText";
    static constexpr const wchar_t* kCancelQuestion = L"g_sCancelErrYesNoMsgBoxText";

    explicit GlobalVariables(com::Ptr<ITestOptions> settings) noexcept : settings_(std::move(settings)) {}

    // Only a VT_I4 other than 0 is true.
    bool IsSet(const wchar_t* name) const;
    // Empty for what is no text.
    std::wstring Text(const wchar_t* name) const;
    // Whether the value was stored.
    bool Write(const wchar_t* name, std::int32_t value) const;

private:
    com::Ptr<ITestOptions> settings_;
};

}  // namespace recoveryui::settings

// The values that the settings frame and its pages share: section "GlobalVariables" of the test options.
#pragma once

#include <string>

#include "HostInterfaces.h"
#include "com/Ptr.h"

namespace tovarin {

// Reading without options gives 0 and "", writing does nothing.
class FrameValues {
public:
    explicit FrameValues(ITestOptions* options) : options_(options) {}

    bool IsSet(const wchar_t* name) const;
    void Set(const wchar_t* name, bool yes);
    std::wstring Text(const wchar_t* name) const;
    void SetText(const wchar_t* name, const std::wstring& text);

    ITestOptions* Options() const { return options_.Get(); }

private:
    recoveryui::com::Ptr<ITestOptions> options_;
};

inline constexpr const wchar_t* kAlreadyInit = L"g_bAlreadyInit";
inline constexpr const wchar_t* kDirty = L"g_bDirty";
inline constexpr const wchar_t* kReadOnlyMode = L"g_bIsReadOnlyMode";
inline constexpr const wchar_t* kAllowApply = L"g_bAllowApply";
inline constexpr const wchar_t* kForceSor = L"g_bForceSORConfiguration";
inline constexpr const wchar_t* kWasSorConfigured = L"g_bWasSORConfigured";
inline constexpr const wchar_t* kIsSorTabActive = L"g_bIsSORTabActive";
inline constexpr const wchar_t* kRefusalText = L"g_sApplyErrOkMsgBoxText";
inline constexpr const wchar_t* kQuestionText = L"g_sCancelErrYesNoMsgBoxText";

}  // namespace tovarin

// The triggers that are nothing but their values.
#pragma once

#include "objects/store/Kinds.h"
#include "objects/store/Recorded.h"

namespace tovarin {

// A window opens.
class PopUpRecoveryTrigger final
    : public HostObject<PopUpRecoveryTrigger, IPopUpRecoveryTrigger, KindOfTrigger<PopUpRecoveryTrigger, 1>,
                        Recorded<store::PopUpTrigger, store::Trigger>> {
public:
    static constexpr const wchar_t* kName = L"PopUpRecoveryTrigger";
    static constexpr const wchar_t* kProgId = L"Vantrel.PopUpRecoveryTrigger";

    PopUpRecoveryTrigger() = default;
    explicit PopUpRecoveryTrigger(store::PopUpTrigger record) { record_ = std::move(record); }

    HRESULT STDMETHODCALLTYPE GetWindowTitle(BSTR* title, long* isRegularExpression) noexcept override;
    HRESULT STDMETHODCALLTYPE SetWindowTitle(BSTR title, long isRegularExpression) noexcept override;
    HRESULT STDMETHODCALLTYPE GetWindowText(BSTR* text, long* isRegularExpression) noexcept override;
    HRESULT STDMETHODCALLTYPE SetWindowText(BSTR text, long isRegularExpression) noexcept override;
    HRESULT STDMETHODCALLTYPE NotUsedGetPopUpOption(long* option) noexcept override;
    HRESULT STDMETHODCALLTYPE SetPopUpOption(long option) noexcept override;
};

// A step of the test fails with an error.
class ErrorRecoveryTrigger final
    : public HostObject<ErrorRecoveryTrigger, IErrorRecoveryTrigger, KindOfTrigger<ErrorRecoveryTrigger, 2>,
                        Recorded<store::ErrorTrigger, store::Trigger>> {
public:
    static constexpr const wchar_t* kName = L"ErrorRecoveryTrigger";
    static constexpr const wchar_t* kProgId = L"Vantrel.ErrorRecoveryTrigger";

    ErrorRecoveryTrigger() = default;
    explicit ErrorRecoveryTrigger(store::ErrorTrigger record) { record_ = record; }

    HRESULT STDMETHODCALLTYPE GetErrorCode(long* code) noexcept override;
    HRESULT STDMETHODCALLTYPE SetErrorCode(long code) noexcept override;
};

// A process ends unexpectedly.
class CrashRecoveryTrigger final
    : public HostObject<CrashRecoveryTrigger, ICrashRecoveryTrigger, KindOfTrigger<CrashRecoveryTrigger, 3>,
                        Recorded<store::CrashTrigger, store::Trigger>> {
public:
    static constexpr const wchar_t* kName = L"CrashRecoveryTrigger";
    static constexpr const wchar_t* kProgId = L"Vantrel.CrashRecoveryTrigger";

    CrashRecoveryTrigger() = default;
    explicit CrashRecoveryTrigger(store::CrashTrigger record) { record_ = std::move(record); }

    HRESULT STDMETHODCALLTYPE NotUsedGetCrashOption(long* option) noexcept override;
    HRESULT STDMETHODCALLTYPE NotUsedSetCrashOption(long option) noexcept override;
    HRESULT STDMETHODCALLTYPE GetProcesses(SAFEARRAY** names) noexcept override;
    HRESULT STDMETHODCALLTYPE SetProcesses(SAFEARRAY* names) noexcept override;
};

}  // namespace tovarin

// A scenario with its trigger and its operations in one object, whose arrays, texts and numbers are whatever
// a test makes up.
#pragma once

#include <functional>

#include "HostInterfaces.h"
#include "com/Bstr.h"
#include "com/Object.h"
#include "com/SafeArray.h"

namespace recoveryui::test {

class HostileScenario final
    : public com::Object<HostileScenario, IRecoveryScenario, IRecoveryTrigger, ICrashRecoveryTrigger,
                         IRecoveryAction, IKeyBoardSimulatorRecoveryAction, IObjectAccessorRecoveryAction,
                         IProcessControlRecoveryAction, IFunctionCallRecoveryAction> {
public:
    // What an array of an element type is made by; null gives no array.
    using MakeArray = std::function<SAFEARRAY*(VARTYPE)>;

    long kind = 0;  // of the trigger or of the operation
    long option = 1;
    com::Ptr<IUnknown> trigger;  // instead of itself
    MakeArray operations, parts;
    std::wstring text;

    HRESULT STDMETHODCALLTYPE GetTriggerKind(long* out) noexcept override { return *out = kind, S_OK; }
    HRESULT STDMETHODCALLTYPE GetOperationKind(long* out) noexcept override { return *out = kind, S_OK; }
    HRESULT STDMETHODCALLTYPE GetPostRecoveryOption(long* out) noexcept override {
        return *out = option, S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTargetKind(long* out) noexcept override { return *out = LONG_MIN, S_OK; }
    HRESULT STDMETHODCALLTYPE GetPrototypeMode(long* out) noexcept override { return *out = LONG_MAX, S_OK; }
    HRESULT STDMETHODCALLTYPE GetTrigger(IUnknown** out) noexcept override {
        return (trigger ? trigger : KeepAlive()).CopyTo(out);
    }
    HRESULT STDMETHODCALLTYPE GetDescription(BSTR* out) noexcept override { return Give(out); }
    HRESULT STDMETHODCALLTYPE GetMethodName(BSTR* out) noexcept override { return Give(out); }
    HRESULT STDMETHODCALLTYPE GetFunctionName(BSTR* out) noexcept override { return Give(out); }
    HRESULT STDMETHODCALLTYPE GetLibraryPath(BSTR* out) noexcept override { return Give(out); }
    HRESULT STDMETHODCALLTYPE GetOperations(SAFEARRAY** out) noexcept override {
        return *out = operations ? operations(VT_UNKNOWN) : nullptr, S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetProcesses(SAFEARRAY** out) noexcept override { return Part(VT_BSTR, out); }
    HRESULT STDMETHODCALLTYPE GetProcessNames(SAFEARRAY** out) noexcept override {
        return Part(VT_BSTR, out);
    }
    HRESULT STDMETHODCALLTYPE GetKeySequence(SAFEARRAY** out) noexcept override { return Part(VT_UI4, out); }
    HRESULT STDMETHODCALLTYPE GetMethodArguments(SAFEARRAY** out) noexcept override {
        return Part(VT_VARIANT, out);
    }

    HRESULT STDMETHODCALLTYPE SetPostRecoveryOption(long) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetTrigger(IUnknown*) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetOperations(SAFEARRAY*) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetDescription(BSTR) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE NotUsedGetCrashOption(long*) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE NotUsedSetCrashOption(long) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetProcesses(SAFEARRAY*) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetKeySequence(SAFEARRAY*) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetTargetKind(long) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetMethodName(BSTR) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetMethodArguments(SAFEARRAY*) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetProcessNames(SAFEARRAY*) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetFunctionName(BSTR) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetLibraryPath(BSTR) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetPrototypeMode(long) noexcept override { return E_NOTIMPL; }

private:
    HRESULT Give(BSTR* out) const noexcept { return com::CopyTo(out, text); }
    HRESULT Part(VARTYPE type, SAFEARRAY** out) const noexcept {
        return *out = parts ? parts(type) : nullptr, S_OK;
    }
};

}  // namespace recoveryui::test

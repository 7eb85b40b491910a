// The operations of a scenario.
#pragma once

#include <vector>

#include "com/Variant.h"
#include "objects/store/Kinds.h"
#include "objects/store/Recorded.h"

namespace tovarin {

// Presses keys.
class KeyBoardSimulatorRecoveryAction final
    : public HostObject<KeyBoardSimulatorRecoveryAction, IKeyBoardSimulatorRecoveryAction,
                        KindOfOperation<KeyBoardSimulatorRecoveryAction, 3>,
                        Recorded<store::PressKeys, store::Operation>> {
public:
    static constexpr const wchar_t* kName = L"KeyBoardSimulatorRecoveryAction";
    static constexpr const wchar_t* kProgId = L"Vantrel.KeyBoardSimulatorRecoveryAction";

    KeyBoardSimulatorRecoveryAction() = default;
    explicit KeyBoardSimulatorRecoveryAction(store::PressKeys record) { record_ = std::move(record); }

    HRESULT STDMETHODCALLTYPE GetKeySequence(SAFEARRAY** sequence) noexcept override;
    HRESULT STDMETHODCALLTYPE SetKeySequence(SAFEARRAY* sequence) noexcept override;
};

// Clicks a button by its label. Arguments may be anything while the object lives; those that a file cannot
// hold fail when it is stored.
class ObjectAccessorRecoveryAction final
    : public HostObject<ObjectAccessorRecoveryAction, IObjectAccessorRecoveryAction,
                        KindOfOperation<ObjectAccessorRecoveryAction, 0>, Storable<store::Operation>> {
public:
    static constexpr const wchar_t* kName = L"ObjectAccessorRecoveryAction";
    static constexpr const wchar_t* kProgId = L"Vantrel.ObjectAccessorRecoveryAction";

    ObjectAccessorRecoveryAction() = default;
    explicit ObjectAccessorRecoveryAction(const store::AccessObject& record);

    HRESULT STDMETHODCALLTYPE GetTargetKind(long* kind) noexcept override;
    HRESULT STDMETHODCALLTYPE SetTargetKind(long kind) noexcept override;
    HRESULT STDMETHODCALLTYPE GetMethodName(BSTR* name) noexcept override;
    HRESULT STDMETHODCALLTYPE SetMethodName(BSTR name) noexcept override;
    HRESULT STDMETHODCALLTYPE GetMethodArguments(SAFEARRAY** arguments) noexcept override;
    HRESULT STDMETHODCALLTYPE SetMethodArguments(SAFEARRAY* arguments) noexcept override;
    HRESULT STDMETHODCALLTYPE Write(store::Operation& operation) noexcept override;

private:
    long targetKind_ = 0;
    std::wstring method_;
    std::vector<com::Variant> arguments_;
};

// Closes processes.
class ProcessControlRecoveryAction final
    : public HostObject<ProcessControlRecoveryAction, IProcessControlRecoveryAction,
                        KindOfOperation<ProcessControlRecoveryAction, 2>,
                        Recorded<store::CloseProcesses, store::Operation>> {
public:
    static constexpr const wchar_t* kName = L"ProcessControlRecoveryAction";
    static constexpr const wchar_t* kProgId = L"Vantrel.ProcessControlRecoveryAction";

    ProcessControlRecoveryAction() = default;
    explicit ProcessControlRecoveryAction(store::CloseProcesses record) { record_ = std::move(record); }

    HRESULT STDMETHODCALLTYPE GetProcessNames(SAFEARRAY** names) noexcept override;
    HRESULT STDMETHODCALLTYPE SetProcessNames(SAFEARRAY* names) noexcept override;
};

// Calls a function of a library.
class FunctionCallRecoveryAction final
    : public HostObject<FunctionCallRecoveryAction, IFunctionCallRecoveryAction,
                        KindOfOperation<FunctionCallRecoveryAction, 1>,
                        Recorded<store::CallFunction, store::Operation>> {
public:
    static constexpr const wchar_t* kName = L"FunctionCallRecoveryAction";
    static constexpr const wchar_t* kProgId = L"Vantrel.FunctionCallRecoveryAction";

    FunctionCallRecoveryAction() = default;
    explicit FunctionCallRecoveryAction(store::CallFunction record) { record_ = std::move(record); }

    HRESULT STDMETHODCALLTYPE GetFunctionName(BSTR* name) noexcept override;
    HRESULT STDMETHODCALLTYPE SetFunctionName(BSTR name) noexcept override;
    HRESULT STDMETHODCALLTYPE GetLibraryPath(BSTR* path) noexcept override;
    HRESULT STDMETHODCALLTYPE SetLibraryPath(BSTR path) noexcept override;
    HRESULT STDMETHODCALLTYPE GetPrototypeMode(long* mode) noexcept override;
    HRESULT STDMETHODCALLTYPE SetPrototypeMode(long mode) noexcept override;
};

}  // namespace tovarin

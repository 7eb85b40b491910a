#include "objects/store/Operations.h"

#include "objects/store/Arrays.h"
#include "objects/store/Values.h"

namespace tovarin {

HRESULT KeyBoardSimulatorRecoveryAction::GetKeySequence(SAFEARRAY** sequence) noexcept {
    return Call(L"GetKeySequence").Give([&] { return GiveArray(record_.keys, sequence); }, sequence);
}

HRESULT KeyBoardSimulatorRecoveryAction::SetKeySequence(SAFEARRAY* sequence) noexcept {
    return Call(L"SetKeySequence", sequence).Answer([&] { return ReadArray(sequence, record_.keys); });
}

ObjectAccessorRecoveryAction::ObjectAccessorRecoveryAction(const store::AccessObject& record)
    : targetKind_(record.targetKind), method_(record.method) {
    for (const store::Value& value : record.arguments) arguments_.push_back(ToVariant(value));
}

HRESULT ObjectAccessorRecoveryAction::GetTargetKind(long* kind) noexcept {
    return Call(L"GetTargetKind").Give([&] { *kind = targetKind_; }, kind);
}

HRESULT ObjectAccessorRecoveryAction::SetTargetKind(long kind) noexcept {
    return Call(L"SetTargetKind", kind).Answer([&] { targetKind_ = kind; });
}

HRESULT ObjectAccessorRecoveryAction::GetMethodName(BSTR* name) noexcept {
    return Call(L"GetMethodName").Give([&] { return com::CopyTo(name, method_); }, name);
}

HRESULT ObjectAccessorRecoveryAction::SetMethodName(BSTR name) noexcept {
    return Call(L"SetMethodName", name).Answer([&] { method_ = com::ViewOf(name); });
}

HRESULT ObjectAccessorRecoveryAction::GetMethodArguments(SAFEARRAY** arguments) noexcept {
    return Call(L"GetMethodArguments").Give([&] { return GiveArray(arguments_, arguments); }, arguments);
}

HRESULT ObjectAccessorRecoveryAction::SetMethodArguments(SAFEARRAY* arguments) noexcept {
    return Call(L"SetMethodArguments", arguments).Answer([&] { return ReadArray(arguments, arguments_); });
}

HRESULT ObjectAccessorRecoveryAction::Write(store::Operation& operation) noexcept {
    return com::Guarded([&] {
        store::AccessObject record{targetKind_, method_, {}};
        for (const com::Variant& argument : arguments_)
            com::Check(ToValue(argument.Get(), record.arguments.emplace_back()));
        operation = std::move(record);
    });
}

HRESULT ProcessControlRecoveryAction::GetProcessNames(SAFEARRAY** names) noexcept {
    return Call(L"GetProcessNames").Give([&] { return GiveArray(record_.processes, names); }, names);
}

HRESULT ProcessControlRecoveryAction::SetProcessNames(SAFEARRAY* names) noexcept {
    return Call(L"SetProcessNames", names).Answer([&] { return ReadArray(names, record_.processes); });
}

HRESULT FunctionCallRecoveryAction::GetFunctionName(BSTR* name) noexcept {
    return Call(L"GetFunctionName").Give([&] { return com::CopyTo(name, record_.function); }, name);
}

HRESULT FunctionCallRecoveryAction::SetFunctionName(BSTR name) noexcept {
    return Call(L"SetFunctionName", name).Answer([&] { record_.function = com::ViewOf(name); });
}

HRESULT FunctionCallRecoveryAction::GetLibraryPath(BSTR* path) noexcept {
    return Call(L"GetLibraryPath").Give([&] { return com::CopyTo(path, record_.library); }, path);
}

HRESULT FunctionCallRecoveryAction::SetLibraryPath(BSTR path) noexcept {
    return Call(L"SetLibraryPath", path).Answer([&] { record_.library = com::ViewOf(path); });
}

HRESULT FunctionCallRecoveryAction::GetPrototypeMode(long* mode) noexcept {
    return Call(L"GetPrototypeMode").Give([&] { *mode = record_.prototypeMode; }, mode);
}

HRESULT FunctionCallRecoveryAction::SetPrototypeMode(long mode) noexcept {
    return Call(L"SetPrototypeMode", mode).Answer([&] { record_.prototypeMode = mode; });
}

}  // namespace tovarin

#include "objects/store/Triggers.h"

#include "objects/store/Arrays.h"

namespace tovarin {
namespace {

HRESULT GiveCondition(JournalCall&& call, const store::Condition& condition, BSTR* text,
                      long* isRegularExpression) {
    return call.Give(
        [&] {
            *isRegularExpression = condition.isRegularExpression;
            return com::CopyTo(text, condition.text);
        },
        text, isRegularExpression);
}

HRESULT TakeCondition(JournalCall&& call, store::Condition& condition, BSTR text, long isRegularExpression) {
    return call.Answer([&] { condition = {std::wstring(com::ViewOf(text)), isRegularExpression}; });
}

}  // namespace

HRESULT PopUpRecoveryTrigger::GetWindowTitle(BSTR* title, long* isRegularExpression) noexcept {
    return GiveCondition(Call(L"GetWindowTitle"), record_.windowTitle, title, isRegularExpression);
}

HRESULT PopUpRecoveryTrigger::SetWindowTitle(BSTR title, long isRegularExpression) noexcept {
    return TakeCondition(Call(L"SetWindowTitle", title, isRegularExpression), record_.windowTitle, title,
                         isRegularExpression);
}

HRESULT PopUpRecoveryTrigger::GetWindowText(BSTR* text, long* isRegularExpression) noexcept {
    return GiveCondition(Call(L"GetWindowText"), record_.windowText, text, isRegularExpression);
}

HRESULT PopUpRecoveryTrigger::SetWindowText(BSTR text, long isRegularExpression) noexcept {
    return TakeCondition(Call(L"SetWindowText", text, isRegularExpression), record_.windowText, text,
                         isRegularExpression);
}

HRESULT PopUpRecoveryTrigger::NotUsedGetPopUpOption(long* option) noexcept {
    return Call(L"NotUsedGetPopUpOption").Give([&] { *option = record_.option; }, option);
}

HRESULT PopUpRecoveryTrigger::SetPopUpOption(long option) noexcept {
    return Call(L"SetPopUpOption", option).Answer([&] { record_.option = option; });
}

HRESULT ErrorRecoveryTrigger::GetErrorCode(long* code) noexcept {
    return Call(L"GetErrorCode").Give([&] { *code = record_.code; }, code);
}

HRESULT ErrorRecoveryTrigger::SetErrorCode(long code) noexcept {
    return Call(L"SetErrorCode", code).Answer([&] { record_.code = code; });
}

HRESULT CrashRecoveryTrigger::NotUsedGetCrashOption(long* option) noexcept {
    return Call(L"NotUsedGetCrashOption").Give([&] { *option = record_.option; }, option);
}

HRESULT CrashRecoveryTrigger::NotUsedSetCrashOption(long option) noexcept {
    return Call(L"NotUsedSetCrashOption", option).Answer([&] { record_.option = option; });
}

HRESULT CrashRecoveryTrigger::GetProcesses(SAFEARRAY** names) noexcept {
    return Call(L"GetProcesses").Give([&] { return GiveArray(record_.processes, names); }, names);
}

HRESULT CrashRecoveryTrigger::SetProcesses(SAFEARRAY* names) noexcept {
    return Call(L"SetProcesses", names).Answer([&] { return ReadArray(names, record_.processes); });
}

}  // namespace tovarin

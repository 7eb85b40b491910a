#include "app/FrameValues.h"

#include "com/Bstr.h"
#include "com/Variant.h"

namespace tovarin {
namespace com = recoveryui::com;
namespace {

com::Variant Read(ITestOptions* options, const wchar_t* name) {
    com::Variant value;
    if (options)
        static_cast<void>(options->GetOptionValue(com::Bstr(L"GlobalVariables").Get(), com::Bstr(name).Get(),
                                                  value.Put(), 0, 0));
    return value;
}

void Write(ITestOptions* options, const wchar_t* name, const com::Variant& value) {
    if (options)
        static_cast<void>(options->SetOptionValue(com::Bstr(L"GlobalVariables").Get(), com::Bstr(name).Get(),
                                                  value.Get(), 0, 1, 0, 3, 0));
}

}  // namespace

bool FrameValues::IsSet(const wchar_t* name) const {
    const com::Variant value = Read(options_.Get(), name);
    return value.Type() == VT_I4 && value.Get().lVal != 0;
}

void FrameValues::Set(const wchar_t* name, bool yes) {
    Write(options_.Get(), name, com::Variant(yes ? 1L : 0L));
}

std::wstring FrameValues::Text(const wchar_t* name) const {
    return std::wstring(Read(options_.Get(), name).Text());
}

void FrameValues::SetText(const wchar_t* name, const std::wstring& text) {
    Write(options_.Get(), name, com::Variant(std::wstring_view(text)));
}

}  // namespace tovarin

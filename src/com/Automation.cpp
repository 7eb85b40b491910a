#include "com/Automation.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "com/Guard.h"

namespace recoveryui::com {
namespace {

HRESULT InvokeByName(IDispatch* object, const wchar_t* name, WORD flags, DISPPARAMS* parameters,
                     VARIANT* result) noexcept {
    if (!object) return E_POINTER;
    DISPID id = DISPID_UNKNOWN;
    auto* member = const_cast<LPOLESTR>(name);
    const HRESULT hr = object->GetIDsOfNames(IID_NULL, &member, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(hr)) return hr;
    EXCEPINFO exception{};
    const HRESULT invoked =
        object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, parameters, result, &exception, nullptr);
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrHelpFile);
    return invoked;
}

}  // namespace

HRESULT GetProperty(IDispatch* object, const wchar_t* name, Variant* value) noexcept {
    DISPPARAMS none{};
    return InvokeByName(object, name, DISPATCH_PROPERTYGET, &none, value->Put());
}

HRESULT PutProperty(IDispatch* object, const wchar_t* name, const Variant& value) noexcept {
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{const_cast<VARIANT*>(&value.Get()), &put, 1, 1};
    return InvokeByName(object, name, DISPATCH_PROPERTYPUT, &parameters, nullptr);
}

HRESULT CallMethod(IDispatch* object, const wchar_t* name, std::span<const Variant> arguments,
                   Variant* result) noexcept {
    return Guarded([&] {
        std::vector<VARIANT> reversed;
        reversed.reserve(arguments.size());
        std::transform(arguments.rbegin(), arguments.rend(), std::back_inserter(reversed),
                       [](const Variant& argument) { return argument.Get(); });
        DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
        return InvokeByName(object, name, DISPATCH_METHOD, &parameters, result ? result->Put() : nullptr);
    });
}

}  // namespace recoveryui::com

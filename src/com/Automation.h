// Calls by name on objects that are driven through their automation interface.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <span>

#include "com/Variant.h"

namespace recoveryui::com {

// DISP_E_UNKNOWNNAME when the object has no such member; the result is empty on failure.
[[nodiscard]] HRESULT GetProperty(IDispatch* object, const wchar_t* name, Variant* value) noexcept;
[[nodiscard]] HRESULT PutProperty(IDispatch* object, const wchar_t* name, const Variant& value) noexcept;
// Arguments in the order in which a caller writes them.
[[nodiscard]] HRESULT CallMethod(IDispatch* object, const wchar_t* name, std::span<const Variant> arguments,
                                 Variant* result) noexcept;

}  // namespace recoveryui::com

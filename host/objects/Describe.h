// How values look in the journal.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <string>
#include <string_view>

namespace tovarin {

std::wstring Describe(long number);
std::wstring Describe(ULONG number);
// A VARIANT_BOOL.
std::wstring Describe(VARIANT_BOOL yes);
// Quoted, control characters escaped, long text shortened.
std::wstring Describe(std::wstring_view text);
std::wstring Describe(BSTR text);
std::wstring Describe(const VARIANT& value);
std::wstring Describe(SAFEARRAY* array);
// The object's own name when it has one.
std::wstring Describe(IUnknown* object);
// An interface by name where it is one of those that hosts and components share.
std::wstring Describe(REFGUID id);
// S_OK, E_FAIL, STG_E_ACCESSDENIED; others as hexadecimal digits.
std::wstring DescribeResult(HRESULT hr);

}  // namespace tovarin

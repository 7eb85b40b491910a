// IDispatch for objects whose members are found by name, without a type library.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <string_view>

#include "com/Bstr.h"

namespace tovarin {

class NamedMembers : public IDispatch {
public:
    static bool Answers(REFIID iid) noexcept { return IsEqualIID(iid, IID_IDispatch); }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
        if (!count) return E_POINTER;
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) noexcept override {
        if (!info) return E_POINTER;
        *info = nullptr;
        return DISP_E_BADINDEX;
    }
    // Arguments have no names.
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID,
                                            DISPID* ids) noexcept override {
        if (!names || !ids) return E_POINTER;
        if (!IsEqualIID(iid, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
        for (UINT index = 0; index < count; ++index) ids[index] = DISPID_UNKNOWN;
        if (count == 0) return E_INVALIDARG;
        ids[0] = FindMember(names[0]);
        return count == 1 && ids[0] != DISPID_UNKNOWN ? S_OK : DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID iid, LCID, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO*, UINT*) noexcept override {
        if (result) VariantInit(result);
        if (!IsEqualIID(iid, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
        return parameters ? InvokeMember(member, flags, *parameters, result) : E_POINTER;
    }

protected:
    ~NamedMembers() = default;
    // Names are compared without case. DISPID_UNKNOWN when there is none.
    virtual DISPID FindMember(const wchar_t* name) const noexcept = 0;
    // The result, which may be null, is empty on entry.
    virtual HRESULT InvokeMember(DISPID member, WORD flags, DISPPARAMS& parameters,
                                 VARIANT* result) noexcept = 0;

    static bool SameName(const wchar_t* first, const wchar_t* second) noexcept {
        return CompareStringOrdinal(first, -1, second, -1, TRUE) == CSTR_EQUAL;
    }
};

}  // namespace tovarin

#include "objects/Describe.h"

#include <iterator>

#include "HostInterfaces.h"
#include "HostObjects.h"
#include "RecoveryUI.h"
#include "com/Bstr.h"
#include "com/Ptr.h"
#include "com/Variant.h"

namespace tovarin {
namespace com = recoveryui::com;
namespace {

constexpr size_t kMostCharacters = 200;
constexpr ULONG kMostElements = 20;

std::wstring Hexadecimal(ULONG number, int digits) {
    std::wstring text;
    for (int shift = (digits - 1) * 4; shift >= 0; shift -= 4)
        text += L"0123456789ABCDEF"[number >> shift & 15];
    return text;
}

void AppendEscaped(std::wstring& text, wchar_t character) {
    switch (character) {
        case L'\n': text += L"\\n"; return;
        case L'\r': text += L"\\r"; return;
        case L'\t': text += L"\\t"; return;
        case L'"': text += L"\\\""; return;
        case L'\\': text += L"\\\\"; return;
    }
    if (character < 32) {
        text += L"\\x" + Hexadecimal(character, 2);
    } else {
        text += character;
    }
}

std::wstring DescribeElement(SAFEARRAY* array, VARTYPE type, LONG index) {
    switch (type) {
        case VT_BSTR: {
            com::Bstr text;
            return SUCCEEDED(SafeArrayGetElement(array, &index, text.Put())) ? Describe(text.Get()) : L"?";
        }
        case VT_VARIANT: {
            com::Variant value;
            return SUCCEEDED(SafeArrayGetElement(array, &index, value.Put())) ? Describe(value.Get()) : L"?";
        }
        case VT_UNKNOWN:
        case VT_DISPATCH: {
            com::Ptr<IUnknown> object;
            return SUCCEEDED(SafeArrayGetElement(array, &index, object.GetAddressOf()))
                       ? Describe(object.Get())
                       : L"?";
        }
        case VT_I4:
        case VT_UI4: {
            ULONG number = 0;
            return SUCCEEDED(SafeArrayGetElement(array, &index, &number)) ? L"0x" + Hexadecimal(number, 8)
                                                                          : L"?";
        }
        default: return L"?";
    }
}

struct CodeName {
    HRESULT code;
    const wchar_t* name;
};
#define CODE(name) \
    { name, L## #name }
constexpr CodeName kCodes[] = {
    CODE(S_OK),
    CODE(S_FALSE),
    CODE(E_FAIL),
    CODE(E_POINTER),
    CODE(E_INVALIDARG),
    CODE(E_NOINTERFACE),
    CODE(E_NOTIMPL),
    CODE(E_OUTOFMEMORY),
    CODE(E_UNEXPECTED),
    CODE(E_ABORT),
    CODE(E_ACCESSDENIED),
    CODE(CLASS_E_CLASSNOTAVAILABLE),
    CODE(CLASS_E_NOAGGREGATION),
    CODE(REGDB_E_CLASSNOTREG),
    CODE(CO_E_CLASSSTRING),
    CODE(DISP_E_UNKNOWNNAME),
    CODE(DISP_E_MEMBERNOTFOUND),
    CODE(DISP_E_TYPEMISMATCH),
    CODE(DISP_E_BADINDEX),
    CODE(DISP_E_BADVARTYPE),
    CODE(STG_E_FILENOTFOUND),
    CODE(STG_E_PATHNOTFOUND),
    CODE(STG_E_ACCESSDENIED),
    CODE(STG_E_SHAREVIOLATION),
    CODE(STG_E_LOCKVIOLATION),
    CODE(STG_E_MEDIUMFULL),
    CODE(STG_E_DOCFILECORRUPT),
    CODE(STG_E_OLDDLL),
    CODE(STG_E_INVALIDNAME),
    CODE(STG_E_FILEALREADYEXISTS),
    CODE(STG_E_NOTCURRENT),
    CODE(STG_E_READFAULT),
    CODE(STG_E_WRITEFAULT),
    CODE(STG_E_CANTSAVE),
};
#undef CODE

struct InterfaceName {
    const GUID* id;
    const wchar_t* name;
};
#define NAMED(name) \
    { &__uuidof(name), L## #name }
const InterfaceName kInterfaces[] = {
    NAMED(IUnknown),
    NAMED(IDispatch),
    NAMED(IObjectRack),
    NAMED(IObjectRackClient),
    NAMED(IRecoveryRepository),
    NAMED(ITestOptions),
    NAMED(IRecordMgr),
    NAMED(IFileLocator),
    NAMED(IPluginMgr),
    NAMED(IHostApplication),
    NAMED(IHelpViewer),
    NAMED(IMenuCommands),
    NAMED(ISettingsPageCollector),
    NAMED(ITestObject),
};
#undef NAMED

}  // namespace

std::wstring Describe(long number) {
    return std::to_wstring(number);
}
std::wstring Describe(ULONG number) {
    return std::to_wstring(number);
}
std::wstring Describe(VARIANT_BOOL yes) {
    return yes ? L"true" : L"false";
}
std::wstring Describe(BSTR text) {
    return Describe(com::ViewOf(text));
}

std::wstring Describe(std::wstring_view text) {
    std::wstring quoted = L"\"";
    for (wchar_t character : text.substr(0, kMostCharacters)) AppendEscaped(quoted, character);
    quoted += L'"';
    if (text.size() > kMostCharacters) quoted += L"... (" + std::to_wstring(text.size()) + L" characters)";
    return quoted;
}

std::wstring Describe(const VARIANT& value) {
    switch (value.vt) {
        case VT_EMPTY: return L"empty";
        case VT_NULL: return L"null";
        case VT_BSTR: return Describe(value.bstrVal);
        case VT_BOOL: return Describe(value.boolVal);
        case VT_UNKNOWN:
        case VT_DISPATCH: return Describe(value.punkVal);
    }
    if (value.vt & VT_ARRAY && !(value.vt & VT_BYREF)) return Describe(value.parray);
    com::Variant text;
    const HRESULT hr = VariantChangeType(text.Put(), const_cast<VARIANT*>(&value), 0, VT_BSTR);
    return SUCCEEDED(hr) ? std::wstring(text.Text()) : L"variant of type " + std::to_wstring(value.vt);
}

std::wstring Describe(SAFEARRAY* array) {
    VARTYPE type = VT_EMPTY;
    if (!array) return L"no array";
    if (SafeArrayGetDim(array) != 1 || FAILED(SafeArrayGetVartype(array, &type))) return L"array";
    const ULONG count = array->rgsabound[0].cElements;
    const auto low = static_cast<ULONG>(array->rgsabound[0].lLbound);
    std::wstring list = L"[";
    for (ULONG place = 0; place < count; ++place) {
        if (place != 0) list += L", ";
        if (place == kMostElements) {
            list += L"... (" + std::to_wstring(count) + L" elements)";
            break;
        }
        list += DescribeElement(array, type, static_cast<LONG>(low + place));
    }
    return list + L"]";
}

std::wstring Describe(IUnknown* object) {
    if (!object) return L"nothing";
    com::Bstr name;
    const com::Ptr<INamedObject> named = com::Query<INamedObject>(object);
    return named && SUCCEEDED(named->GetJournalName(name.Put())) ? name.Text() : L"object";
}

std::wstring Describe(REFGUID id) {
    for (const InterfaceName& known : kInterfaces) {
        if (IsEqualGUID(*known.id, id)) return known.name;
    }
    wchar_t text[40] = {};
    return StringFromGUID2(id, text, static_cast<int>(std::size(text))) ? text : L"?";
}

std::wstring DescribeResult(HRESULT hr) {
    for (const CodeName& known : kCodes) {
        if (known.code == hr) return known.name;
    }
    return L"0x" + Hexadecimal(static_cast<ULONG>(hr), 8);
}

}  // namespace tovarin

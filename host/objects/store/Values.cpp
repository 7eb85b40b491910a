#include "objects/store/Values.h"

namespace tovarin {
namespace com = recoveryui::com;
using store::ValueType;

HRESULT ToValue(const VARIANT& variant, store::Value& value) {
    value = store::Value();
    value.type = static_cast<ValueType>(variant.vt);
    switch (value.type) {
        case ValueType::Empty:
        case ValueType::Null: return S_OK;
        case ValueType::Int8: value.integer = static_cast<signed char>(variant.cVal); return S_OK;
        case ValueType::UInt8: value.integer = variant.bVal; return S_OK;
        case ValueType::Int16: value.integer = variant.iVal; return S_OK;
        case ValueType::UInt16: value.integer = variant.uiVal; return S_OK;
        case ValueType::Int32:
        case ValueType::Int: value.integer = variant.lVal; return S_OK;
        case ValueType::UInt32:
        case ValueType::UInt: value.integer = variant.ulVal; return S_OK;
        case ValueType::Int64:
        case ValueType::UInt64: value.integer = variant.llVal; return S_OK;
        case ValueType::Currency: value.integer = variant.cyVal.int64; return S_OK;
        case ValueType::Boolean: value.integer = variant.boolVal ? 1 : 0; return S_OK;
        case ValueType::Single: value.real = variant.fltVal; return S_OK;
        case ValueType::Double: value.real = variant.dblVal; return S_OK;
        case ValueType::Date: value.real = variant.date; return S_OK;
        case ValueType::Text: value.text = com::ViewOf(variant.bstrVal); return S_OK;
    }
    return DISP_E_BADVARTYPE;
}

com::Variant ToVariant(const store::Value& value) {
    if (value.type == ValueType::Text) return com::Variant(std::wstring_view(value.text));
    com::Variant owner;
    VARIANT& variant = *owner.Put();
    switch (value.type) {
        case ValueType::Empty:
        case ValueType::Null:
        case ValueType::Text: break;
        case ValueType::Int8:
        case ValueType::UInt8: variant.bVal = static_cast<BYTE>(value.integer); break;
        case ValueType::Int16:
        case ValueType::UInt16: variant.iVal = static_cast<SHORT>(value.integer); break;
        case ValueType::Int32:
        case ValueType::Int:
        case ValueType::UInt32:
        case ValueType::UInt: variant.lVal = static_cast<LONG>(value.integer); break;
        case ValueType::Int64:
        case ValueType::UInt64: variant.llVal = value.integer; break;
        case ValueType::Currency: variant.cyVal.int64 = value.integer; break;
        case ValueType::Boolean: variant.boolVal = value.integer ? VARIANT_TRUE : VARIANT_FALSE; break;
        case ValueType::Single: variant.fltVal = static_cast<float>(value.real); break;
        case ValueType::Double: variant.dblVal = value.real; break;
        case ValueType::Date: variant.date = value.real; break;
    }
    variant.vt = static_cast<VARTYPE>(value.type);
    return owner;
}

}  // namespace tovarin

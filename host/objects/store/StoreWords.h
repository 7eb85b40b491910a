// The words of a recovery file that both directions share.
#pragma once

#include <array>
#include <string_view>

#include "objects/store/StoreModel.h"

namespace tovarin::store {

inline constexpr std::string_view kVersionKey = "formatVersion";
inline constexpr std::string_view kScenariosKey = "scenarios";

// How a value of a type is written.
enum class ValueFamily { Nothing, Whole, Unsigned, Real, Text, Truth };

struct ValueWord {
    ValueType type;
    ValueFamily family;
    std::string_view word;
};

inline constexpr std::array kValueWords = {
    ValueWord{ValueType::Empty, ValueFamily::Nothing, "empty"},
    ValueWord{ValueType::Null, ValueFamily::Nothing, "null"},
    ValueWord{ValueType::Text, ValueFamily::Text, "text"},
    ValueWord{ValueType::Boolean, ValueFamily::Truth, "boolean"},
    ValueWord{ValueType::Int8, ValueFamily::Whole, "int8"},
    ValueWord{ValueType::Int16, ValueFamily::Whole, "int16"},
    ValueWord{ValueType::Int32, ValueFamily::Whole, "int32"},
    ValueWord{ValueType::Int64, ValueFamily::Whole, "int64"},
    ValueWord{ValueType::Int, ValueFamily::Whole, "int"},
    ValueWord{ValueType::UInt8, ValueFamily::Whole, "uint8"},
    ValueWord{ValueType::UInt16, ValueFamily::Whole, "uint16"},
    ValueWord{ValueType::UInt32, ValueFamily::Whole, "uint32"},
    ValueWord{ValueType::UInt64, ValueFamily::Unsigned, "uint64"},
    ValueWord{ValueType::UInt, ValueFamily::Whole, "uint"},
    ValueWord{ValueType::Currency, ValueFamily::Whole, "currency"},
    ValueWord{ValueType::Single, ValueFamily::Real, "single"},
    ValueWord{ValueType::Double, ValueFamily::Real, "double"},
    ValueWord{ValueType::Date, ValueFamily::Real, "date"},
};

// The row of a type; null for a type that a file cannot hold.
constexpr const ValueWord* FindValueWord(ValueType type) {
    for (const ValueWord& row : kValueWords) {
        if (row.type == type) return &row;
    }
    return nullptr;
}

constexpr const ValueWord* FindValueWord(std::string_view word) {
    for (const ValueWord& row : kValueWords) {
        if (row.word == word) return &row;
    }
    return nullptr;
}

// The range of a whole number type; a file that exceeds it is damaged.
struct WholeRange {
    std::int64_t least;
    std::int64_t most;
};

constexpr WholeRange RangeOf(ValueType type) {
    switch (type) {
        case ValueType::Int8: return {INT8_MIN, INT8_MAX};
        case ValueType::Int16: return {INT16_MIN, INT16_MAX};
        case ValueType::Int32:
        case ValueType::Int: return {INT32_MIN, INT32_MAX};
        case ValueType::UInt8: return {0, UINT8_MAX};
        case ValueType::UInt16: return {0, UINT16_MAX};
        case ValueType::UInt32:
        case ValueType::UInt: return {0, UINT32_MAX};
        default: return {INT64_MIN, INT64_MAX};
    }
}

}  // namespace tovarin::store

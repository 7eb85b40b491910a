// A recovery file's content as plain values: what the stand-ins hold, and what is written to disk.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace tovarin::store {

// A simple value of a variant; the numbers are the platform's.
enum class ValueType : std::uint16_t {
    Empty = 0,
    Null = 1,
    Int16 = 2,
    Int32 = 3,
    Single = 4,
    Double = 5,
    Currency = 6,
    Date = 7,
    Text = 8,
    Boolean = 11,
    Int8 = 16,
    UInt8 = 17,
    UInt16 = 18,
    UInt32 = 19,
    Int64 = 20,
    UInt64 = 21,
    Int = 22,
    UInt = 23,
};

struct Value {
    ValueType type = ValueType::Empty;
    std::int64_t integer = 0;  // whole numbers, currency in ten-thousandths, truth as 0 or 1
    double real = 0;           // Single, Double, Date
    std::wstring text{};
    bool operator==(const Value&) const = default;
};

// A text to compare with, and whether it is a regular expression.
struct Condition {
    std::wstring text{};
    std::int32_t isRegularExpression = 0;
    bool operator==(const Condition&) const = default;
};

struct PopUpTrigger {
    Condition windowTitle{};
    Condition windowText{};
    std::int32_t option = 0;
    bool operator==(const PopUpTrigger&) const = default;
};

struct ErrorTrigger {
    std::int32_t code = 0;
    bool operator==(const ErrorTrigger&) const = default;
};

struct CrashTrigger {
    std::int32_t option = 0;
    std::vector<std::wstring> processes{};
    bool operator==(const CrashTrigger&) const = default;
};

struct Property {
    std::wstring name{};
    Value value{};
    std::int32_t isRegularExpression = 0;
    std::int32_t isChecked = 0;
    bool operator==(const Property&) const = default;
};

struct TestObject {
    std::wstring displayName{};
    std::vector<Property> properties{};
    bool operator==(const TestObject&) const = default;
};

// A test object and its parents, the object itself first.
using Hierarchy = std::vector<TestObject>;

struct ObjectStateTrigger {
    std::int32_t option = 0;
    Hierarchy objects{};  // empty: no object yet
    bool operator==(const ObjectStateTrigger&) const = default;
};

// No trigger: a scenario that was never finished.
using Trigger = std::variant<std::monostate, PopUpTrigger, ErrorTrigger, CrashTrigger, ObjectStateTrigger>;

struct PressKeys {
    std::vector<std::uint32_t> keys{};
    bool operator==(const PressKeys&) const = default;
};

struct AccessObject {
    std::int32_t targetKind = 0;
    std::wstring method{};
    std::vector<Value> arguments{};
    bool operator==(const AccessObject&) const = default;
};

struct CloseProcesses {
    std::vector<std::wstring> processes{};
    bool operator==(const CloseProcesses&) const = default;
};

struct CallFunction {
    std::wstring function{};
    std::wstring library{};
    std::int32_t prototypeMode = 0;
    bool operator==(const CallFunction&) const = default;
};

// An empty place in the list is kept as one.
using Operation = std::variant<std::monostate, PressKeys, AccessObject, CloseProcesses, CallFunction>;

struct Scenario {
    std::int32_t postRecoveryOption = 0;
    Trigger trigger{};
    std::vector<Operation> operations{};
    std::wstring description{};
    bool operator==(const Scenario&) const = default;
};

struct NamedScenario {
    std::wstring name{};
    Scenario scenario{};
    bool operator==(const NamedScenario&) const = default;
};

}  // namespace tovarin::store

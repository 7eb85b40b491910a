#include <cmath>
#include <limits>

#include "objects/store/JsonParts.h"
#include "objects/store/StoreFormat.h"
#include "objects/store/StoreWords.h"

namespace tovarin::store {
namespace {

double RealOf(const Json& json) {
    if (json.is_number()) return json.get<double>();
    if (json == "nan") return std::numeric_limits<double>::quiet_NaN();
    if (json == "infinite") return std::numeric_limits<double>::infinity();
    if (json == "-infinite") return -std::numeric_limits<double>::infinity();
    throw CorruptStore();
}

Value ReadValue(const Json& json) {
    Fields fields(json);
    const ValueWord* word = FindValueWord(fields.Word("type"));
    if (!word) throw CorruptStore();
    Value value;
    value.type = word->type;
    switch (word->family) {
        case ValueFamily::Nothing: break;
        case ValueFamily::Whole: {
            const WholeRange range = RangeOf(word->type);
            value.integer = WholeOf(fields.Take("value"), range.least, range.most);
            break;
        }
        case ValueFamily::Unsigned: {
            const Json& number = fields.Take("value");
            if (!number.is_number_unsigned()) throw CorruptStore();
            value.integer = static_cast<std::int64_t>(number.get<std::uint64_t>());
            break;
        }
        case ValueFamily::Real: value.real = RealOf(fields.Take("value")); break;
        case ValueFamily::Text: value.text = fields.Text("value"); break;
        case ValueFamily::Truth: {
            const Json& truth = fields.Take("value");
            if (!truth.is_boolean()) throw CorruptStore();
            value.integer = truth.get<bool>() ? 1 : 0;
            break;
        }
    }
    fields.Done();
    return value;
}

Property ReadProperty(const Json& json) {
    Fields fields(json);
    Property property{fields.Text("name"), ReadValue(fields.Take("value")),
                      fields.Number("regularExpression"), fields.Number("checked")};
    fields.Done();
    return property;
}

TestObject ReadTestObject(const Json& json) {
    Fields fields(json);
    TestObject object{fields.Text("displayName"), ReadList(fields.Take("properties"), ReadProperty)};
    fields.Done();
    return object;
}

Condition ReadCondition(const Json& json) {
    Fields fields(json);
    Condition condition{fields.Text("text"), fields.Number("regularExpression")};
    fields.Done();
    return condition;
}

Trigger ReadTriggerOf(const std::string& kind, Fields& fields) {
    if (kind == "popUp") {
        return PopUpTrigger{ReadCondition(fields.Take("windowTitle")),
                            ReadCondition(fields.Take("windowText")), fields.Number("option")};
    }
    if (kind == "error") return ErrorTrigger{fields.Number("code")};
    if (kind == "crash")
        return CrashTrigger{fields.Number("option"), ReadList(fields.Take("processes"), TextOf)};
    if (kind == "objectState") {
        return ObjectStateTrigger{fields.Number("option"), ReadList(fields.Take("objects"), ReadTestObject)};
    }
    throw CorruptStore();
}

std::uint32_t ReadKey(const Json& json) {
    return static_cast<std::uint32_t>(WholeOf(json, 0, UINT32_MAX));
}

Operation ReadOperationOf(const std::string& kind, Fields& fields) {
    if (kind == "pressKeys") return PressKeys{ReadList(fields.Take("keys"), ReadKey)};
    if (kind == "accessObject") {
        return AccessObject{fields.Number("targetKind"), fields.Text("method"),
                            ReadList(fields.Take("arguments"), ReadValue)};
    }
    if (kind == "closeProcesses") return CloseProcesses{ReadList(fields.Take("processes"), TextOf)};
    if (kind == "callFunction") {
        return CallFunction{fields.Text("function"), fields.Text("library"), fields.Number("prototypeMode")};
    }
    throw CorruptStore();
}

// A trigger or an operation: null, or an object whose first field names the kind.
template <class Part>
Part ReadPart(const Json& json, Part (*readOf)(const std::string&, Fields&)) {
    if (json.is_null()) return {};
    Fields fields(json);
    Part part = readOf(fields.Word("kind"), fields);
    fields.Done();
    return part;
}

NamedScenario ReadScenario(const Json& json) {
    Fields fields(json);
    NamedScenario named;
    named.name = fields.Text("name");
    named.scenario.description = fields.Text("description");
    named.scenario.postRecoveryOption = fields.Number("postRecoveryOption");
    named.scenario.trigger = ReadPart(fields.Take("trigger"), &ReadTriggerOf);
    named.scenario.operations = ReadList(fields.Take("operations"), [](const Json& operation) {
        return ReadPart(operation, &ReadOperationOf);
    });
    fields.Done();
    return named;
}

}  // namespace

ReadResult ReadStore(std::string_view bytes, std::vector<NamedScenario>& scenarios) {
    if (bytes.size() > kMostBytes) return ReadResult::Corrupt;
    std::vector<NamedScenario> read;
    JsonParts parts([&](const Json& json) { read.push_back(ReadScenario(json)); });
    try {
        if (!Json::sax_parse(bytes, &parts)) return ReadResult::Corrupt;
    } catch (const CorruptStore&) {
        return ReadResult::Corrupt;
    }
    if (parts.Newer()) return ReadResult::Newer;
    if (!parts.Complete()) return ReadResult::Corrupt;
    scenarios = std::move(read);
    return ReadResult::Read;
}

}  // namespace tovarin::store

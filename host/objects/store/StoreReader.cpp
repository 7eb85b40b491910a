#include <cmath>
#include <iterator>
#include <limits>

#include "objects/store/JsonParts.h"
#include "objects/store/StoreFormat.h"
#include "objects/store/StoreWords.h"

namespace tovarin::store {
namespace {

using Kind = JsonValue::Kind;

double RealOf(JsonValue value) {
    switch (value.Type()) {
        case Kind::Whole: return static_cast<double>(value.Node().whole);
        case Kind::Unsigned: return static_cast<double>(value.Node().natural);
        case Kind::Real: return value.Node().real;
        case Kind::Text: break;
        default: throw CorruptStore();
    }
    if (value.Text() == "nan") return std::numeric_limits<double>::quiet_NaN();
    if (value.Text() == "infinite") return std::numeric_limits<double>::infinity();
    if (value.Text() == "-infinite") return -std::numeric_limits<double>::infinity();
    throw CorruptStore();
}

Value ReadValue(JsonValue json) {
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
            const JsonValue number = fields.Take("value");
            if (number.Type() != Kind::Unsigned) throw CorruptStore();
            value.integer = static_cast<std::int64_t>(number.Node().natural);
            break;
        }
        case ValueFamily::Real: value.real = RealOf(fields.Take("value")); break;
        case ValueFamily::Text: value.text = fields.Text("value"); break;
        case ValueFamily::Truth: {
            const JsonValue truth = fields.Take("value");
            if (truth.Type() != Kind::Truth) throw CorruptStore();
            value.integer = truth.Node().whole;
            break;
        }
    }
    fields.Done();
    return value;
}

Property ReadProperty(JsonValue json) {
    Fields fields(json);
    Property property{fields.Text("name"), ReadValue(fields.Take("value")),
                      fields.Number("regularExpression"), fields.Number("checked")};
    fields.Done();
    return property;
}

TestObject ReadTestObject(JsonValue json) {
    Fields fields(json);
    TestObject object{fields.Text("displayName"), ReadList(fields.Take("properties"), ReadProperty)};
    fields.Done();
    return object;
}

Condition ReadCondition(JsonValue json) {
    Fields fields(json);
    Condition condition{fields.Text("text"), fields.Number("regularExpression")};
    fields.Done();
    return condition;
}

Trigger ReadTriggerOf(std::string_view kind, Fields& fields) {
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

std::uint32_t ReadKey(JsonValue json) {
    return static_cast<std::uint32_t>(WholeOf(json, 0, UINT32_MAX));
}

Operation ReadOperationOf(std::string_view kind, Fields& fields) {
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
Part ReadPart(JsonValue json, Part (*readOf)(std::string_view, Fields&)) {
    if (json.Type() == Kind::Null) return {};
    Fields fields(json);
    Part part = readOf(fields.Word("kind"), fields);
    fields.Done();
    return part;
}

NamedScenario ReadScenario(JsonValue json) {
    Fields fields(json);
    NamedScenario named;
    named.name = fields.Text("name");
    named.scenario.description = fields.Text("description");
    named.scenario.postRecoveryOption = fields.Number("postRecoveryOption");
    named.scenario.trigger = ReadPart(fields.Take("trigger"), &ReadTriggerOf);
    named.scenario.operations = ReadList(
        fields.Take("operations"), [](JsonValue operation) { return ReadPart(operation, &ReadOperationOf); });
    fields.Done();
    return named;
}

// Spares the parser a third of a file: the spaces that begin its lines. No text holds a bare line feed.
class Unindented {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    Unindented(const char* at, const char* end) : at_(at), end_(end) {}
    const char& operator*() const { return *at_; }
    Unindented& operator++() {
        if (*at_++ == '\n')
            while (at_ != end_ && *at_ == ' ') ++at_;
        return *this;
    }
    bool operator==(const Unindented& other) const { return at_ == other.at_; }

private:
    const char* at_;
    const char* end_;
};

}  // namespace

ReadResult ReadStore(std::string_view bytes, std::vector<NamedScenario>& scenarios) {
    if (bytes.size() > kMostBytes) return ReadResult::Corrupt;
    std::vector<NamedScenario> read;
    JsonParts parts([&](JsonValue json) { read.push_back(ReadScenario(json)); });
    try {
        const char* const end = bytes.data() + bytes.size();
        if (!Json::sax_parse(Unindented(bytes.data(), end), Unindented(end, end), &parts))
            return ReadResult::Corrupt;
    } catch (const CorruptStore&) {
        return ReadResult::Corrupt;
    }
    if (parts.Newer()) return ReadResult::Newer;
    if (!parts.Complete()) return ReadResult::Corrupt;
    scenarios = std::move(read);
    return ReadResult::Read;
}

}  // namespace tovarin::store

#include <algorithm>
#include <cmath>

#include "objects/store/Json.h"
#include "objects/store/StoreFormat.h"
#include "objects/store/StoreText.h"
#include "objects/store/StoreWords.h"

namespace tovarin::store {
namespace {

Json ToJson(const Value& value) {
    const ValueWord* word = FindValueWord(value.type);
    Json json = {{"type", word->word}};
    switch (word->family) {
        case ValueFamily::Nothing: break;
        case ValueFamily::Whole: json["value"] = value.integer; break;
        case ValueFamily::Unsigned: json["value"] = static_cast<std::uint64_t>(value.integer); break;
        case ValueFamily::Text: json["value"] = ToUtf8(value.text); break;
        case ValueFamily::Truth: json["value"] = value.integer != 0; break;
        case ValueFamily::Real:
            // JSON has no word for these
            if (std::isnan(value.real)) {
                json["value"] = "nan";
            } else if (std::isinf(value.real)) {
                json["value"] = value.real < 0 ? "-infinite" : "infinite";
            } else {
                json["value"] = value.real;
            }
    }
    return json;
}

Json ToJson(const std::wstring& text) {
    return ToUtf8(text);
}
Json ToJson(std::uint32_t number) {
    return number;
}

Json ToJson(const Property& property) {
    return {{"name", ToUtf8(property.name)},
            {"value", ToJson(property.value)},
            {"regularExpression", property.isRegularExpression},
            {"checked", property.isChecked}};
}

Json ToJson(const TestObject& object);
template <class... Kinds>
Json ToJson(const std::variant<Kinds...>& part);

template <class Item>
Json ListToJson(const std::vector<Item>& items) {
    Json list = Json::array();
    for (const Item& item : items) list.push_back(ToJson(item));
    return list;
}

Json ToJson(const TestObject& object) {
    return {{"displayName", ToUtf8(object.displayName)}, {"properties", ListToJson(object.properties)}};
}

Json ToJson(const Condition& condition) {
    return {{"text", ToUtf8(condition.text)}, {"regularExpression", condition.isRegularExpression}};
}

Json ToJson(std::monostate) {
    return nullptr;
}

Json ToJson(const PopUpTrigger& trigger) {
    return {{"kind", "popUp"},
            {"windowTitle", ToJson(trigger.windowTitle)},
            {"windowText", ToJson(trigger.windowText)},
            {"option", trigger.option}};
}
Json ToJson(const ErrorTrigger& trigger) {
    return {{"kind", "error"}, {"code", trigger.code}};
}
Json ToJson(const CrashTrigger& trigger) {
    return {{"kind", "crash"}, {"option", trigger.option}, {"processes", ListToJson(trigger.processes)}};
}
Json ToJson(const ObjectStateTrigger& trigger) {
    return {{"kind", "objectState"}, {"option", trigger.option}, {"objects", ListToJson(trigger.objects)}};
}

Json ToJson(const PressKeys& operation) {
    return {{"kind", "pressKeys"}, {"keys", ListToJson(operation.keys)}};
}
Json ToJson(const AccessObject& operation) {
    return {{"kind", "accessObject"},
            {"targetKind", operation.targetKind},
            {"method", ToUtf8(operation.method)},
            {"arguments", ListToJson(operation.arguments)}};
}
Json ToJson(const CloseProcesses& operation) {
    return {{"kind", "closeProcesses"}, {"processes", ListToJson(operation.processes)}};
}
Json ToJson(const CallFunction& operation) {
    return {{"kind", "callFunction"},
            {"function", ToUtf8(operation.function)},
            {"library", ToUtf8(operation.library)},
            {"prototypeMode", operation.prototypeMode}};
}

template <class... Kinds>
Json ToJson(const std::variant<Kinds...>& part) {
    return std::visit([](const auto& kind) { return ToJson(kind); }, part);
}

Json ToJson(std::wstring_view name, const Scenario& scenario) {
    return {{"name", ToUtf8(name)},
            {"description", ToUtf8(scenario.description)},
            {"postRecoveryOption", scenario.postRecoveryOption},
            {"trigger", ToJson(scenario.trigger)},
            {"operations", ListToJson(scenario.operations)}};
}

// Walks everything that has a limit.
struct LimitCheck {
    bool within = true;

    void Text(std::wstring_view text) { within = within && text.size() <= kMostCharacters; }
    template <class Item, class Visit>
    void List(const std::vector<Item>& items, Visit visit) {
        within = within && items.size() <= kMostItems;
        if (within) std::for_each(items.begin(), items.end(), visit);
    }
    void Texts(const std::vector<std::wstring>& texts) {
        List(texts, [&](const std::wstring& text) { Text(text); });
    }

    void operator()(std::monostate) {}
    void operator()(const PopUpTrigger& trigger) {
        Text(trigger.windowTitle.text);
        Text(trigger.windowText.text);
    }
    void operator()(const ErrorTrigger&) {}
    void operator()(const CrashTrigger& trigger) { Texts(trigger.processes); }
    void operator()(const ObjectStateTrigger& trigger) {
        List(trigger.objects, [&](const TestObject& object) {
            Text(object.displayName);
            List(object.properties, [&](const Property& property) {
                Text(property.name);
                Text(property.value.text);
            });
        });
    }
    void operator()(const PressKeys& operation) {
        List(operation.keys, [](std::uint32_t) {});
    }
    void operator()(const AccessObject& operation) {
        Text(operation.method);
        List(operation.arguments, [&](const Value& value) { Text(value.text); });
    }
    void operator()(const CloseProcesses& operation) { Texts(operation.processes); }
    void operator()(const CallFunction& operation) {
        Text(operation.function);
        Text(operation.library);
    }
};

}  // namespace

StoreWriter::StoreWriter() {
    text_ = "{\n  \"" + std::string(kVersionKey) + "\": " + std::to_string(kFormatVersion) + ",\n  \"" +
            std::string(kScenariosKey) + "\": [";
}

void StoreWriter::Add(std::wstring_view name, const Scenario& scenario) {
    // A line feed inside a text is escaped, so every real one ends a line that moves in by two levels.
    text_ += empty_ ? "\n    " : ",\n    ";
    empty_ = false;
    const std::string lines = ToJson(name, scenario).dump(2);
    for (size_t at = 0; at < lines.size();) {
        const size_t end = std::min(lines.find('\n', at), lines.size() - 1) + 1;
        text_.append(lines, at, end - at);
        if (lines[end - 1] == '\n') text_ += "    ";
        at = end;
    }
}

std::string StoreWriter::Finish() {
    text_ += empty_ ? "]\n}\n" : "\n  ]\n}\n";
    return std::move(text_);
}

bool WithinLimits(std::wstring_view name, const Scenario& scenario) {
    LimitCheck check;
    check.Text(name);
    check.Text(scenario.description);
    std::visit(check, scenario.trigger);
    check.List(scenario.operations, [&](const Operation& operation) { std::visit(check, operation); });
    return check.within;
}

}  // namespace tovarin::store

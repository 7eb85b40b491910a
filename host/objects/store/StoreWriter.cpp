#include <algorithm>
#include <cmath>

#include "objects/store/Json.h"
#include "objects/store/JsonLines.h"
#include "objects/store/StoreFormat.h"
#include "objects/store/StoreText.h"
#include "objects/store/StoreWords.h"

namespace tovarin::store {
namespace {

// The parts of a scenario, each as its own kind of JSON.
class Parts {
public:
    Parts(std::string& text, int level) : to_(text, level) {}

    void Put(std::wstring_view name, const Scenario& scenario) {
        Object("name", name, "description", scenario.description, "postRecoveryOption",
               scenario.postRecoveryOption, "trigger", scenario.trigger, "operations", scenario.operations);
    }

private:
    void Put(std::int32_t number) { to_.Number(number); }
    void Put(std::uint32_t number) { to_.Number(number); }
    void Put(std::int64_t number) { to_.Number(number); }
    void Put(std::uint64_t number) { to_.Number(number); }
    void Put(std::wstring_view text) { to_.Text(ToUtf8(text)); }
    void Put(const std::wstring& text) { Put(std::wstring_view(text)); }
    void Put(const char* word) { to_.Text(word); }
    void Put(std::string_view word) { to_.Text(word); }
    void Put(std::monostate) { to_.Word("null"); }
    void PutReal(double number) {
        // JSON has no word for these
        if (std::isnan(number)) return Put("nan");
        if (std::isinf(number)) return Put(number < 0 ? "-infinite" : "infinite");
        to_.Word(Json(number).dump());
    }

    void Put(const Value& value) {
        const ValueWord* word = FindValueWord(value.type);
        to_.Enclose("{}", [&] {
            Fields("type", word->word);
            if (word->family == ValueFamily::Nothing) return;
            to_.Key("value");
            switch (word->family) {
                case ValueFamily::Nothing: break;
                case ValueFamily::Whole: Put(value.integer); break;
                case ValueFamily::Unsigned: Put(static_cast<std::uint64_t>(value.integer)); break;
                case ValueFamily::Text: Put(value.text); break;
                case ValueFamily::Truth: to_.Word(value.integer != 0 ? "true" : "false"); break;
                case ValueFamily::Real: PutReal(value.real); break;
            }
        });
    }
    void Put(const Property& property) {
        Object("name", property.name, "value", property.value, "regularExpression",
               property.isRegularExpression, "checked", property.isChecked);
    }
    void Put(const TestObject& object) {
        Object("displayName", object.displayName, "properties", object.properties);
    }
    void Put(const Condition& condition) {
        Object("text", condition.text, "regularExpression", condition.isRegularExpression);
    }

    void Put(const PopUpTrigger& trigger) {
        Object("kind", "popUp", "windowTitle", trigger.windowTitle, "windowText", trigger.windowText,
               "option", trigger.option);
    }
    void Put(const ErrorTrigger& trigger) { Object("kind", "error", "code", trigger.code); }
    void Put(const CrashTrigger& trigger) {
        Object("kind", "crash", "option", trigger.option, "processes", trigger.processes);
    }
    void Put(const ObjectStateTrigger& trigger) {
        Object("kind", "objectState", "option", trigger.option, "objects", trigger.objects);
    }

    void Put(const PressKeys& operation) { Object("kind", "pressKeys", "keys", operation.keys); }
    void Put(const AccessObject& operation) {
        Object("kind", "accessObject", "targetKind", operation.targetKind, "method", operation.method,
               "arguments", operation.arguments);
    }
    void Put(const CloseProcesses& operation) {
        Object("kind", "closeProcesses", "processes", operation.processes);
    }
    void Put(const CallFunction& operation) {
        Object("kind", "callFunction", "function", operation.function, "library", operation.library,
               "prototypeMode", operation.prototypeMode);
    }

    template <class... Kinds>
    void Put(const std::variant<Kinds...>& part) {
        std::visit([this](const auto& kind) { this->Put(kind); }, part);
    }
    template <class Item>
    void Put(const std::vector<Item>& items) {
        to_.Enclose("[]", [&] {
            for (const Item& item : items) {
                to_.Next();
                Put(item);
            }
        });
    }

    // Keys and values in turn.
    template <class... Rest>
    void Object(const Rest&... fields) {
        to_.Enclose("{}", [&] { Fields(fields...); });
    }
    template <class Field, class... Rest>
    void Fields(const char* key, const Field& field, const Rest&... rest) {
        to_.Key(key);
        Put(field);
        if constexpr (sizeof...(Rest) > 0) Fields(rest...);
    }

    JsonLines to_;
};

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

StoreWriter::StoreWriter()
    : text_("{\n  \"" + std::string(kVersionKey) + "\": " + std::to_string(kFormatVersion) + ",\n  \"" +
            std::string(kScenariosKey) + "\": [") {}

void StoreWriter::Add(std::wstring_view name, const Scenario& scenario) {
    text_ += empty_ ? "\n    " : ",\n    ";
    empty_ = false;
    Parts(text_, 2).Put(name, scenario);
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

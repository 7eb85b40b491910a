#include "objects/services/TestFile.h"

#include "objects/store/Json.h"
#include "objects/store/StoreText.h"

namespace tovarin {
namespace {

using store::Json;

constexpr const char* kVersionKey = "formatVersion";
constexpr const char* kSettingsKey = "settings";
constexpr int kVersion = 1;
// Far beyond any test; it keeps the writer's recursion short.
constexpr int kMostDepth = 32;

// Discarded for text that is not JSON, too deep, or no object.
Json Parse(std::string_view text) {
    bool tooDeep = false;
    const auto watch = [&](int depth, Json::parse_event_t, Json&) {
        tooDeep = tooDeep || depth > kMostDepth;
        return !tooDeep;
    };
    Json document = Json::parse(text, watch, false);
    return tooDeep || !document.is_object() ? Json(Json::value_t::discarded) : document;
}

std::optional<std::wstring> Text(const std::string& text) {
    return store::FromUtf8(text);
}

std::optional<SettingValue> ReadValue(const Json& json) {
    if (json.is_string()) return Text(json.get_ref<const std::string&>());
    if (!json.is_number_integer()) return std::nullopt;
    // A number beyond the signed range would wrap around in it.
    if (json.is_number_unsigned() && json.get<std::uint64_t>() > INT32_MAX) return std::nullopt;
    const auto number = json.get<std::int64_t>();
    if (number < INT32_MIN) return std::nullopt;
    return static_cast<std::int32_t>(number);
}

SettingList ReadList(const Json& json) {
    SettingList list;
    if (!json.is_object()) return list;
    for (const auto& [key, item] : json.items()) {
        const auto name = Text(key);
        auto value = ReadValue(item);
        if (name && value) list.insert_or_assign(*name, std::move(*value));
    }
    return list;
}

Json ToJson(const SettingValue& value) {
    if (const auto* text = std::get_if<std::wstring>(&value)) return store::ToUtf8(*text);
    return std::get<std::int32_t>(value);
}

}  // namespace

std::optional<Settings> ReadTestFile(std::string_view text) {
    const Json document = Parse(text);
    if (document.is_discarded() || document.value(kVersionKey, Json()) != kVersion) return std::nullopt;
    Settings settings;
    const auto found = document.find(kSettingsKey);
    if (found == document.end() || !found->is_object()) return settings;
    for (const auto& [key, branch] : found->items()) {
        if (const auto name = Text(key)) settings[*name] = ReadList(branch);
    }
    return settings;
}

std::string WriteTestFile(const Settings& settings, std::string_view previousText) {
    Json document = Parse(previousText);
    if (document.is_discarded()) document = Json{{kVersionKey, kVersion}};
    Json branches = Json::object();
    for (const auto& [branch, list] : settings) {
        Json& object = branches[store::ToUtf8(branch)] = Json::object();
        for (const auto& [name, value] : list) object[store::ToUtf8(name)] = ToJson(value);
    }
    document[kSettingsKey] = std::move(branches);
    return document.dump(2) + '\n';
}

}  // namespace tovarin

#include "objects/store/JsonParts.h"

#include "objects/store/StoreText.h"
#include "objects/store/StoreWords.h"

namespace tovarin::store {
namespace {
constexpr std::size_t kMostKeys = 16;   // of one object
constexpr std::size_t kMostFields = 5;  // of the format's largest one
}  // namespace

bool JsonParts::key(string_t& name) {
    if (newer_) return true;
    Level& level = levels_.back();
    if (level.container.size() >= kMostKeys || level.container.contains(name)) return false;
    // The version comes first, so that all that follows can be judged by it.
    const bool first = levels_.size() == 1 && level.container.empty();
    if (first != (levels_.size() == 1 && name == kVersionKey)) return false;
    if (levels_.size() == 1 && !first && name != kScenariosKey) return false;
    level.key = std::move(name);
    return true;
}

bool JsonParts::Put(Json value) {
    if (newer_) return true;
    if (levels_.empty()) return false;
    Level& level = levels_.back();
    if (levels_.size() == 1 && level.key == kVersionKey) {
        PutVersion(value);
        level.container[level.key] = nullptr;
    } else if (levels_.size() == 1 || levels_.size() == 2) {
        return false;  // the list of scenarios is an array of objects
    } else if (level.container.is_array()) {
        level.container.push_back(std::move(value));
        return level.container.size() <= kMostItems;
    } else {
        // a new key: repeated ones were refused
        level.container.get_ref<Json::object_t&>().emplace_back(std::move(level.key), std::move(value));
    }
    return true;
}

void JsonParts::PutVersion(const Json& value) {
    if (!value.is_number_unsigned() || value.get<std::uint64_t>() == 0) throw CorruptStore();
    newer_ = value.get<std::uint64_t>() > kFormatVersion;
}

bool JsonParts::Open(Json container) {
    if (newer_) return true;
    const bool isArray = container.is_array();
    const std::size_t depth = levels_.size();
    if (depth >= kMostDepth || (depth <= 2 && isArray != (depth == 1))) return false;
    if (depth == 1 && levels_.back().key == kVersionKey) return false;
    if (depth == 2 && ++scenarios_ > kMostScenarios) return false;
    if (!isArray) container.get_ref<Json::object_t&>().reserve(kMostFields);
    levels_.push_back({std::move(container), {}});
    return true;
}

bool JsonParts::Close() {
    if (newer_) return true;
    Json done = std::move(levels_.back().container);
    levels_.pop_back();
    switch (levels_.size()) {
        case 0: complete_ = done.contains(kScenariosKey); return true;
        case 1: levels_.back().container[std::string(kScenariosKey)] = nullptr; return true;
        case 2: scenario_(done); return true;
        default: return Put(std::move(done));
    }
}

Fields::Fields(const Json& object) : object_(object) {
    if (!object.is_object()) throw CorruptStore();
}

const Json& Fields::Take(std::string_view key) {
    const auto found = object_.find(key);
    if (found == object_.end()) throw CorruptStore();
    ++taken_;
    return *found;
}

std::wstring Fields::Text(std::string_view key) {
    return TextOf(Take(key));
}

std::string Fields::Word(std::string_view key) {
    const Json& json = Take(key);
    if (!json.is_string()) throw CorruptStore();
    return json.get<std::string>();
}

std::int32_t Fields::Number(std::string_view key) {
    return static_cast<std::int32_t>(WholeOf(Take(key), INT32_MIN, INT32_MAX));
}

void Fields::Done() const {
    if (taken_ != object_.size()) throw CorruptStore();
}

std::wstring TextOf(const Json& json) {
    if (!json.is_string()) throw CorruptStore();
    std::optional<std::wstring> text = FromUtf8(json.get_ref<const std::string&>());
    if (!text || text->size() > kMostCharacters) throw CorruptStore();
    return std::move(*text);
}

std::int64_t WholeOf(const Json& json, std::int64_t least, std::int64_t most) {
    if (!json.is_number_integer()) throw CorruptStore();
    if (json.is_number_unsigned() && json.get<std::uint64_t>() > static_cast<std::uint64_t>(INT64_MAX))
        throw CorruptStore();
    const auto number = json.get<std::int64_t>();
    if (number < least || number > most) throw CorruptStore();
    return number;
}

}  // namespace tovarin::store

#include "objects/store/JsonParts.h"

#include "objects/store/StoreText.h"
#include "objects/store/StoreWords.h"

namespace tovarin::store {
namespace {

constexpr std::uint32_t kMostKeys = 16;  // of one object
constexpr std::size_t kScenarioDepth = 2;

}  // namespace

bool JsonParts::key(string_t& name) {
    if (newer_) return true;
    if (depth_ == 1) {
        // The version comes first, so that all that follows can be judged by it.
        bool& seen = hasVersion_ ? hasScenarios_ : hasVersion_;
        if (seen || name != (hasVersion_ ? kScenariosKey : kVersionKey)) return false;
        return seen = true;
    }
    JsonNode& object = row_.nodes[open_.back()];
    if (object.count == kMostKeys) return false;
    JsonValue other(row_, open_.back() + 1);
    for (std::uint32_t i = 0; i < object.count; ++i, other = other.Next().Next())
        if (other.Text() == name) return false;
    ++object.count;
    return Append({.kind = Kind::Key, .text = Keep(name)});
}

JsonNode::Slice JsonParts::Keep(std::string_view text) {
    const JsonNode::Slice slice{static_cast<std::uint32_t>(row_.texts.size()),
                                static_cast<std::uint32_t>(text.size())};
    if (depth_ > kScenarioDepth) row_.texts += text;
    return slice;
}

bool JsonParts::Put(JsonNode value) {
    if (newer_) return true;
    if (depth_ == 1 && !hasScenarios_) {
        PutVersion(value);
        return true;
    }
    if (depth_ <= kScenarioDepth) return false;  // the list of scenarios is an array of objects
    JsonNode& container = row_.nodes[open_.back()];
    if (container.kind == Kind::List && ++container.count > kMostItems) return false;
    return Append(value);
}

bool JsonParts::Append(JsonNode value) {
    value.end = static_cast<std::uint32_t>(row_.nodes.size() + 1);
    row_.nodes.push_back(value);
    return true;
}

void JsonParts::PutVersion(const JsonNode& value) {
    if (value.kind != Kind::Unsigned || value.natural == 0) throw CorruptStore();
    newer_ = value.natural > kFormatVersion;
}

bool JsonParts::Open(Kind kind) {
    if (newer_) return true;
    const std::size_t depth = depth_++;
    if (depth == kMostDepth) return false;
    if (depth <= kScenarioDepth) {
        if ((kind == Kind::List) != (depth == 1) || (depth == 1 && !hasScenarios_)) return false;
        if (depth < kScenarioDepth) return true;
        if (++scenarios_ > kMostScenarios) return false;
        row_.nodes.clear();
        row_.texts.clear();
        Append({.kind = kind, .count = 0});
    } else if (!Put({.kind = kind, .count = 0})) {
        return false;
    }
    open_.push_back(row_.nodes.size() - 1);
    return true;
}

bool JsonParts::Close() {
    if (newer_) return true;
    if (--depth_ == 0) complete_ = hasScenarios_;
    if (depth_ < kScenarioDepth) return true;
    row_.nodes[open_.back()].end = static_cast<std::uint32_t>(row_.nodes.size());
    open_.pop_back();
    if (depth_ == kScenarioDepth) scenario_(JsonValue(row_));
    return true;
}

Fields::Fields(JsonValue object) : first_(object.First()), next_(first_) {
    if (object.Type() != JsonValue::Kind::Object) throw CorruptStore();
    count_ = object.Node().count;
}

JsonValue Fields::Take(std::string_view key) {
    for (std::uint32_t left = count_; left > 0; --left) {
        if (place_ == count_) {
            next_ = first_;
            place_ = 0;
        }
        const JsonValue name = next_, value = next_.Next();
        next_ = value.Next();  // cppcheck-suppress danglingLifetime; it points into the row
        ++place_;
        if (name.Text() != key) continue;
        ++taken_;
        return value;
    }
    throw CorruptStore();
}

std::wstring Fields::Text(std::string_view key) {
    return TextOf(Take(key));
}

std::string_view Fields::Word(std::string_view key) {
    const JsonValue value = Take(key);
    if (value.Type() != JsonValue::Kind::Text) throw CorruptStore();
    return value.Text();
}

std::int32_t Fields::Number(std::string_view key) {
    return static_cast<std::int32_t>(WholeOf(Take(key), INT32_MIN, INT32_MAX));
}

void Fields::Done() const {
    if (taken_ != count_) throw CorruptStore();
}

std::wstring TextOf(JsonValue value) {
    if (value.Type() != JsonValue::Kind::Text) throw CorruptStore();
    std::optional<std::wstring> text = FromUtf8(value.Text());
    if (!text || text->size() > kMostCharacters) throw CorruptStore();
    return std::move(*text);
}

std::int64_t WholeOf(JsonValue value, std::int64_t least, std::int64_t most) {
    const JsonNode& node = value.Node();
    const bool isWhole =
        node.kind == JsonNode::Kind::Whole ||
        (node.kind == JsonNode::Kind::Unsigned && node.natural <= static_cast<std::uint64_t>(INT64_MAX));
    if (!isWhole) throw CorruptStore();
    const std::int64_t number =
        node.kind == JsonNode::Kind::Whole ? node.whole : static_cast<std::int64_t>(node.natural);
    if (number < least || number > most) throw CorruptStore();
    return number;
}

}  // namespace tovarin::store

// Reads JSON text part by part: every scenario as soon as it is complete, so that a large file never
// stands in memory as a tree.
#pragma once

#include <cstdint>
#include <functional>

#include "objects/store/Json.h"
#include "objects/store/StoreFormat.h"

namespace tovarin::store {

// What a handler throws, and Fields below: the text is not a recovery file.
struct CorruptStore {};

// A value or a key, without its parts.
struct JsonNode {
    enum class Kind : std::uint8_t { Null, Truth, Whole, Unsigned, Real, Text, Key, List, Object };
    struct Slice {
        std::uint32_t at, size;
    };

    Kind kind;
    std::uint32_t end = 0;  // where the next one stands that is no part of it
    union {
        std::int64_t whole = 0;  // of Truth: 0 or 1
        std::uint64_t natural;   // of Unsigned
        double real;
        Slice text;           // of Text and Key
        std::uint32_t count;  // elements of a List, keys of an Object
    };
};

// The values of one scenario as they follow each other in the text, a key before each value of an object.
// One such row serves all scenarios of a file; building a tree for each costs more than the parser itself.
struct JsonRow {
    std::vector<JsonNode> nodes;
    std::string texts;
};

// A value in the row.
class JsonValue {
public:
    using Kind = JsonNode::Kind;

    explicit JsonValue(const JsonRow& row, std::size_t at = 0) : row_(&row), at_(at) {}

    const JsonNode& Node() const { return row_->nodes[at_]; }
    Kind Type() const { return Node().kind; }
    std::string_view Text() const { return {row_->texts.data() + Node().text.at, Node().text.size}; }
    JsonValue First() const { return JsonValue(*row_, at_ + 1); }
    JsonValue Next() const { return JsonValue(*row_, Node().end); }

private:
    const JsonRow* row_;
    std::size_t at_;
};

// Takes the parser's events. Nesting, the keys of one object and repeated keys are checked as they come.
class JsonParts final : public nlohmann::json_sax<Json> {
public:
    explicit JsonParts(std::function<void(JsonValue)> scenario) : scenario_(std::move(scenario)) {}

    // The file names a later format; nothing but its form was looked at from there.
    bool Newer() const noexcept { return newer_; }
    // The whole of a file of this format has been seen.
    bool Complete() const noexcept { return complete_; }

    bool null() override { return Put({.kind = Kind::Null, .whole = 0}); }
    bool boolean(bool value) override { return Put({.kind = Kind::Truth, .whole = value}); }
    bool number_integer(number_integer_t value) override {
        return Put({.kind = Kind::Whole, .whole = value});
    }
    bool number_unsigned(number_unsigned_t value) override {
        return Put({.kind = Kind::Unsigned, .natural = value});
    }
    bool number_float(number_float_t value, const string_t&) override {
        return Put({.kind = Kind::Real, .real = value});
    }
    bool string(string_t& value) override { return Put({.kind = Kind::Text, .text = Keep(value)}); }
    bool binary(binary_t&) override { return false; }
    bool start_object(std::size_t) override { return Open(Kind::Object); }
    bool end_object() override { return Close(); }
    bool start_array(std::size_t) override { return Open(Kind::List); }
    bool end_array() override { return Close(); }
    bool key(string_t& name) override;
    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
        return false;
    }

private:
    using Kind = JsonNode::Kind;

    JsonNode::Slice Keep(std::string_view text);
    bool Put(JsonNode value);
    bool Append(JsonNode value);
    bool Open(Kind kind);
    bool Close();
    void PutVersion(const JsonNode& value);

    std::function<void(JsonValue)> scenario_;
    JsonRow row_;
    std::vector<std::size_t> open_;  // the objects and lists of the scenario that still go on
    std::size_t depth_ = 0;
    std::size_t scenarios_ = 0;
    bool hasVersion_ = false;
    bool hasScenarios_ = false;
    bool newer_ = false;
    bool complete_ = false;
};

// The fields of one JSON object, each taken once; a field that is missing, of another type or left over
// makes the text corrupt.
class Fields {
public:
    explicit Fields(JsonValue object);

    JsonValue Take(std::string_view key);
    std::wstring Text(std::string_view key);
    std::string_view Word(std::string_view key);
    std::int32_t Number(std::string_view key);
    // Throws when a field was not taken.
    void Done() const;

private:
    JsonValue first_, next_;  // most files have the keys in the order in which they are taken
    std::uint32_t count_ = 0;
    std::uint32_t place_ = 0;  // of `next_`
    std::uint32_t taken_ = 0;
};

// The elements of a JSON array through a function.
template <class Read>
auto ReadList(JsonValue list, Read read) -> std::vector<decltype(read(list))> {
    if (list.Type() != JsonValue::Kind::List) throw CorruptStore();
    std::vector<decltype(read(list))> items;
    items.reserve(list.Node().count);
    JsonValue item = list.First();
    for (std::uint32_t left = list.Node().count; left > 0; --left, item = item.Next())
        items.push_back(read(item));
    return items;
}

std::wstring TextOf(JsonValue value);
// A whole number within bounds.
std::int64_t WholeOf(JsonValue value, std::int64_t least, std::int64_t most);

}  // namespace tovarin::store

// Reads JSON text part by part: every scenario as soon as it is complete, so that a large file never
// stands in memory as a tree.
#pragma once

#include <functional>

#include "objects/store/Json.h"
#include "objects/store/StoreFormat.h"

namespace tovarin::store {

// What a handler throws, and Fields below: the text is not a recovery file.
struct CorruptStore {};

// Takes the parser's events. Nesting, the keys of one object and repeated keys are checked as they come.
class JsonParts final : public nlohmann::json_sax<Json> {
public:
    explicit JsonParts(std::function<void(const Json&)> scenario) : scenario_(std::move(scenario)) {}

    // The file names a later format; nothing but its form was looked at from there.
    bool Newer() const noexcept { return newer_; }
    // The whole of a file of this format has been seen.
    bool Complete() const noexcept { return complete_; }

    bool null() override { return Put(nullptr); }
    bool boolean(bool value) override { return Put(value); }
    bool number_integer(number_integer_t value) override { return Put(value); }
    bool number_unsigned(number_unsigned_t value) override { return Put(value); }
    bool number_float(number_float_t value, const string_t&) override { return Put(value); }
    bool string(string_t& value) override { return Put(std::move(value)); }
    bool binary(binary_t&) override { return false; }
    bool start_object(std::size_t) override { return Open(Json::object()); }
    bool end_object() override { return Close(); }
    bool start_array(std::size_t) override { return Open(Json::array()); }
    bool end_array() override { return Close(); }
    bool key(string_t& name) override;
    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
        return false;
    }

private:
    struct Level {
        Json container;
        std::string key;
    };

    bool Put(Json value);
    bool Open(Json container);
    bool Close();
    void PutVersion(const Json& value);

    std::function<void(const Json&)> scenario_;
    std::vector<Level> levels_;
    std::size_t scenarios_ = 0;
    bool newer_ = false;
    bool complete_ = false;
};

// The fields of one JSON object, each taken once; a field that is missing, of another type or left over
// makes the text corrupt.
class Fields {
public:
    explicit Fields(const Json& object);

    const Json& Take(std::string_view key);
    std::wstring Text(std::string_view key);
    std::string Word(std::string_view key);
    std::int32_t Number(std::string_view key);
    // Throws when a field was not taken.
    void Done() const;

private:
    const Json& object_;
    std::size_t taken_ = 0;
};

// The elements of a JSON array through a function.
template <class Read>
auto ReadList(const Json& list, Read read) -> std::vector<decltype(read(list))> {
    if (!list.is_array()) throw CorruptStore();
    std::vector<decltype(read(list))> items;
    items.reserve(list.size());
    for (const Json& item : list) items.push_back(read(item));
    return items;
}

std::wstring TextOf(const Json& json);
// A whole number within bounds.
std::int64_t WholeOf(const Json& json, std::int64_t least, std::int64_t most);

}  // namespace tovarin::store

// Recovery files beside the JSON library alone, both in memory: reading the same text with handlers that do
// nothing, and writing the same tree prepared beforehand.
#include "Compare.h"
#include "Host.h"
#include "Rows.h"
#include "Stage.h"
#include "objects/store/Json.h"
#include "objects/store/StoreFormat.h"

namespace recoveryui::bench {
namespace {

using tovarin::store::Json;

class Nothing final : public nlohmann::json_sax<Json> {
public:
    bool null() override { return true; }
    bool boolean(bool) override { return true; }
    bool number_integer(number_integer_t) override { return true; }
    bool number_unsigned(number_unsigned_t) override { return true; }
    bool number_float(number_float_t, const string_t&) override { return true; }
    bool string(string_t&) override { return true; }
    bool binary(binary_t&) override { return true; }
    bool start_object(std::size_t) override { return true; }
    bool key(string_t&) override { return true; }
    bool end_object() override { return true; }
    bool start_array(std::size_t) override { return true; }
    bool end_array() override { return true; }
    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
        return false;
    }
};

void Measure(int count, int pairs, const char* load, const char* save) {
    const auto scenarios = MakeScenarios(count);
    const std::string text = TextOf(scenarios);
    const auto read = [&] {
        std::vector<tovarin::store::NamedScenario> loaded;
        Require(tovarin::store::ReadStore(text, loaded) == tovarin::store::ReadResult::Read,
                "the text is refused");
        Use(loaded);
    };
    Compare({{load, 1.6}}, pairs, Timed(read), Timed([&] {
                Nothing handler;
                Require(Json::sax_parse(text, &handler), "the text is no JSON");
            }));
    const Json tree = Json::parse(text);
    Require(tree.dump(2) + "\n" == text, "the library writes something else");
    Compare({{save, 1.6}}, pairs, Timed([&] { Use(TextOf(scenarios)); }), Timed([&] { Use(tree.dump(2)); }));
}

}  // namespace

void MeasureStore() {
    Measure(10'000, 11, "recovery file: load 10,000 scenarios", "recovery file: save 10,000 scenarios");
    Measure(100'000, 5, "recovery file: load 100,000 scenarios", "recovery file: save 100,000 scenarios");
}

}  // namespace recoveryui::bench

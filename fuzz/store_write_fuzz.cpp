// A recovery file of any scenarios that the stand-ins can hold.
#include <bit>
#include <cmath>
#include <iterator>

#include "Store.h"
#include "objects/store/StoreText.h"
#include "objects/store/StoreWords.h"

namespace recoveryui::fuzz {
namespace {

using namespace tovarin::store;

std::int32_t Signed(Input& input) {
    return static_cast<std::int32_t>(input.Number());
}

template <class Make>
auto List(Input& input, Make make) {
    std::vector<decltype(make())> list;
    for (std::size_t left = input.Below(4); left > 0; --left) list.push_back(make());
    return list;
}

Value MakeValue(Input& input) {
    const ValueWord& word = kValueWords.at(input.Below(kValueWords.size()));
    Value value{word.type};
    const auto bits = static_cast<std::uint64_t>(input.Number()) << 32 | input.Number();
    switch (word.family) {
        case ValueFamily::Nothing: break;
        case ValueFamily::Text: value.text = input.Line(); break;
        case ValueFamily::Truth: value.integer = static_cast<std::int64_t>(bits % 2); break;
        case ValueFamily::Unsigned: value.integer = static_cast<std::int64_t>(bits); break;
        case ValueFamily::Real:
            value.real = std::bit_cast<double>(bits);
            // not a number equals nothing, itself included
            if (std::isnan(value.real)) value.real = 0.1;
            break;
        case ValueFamily::Whole: {
            const WholeRange range = RangeOf(word.type);
            value.integer = static_cast<std::int64_t>(bits);
            if (value.integer < range.least || value.integer > range.most)
                value.integer = bits % 2 != 0 ? range.least : range.most;
        }
    }
    return value;
}

Trigger MakeTrigger(Input& input) {
    const auto line = [&] { return input.Line(); };
    const auto condition = [&] { return Condition{input.Line(), Signed(input)}; };
    switch (input.Below(5)) {
        case 1: return PopUpTrigger{condition(), condition(), Signed(input)};
        case 2: return ErrorTrigger{Signed(input)};
        case 3: return CrashTrigger{Signed(input), List(input, line)};
        case 4: {
            const auto property = [&] {
                return Property{input.Line(), MakeValue(input), Signed(input), Signed(input)};
            };
            const auto object = [&] { return TestObject{input.Line(), List(input, property)}; };
            return ObjectStateTrigger{Signed(input), List(input, object)};
        }
        default: return {};
    }
}

Operation MakeOperation(Input& input) {
    switch (input.Below(5)) {
        case 1: return PressKeys{List(input, [&] { return input.Number(); })};
        case 2:
            return AccessObject{Signed(input), input.Line(), List(input, [&] { return MakeValue(input); })};
        case 3: return CloseProcesses{List(input, [&] { return input.Line(); })};
        case 4: return CallFunction{input.Line(), input.Line(), Signed(input)};
        default: return {};
    }
}

}  // namespace

void Fuzz(Input input) {
    const std::wstring all = Input(input).Rest();
    Require(FromUtf8(ToUtf8(all)) == all, "any text survives");

    std::vector<NamedScenario> scenarios;
    while (!input.Empty() && scenarios.size() < 8) {
        NamedScenario named{input.Line(), {Signed(input), MakeTrigger(input), {}, {}}};
        named.scenario.operations = List(input, [&] { return MakeOperation(input); });
        named.scenario.description = input.Line();
        scenarios.push_back(std::move(named));
    }
    Require(RequireRoundTrip(scenarios) == scenarios, "every value survives");
}

}  // namespace recoveryui::fuzz

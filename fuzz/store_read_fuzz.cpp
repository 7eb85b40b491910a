// A recovery file of any content.
#include "Store.h"

namespace recoveryui::fuzz {

void Fuzz(Input input) {
    using namespace tovarin::store;
    const std::vector<NamedScenario> before = {{L"kept", {}}};
    std::vector<NamedScenario> read = before;
    if (ReadStore(input.Bytes(), read) != ReadResult::Read) {
        Require(read == before, "what cannot be read changes nothing");
        return;
    }
    for (const NamedScenario& named : read)
        Require(WithinLimits(named.name, named.scenario), "what was read may be written");
    const auto again = RequireRoundTrip(read);
    // not a number equals nothing, itself included
    const bool comparable = input.Bytes().find("nan") == std::string_view::npos;
    Require(!comparable || again == read, "what was read survives being written");
}

}  // namespace recoveryui::fuzz

// Faults planted on purpose, one per build of this file: a fuzzer that does not find them finds nothing.
#include <memory>

#include "Fuzz.h"
#include "model/RecordString.h"

namespace recoveryui::fuzz {

void Fuzz(Input input) {
    const std::wstring text = Input(input).Rest();
    const auto records = model::ReadRecords(text);
    if (records.empty()) return;
#if PLANTED == 1  // a writer that loses the records of one mode
    auto kept = records;
    std::erase_if(kept, [](const auto& record) { return record.ActivationMode == 0x1f; });
    Require(model::ReadRecords(model::WriteRecords(kept)) == records, "what was read survives being written");
#elif PLANTED == 2  // a reader that looks one character behind a text
    const std::wstring_view name = records.back().name;
    const std::unique_ptr<wchar_t[]> copy(new wchar_t[name.size()]);
    name.copy(copy.get(), name.size());
    Require(name.size() < 3 || name[0] != L'%' || copy[name.size()] != L'%', "unreachable");
#else               // a number that runs over
    Require(records.front().ActivationMode * 100'000 != 1, "unreachable");
#endif
}

}  // namespace recoveryui::fuzz

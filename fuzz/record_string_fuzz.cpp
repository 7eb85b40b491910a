// Any text reads without harm, and what was read survives being written.
#include <cstdlib>

#include "model/MruList.h"
#include "model/RecordString.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    using namespace recoveryui::model;
    const std::wstring text(data, data + size);
    const auto records = ReadRecords(text);
    if (ReadRecords(WriteRecords(records)) != records) std::abort();

    const auto entries = SplitEntries(text, kRecentMaximum);
    if (entries.size() > kRecentMaximum || SplitEntries(JoinEntries(entries), kRecentMaximum) != entries)
        std::abort();
    return 0;
}

// Record strings beside one pass that only finds the separators.
#include "model/RecordString.h"

#include <windows.h>

#include <psapi.h>

#include <algorithm>
#include <cstdio>

#include "Compare.h"
#include "Host.h"
#include "Rows.h"

namespace recoveryui::bench {
namespace {

constexpr int kMany = 1'000'000;

size_t CountSeparators(std::wstring_view text) {
    size_t found = 0;
    for (const wchar_t character : text)
        if (character == L';' || character == L'*') ++found;
    return found;
}

size_t PrivateBytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage;
}

}  // namespace

void MeasureRecords() {
    const std::wstring text = MakeRecords(kMany), tenth = MakeRecords(kMany / 10);
    const auto read = [](const std::wstring& from, int times = 1) {
        return Timed([&from, times] {
            for (int i = 0; i < times; ++i) Use(model::ReadRecords(from));
        });
    };
    const Side pass = Timed([&] { Use(CountSeparators(text)); });
    {
        const size_t before = PrivateBytes();
        const auto records = model::ReadRecords(text);
        const double own = static_cast<double>(text.size() * sizeof(wchar_t));
        const double held = own + static_cast<double>(PrivateBytes() - before);  // they are parts of the text
        char product[32], floor[32], ratio[32];
        std::snprintf(product, sizeof product, "%.0f MB", held / 1e6);
        std::snprintf(floor, sizeof floor, "%.0f MB", own / 1e6);
        std::snprintf(ratio, sizeof ratio, "%.2f", held / own);
        State("records: memory of 1,000,000 against the text", product, floor, ratio, "", "3.00",
              held <= 3 * own);
        Compare({{"records: write 1,000,000", 4}}, 7, Timed([&] { Use(model::WriteRecords(records)); }),
                pass);
    }
    // What no writing into memory of its own can spare.
    Compare({{"records: (only copy the text)", 0}}, 7, Timed([&] { Use(std::wstring(text)); }), pass);
    Compare({{"records: read 1,000,000", 4}}, 7, read(text), pass);
    Compare({{"records: read 1,000,000 or 100,000 ten times", 1.1}}, 7, read(text), read(tenth, 10));
}

}  // namespace recoveryui::bench

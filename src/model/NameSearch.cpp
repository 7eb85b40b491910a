#include "model/NameSearch.h"

#include "support/Text.h"

namespace recoveryui::model {

int FindName(int count, const std::function<std::wstring_view(int)>& nameAt, std::wstring_view text,
             int start, NameSearch how) {
    const int first = start >= 0 && start < count ? start : 0;
    for (int step = 0; step < count; ++step) {
        const int row = (first + step) % count;
        if (row < first && !how.wrap) break;
        std::wstring_view name = nameAt(row);
        if (how.prefix) name = name.substr(0, text.size());
        if (support::EqualIgnoringCase(name, text)) return row;
    }
    return -1;
}

}  // namespace recoveryui::model

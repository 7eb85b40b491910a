#include "model/ScenarioRows.h"

#include "model/NameSearch.h"

namespace recoveryui::model {

int FindRow(const NMLVFINDITEMW& request, int count, const std::function<std::wstring_view(int)>& nameAt) {
    const UINT flags = request.lvfi.flags;
    if (!(flags & (LVFI_STRING | LVFI_PARTIAL)) || !request.lvfi.psz) return -1;
    return FindName(count, nameAt, request.lvfi.psz, request.iStart,
                    {.prefix = (flags & LVFI_PARTIAL) != 0, .wrap = (flags & LVFI_WRAP) != 0});
}

}  // namespace recoveryui::model

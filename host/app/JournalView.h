// The list of calls in the main window's client area.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include "app/JournalRows.h"

namespace tovarin {

// A virtual list: only the rows on the screen cost anything. The parent passes its notifications on.
class JournalView {
public:
    static constexpr int kId = 100;

    void Create(HWND parent);
    HWND Window() const { return list_; }
    void Place(const RECT& place);
    // Font and column widths for the parent's resolution.
    void SetScale(HFONT font, int dpi);

    // The newest call comes into view unless the user has scrolled up.
    void Add(std::vector<JournalRow> rows);
    void Clear();
    size_t Count() const { return rows_.Count(); }

    void OnDisplayInfo(NMLVDISPINFOW& info) const;
    bool HasSelection() const;
    void SelectAll();
    // The selected calls, one line each.
    void Copy() const;

private:
    void StretchLastColumn();

    int dpi_ = 96;
    HWND list_ = nullptr;
    JournalRows rows_;
};

// Text to the clipboard; throws when the clipboard cannot be had.
void CopyToClipboard(HWND owner, const std::wstring& text);

}  // namespace tovarin

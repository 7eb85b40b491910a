#pragma once

#include <windows.h>

#include "settings/AssociationList.h"
#include "settings/ScenarioLooks.h"
#include "ui/ListView.h"

namespace recoveryui::settings {

// The scenario list of the Recovery tab. The view is a virtual one: it asks for what it shows, so that ten
// thousand associations are there at once. Its keys come to the tab as commands.
class AssociationView {
public:
    // Both outlive the view.
    AssociationView(AssociationList& list, ScenarioLooks& looks) noexcept : list_(list), looks_(looks) {}
    AssociationView(const AssociationView&) = delete;
    AssociationView& operator=(const AssociationView&) = delete;

    void Attach(HWND window);
    // Shows the list as it is now. Widths stay until FitColumns.
    void Refill() const;
    void FitColumns() const;
    void Redraw(int from, int to) const { ListView_RedrawItems(view_.Window(), from, to); }
    // After a change of the theme or the resolution.
    void MakeImages() const;

    // The selected row, or kNoRow.
    int Selected() const;
    void Select(int row) const { view_.Select(row); }
    int IconOf(int row) const;
    HWND Window() const noexcept { return view_.Window(); }

    // What the view asks: text, icon and check box of a row, and the row that typing looks for.
    bool OnNotify(NMHDR& header, LRESULT& answer) const;
    // The row whose check box was clicked, or kNoRow.
    int ClickedCheckBox(const NMITEMACTIVATE& click) const;

private:
    int LongestName() const;
    void Show(LVITEMW& item) const;
    static LRESULT CALLBACK KeyProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

    AssociationList& list_;
    ScenarioLooks& looks_;
    ui::ListView view_{nullptr};
};

}  // namespace recoveryui::settings

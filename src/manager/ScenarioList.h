// The "Scenarios" list. The view is a virtual one: it asks for what it shows, so that a file of any
// length is there at once.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/ListView.h"

namespace recoveryui::manager {

class ScenarioList {
public:
    // The icon of a scenario: its trigger's kind, or kUnreadable.
    static constexpr int kUnreadable = 4;
    using ImageOf = std::function<int(const std::wstring& name)>;

    void Attach(HWND window, ImageOf imageOf);
    void Fill(std::vector<std::wstring> names);
    // After a change of the resolution.
    void MakeImages() const;
    // Leaves room for the scroll bar; after every change of the view's size.
    void FitColumn() const;

    const std::vector<std::wstring>& Names() const noexcept { return names_; }
    int Count() const noexcept { return static_cast<int>(names_.size()); }
    // The selected row, or -1.
    int Selected() const;
    void Select(int row) const { view_.Select(row); }
    HWND Window() const noexcept { return view_.Window(); }

    // What the view asks: text and icon of a row, and the row that typing looks for.
    bool OnNotify(NMHDR& header, LRESULT& answer);

private:
    void Show(LVITEMW& item);

    ui::ListView view_{nullptr};
    ImageOf imageOf_;
    std::vector<std::wstring> names_;
    std::vector<signed char> images_;  // kUnknown until it was shown
};

}  // namespace recoveryui::manager

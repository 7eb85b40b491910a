// A report list over an HWND that somebody else owns.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <span>
#include <string>
#include <vector>

namespace recoveryui::ui {

class ListView {
public:
    explicit ListView(HWND window) noexcept : window_(window) {}

    HWND Window() const noexcept { return window_; }
    void SetExtendedStyle(DWORD style) const;
    // Small icons of the module, in place of those before.
    void SetIcons(std::span<const int> ids) const;
    void AddColumn(const std::wstring& title) const;
    // Gives the index of the new row; -1 on failure.
    int InsertRow(int index, const std::wstring& text, int image = -1, LPARAM data = 0) const;
    void SetText(int row, int column, const std::wstring& text) const;
    std::wstring Text(int row, int column) const;
    void DeleteRow(int row) const;
    void Clear() const;
    int Count() const;

    // The first selected row, or -1.
    int Selected() const;
    std::vector<int> AllSelected() const;
    // Makes it the only selected row, focused and in view; -1 clears the selection.
    void Select(int row) const;
    void ClearSelection() const;

    void FitColumnToContents(int column) const;
    void FitColumnToHeader(int column) const;
    // To the wider of the two.
    void FitColumn(int column) const;

    // Filling many rows without redrawing each: a scope.
    class Filling {
    public:
        explicit Filling(const ListView& list);
        ~Filling();
        Filling(const Filling&) = delete;
        Filling& operator=(const Filling&) = delete;

    private:
        HWND window_;
    };

private:
    int HeaderWidth(int column) const;

    HWND window_;
};

}  // namespace recoveryui::ui

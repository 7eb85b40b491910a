// A modal property sheet or wizard that owns its pages.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ui/PropertyPage.h"

// commctrl names its function by a macro of the class's name.
#undef PropertySheet

namespace recoveryui::ui {

class PropertySheet {
public:
    PropertySheet(const PropertySheet&) = delete;
    PropertySheet& operator=(const PropertySheet&) = delete;

protected:
    enum class Kind { Tabbed, Wizard };

    PropertySheet(Kind kind, std::wstring title) noexcept : kind_(kind), title_(std::move(title)) {}
    ~PropertySheet() = default;

    void AddPage(std::unique_ptr<PropertyPage> page) { pages_.push_back(std::move(page)); }
    // Runs until the user leaves; true after OK or Finish. Throws HResultError when it cannot be shown.
    bool ShowModal(HWND owner);

private:
    Kind kind_;
    std::wstring title_;
    std::vector<std::unique_ptr<PropertyPage>> pages_;
    com::LiveObject live_;
};

}  // namespace recoveryui::ui

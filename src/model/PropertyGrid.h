// The properties of one test object in a list with the columns "Property" and "Value".
#pragma once

#include <string>
#include <vector>

#include "com/Ptr.h"
#include "model/ObjectProperty.h"
#include "ui/ListView.h"

namespace recoveryui::model {

class PropertyGrid {
public:
    enum class Use { Check, ReadOnly };
    enum class Rows { All, Identifying };

    // Takes a list over, once.
    void SetUp(HWND list, Use use);
    // Shows an object's properties; none empties the grid.
    void Show(ITestObject* object, Rows rows);

    const ui::ListView& List() const noexcept { return list_; }
    // The property of a row as the object has it; null for no such row.
    const ObjectProperty* At(int row) const noexcept;

    // Whether a notification says that the user has ticked or cleared a row's box.
    static bool IsTick(const NMLISTVIEW& change) noexcept;
    // Writes what the box of a row says; the box follows the object when that fails.
    [[nodiscard]] HRESULT WriteTick(int row);
    // Those of all rows.
    [[nodiscard]] HRESULT WriteTicks();
    // Writes a value and shows it.
    [[nodiscard]] HRESULT WriteValue(int row, com::Variant value, bool isRegex);

private:
    bool IsTicked(int row) const;
    void ShowTick(int row) const;
    void ShowValue(int row) const;

    ui::ListView list_{nullptr};
    Use use_ = Use::ReadOnly;
    com::Ptr<ITestObject> object_;
    std::vector<ObjectProperty> properties_;
};

}  // namespace recoveryui::model

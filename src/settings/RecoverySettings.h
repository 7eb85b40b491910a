#pragma once

#include <optional>
#include <string>

#include "RecoveryUI.h"
#include "model/Activation.h"
#include "model/RecordString.h"
#include "model/TestOptions.h"
#include "settings/AssociationList.h"

namespace recoveryui::settings {

// What the Recovery tab edits: the scenarios of the test and when they are activated. Read from the host's
// options and written back to them. Without options it is empty, and nothing can be written.
class RecoverySettings {
public:
    void Load(IObjectRack* rack);

    AssociationList list;
    model::ActivationItem activation = model::ActivationItem::None;
    // The row that the user is on.
    int currentRow = kNoRow;

    // After a change of the list or the activation.
    void Changed() noexcept { changed_ = true; }
    bool CanSetAsDefault() const;

    // For the current test, and for new tests. False when a value was refused.
    bool Apply() const { return Write(model::options::kScenarios, model::TestOptions::Store::CurrentTest); }
    bool SetAsDefault();

    // The full form of a path that the user chose.
    std::wstring FullPath(const std::wstring& path) const { return toFull_ ? toFull_(path) : path; }

private:
    std::wstring Records() const;
    bool Write(const wchar_t* name, model::TestOptions::Store store) const;

    std::optional<model::TestOptions> options_;
    model::PathConversion toFull_;
    model::PathConversion toStored_;
    // The record strings of the test and of the defaults, absent where nothing is stored. The first one is as
    // it was read while nothing has changed.
    std::optional<std::wstring> current_;
    std::optional<std::wstring> defaults_;
    bool changed_ = false;
};

}  // namespace recoveryui::settings

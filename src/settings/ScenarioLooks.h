#pragma once

#include <string>
#include <unordered_map>

#include "RecoveryUI.h"
#include "com/Ptr.h"
#include "settings/AssociationList.h"
#include "settings/TabButtons.h"

namespace recoveryui::settings {

// What the tab shows of a scenario beyond its name. The defaults stand for one that cannot be read.
struct ScenarioLook {
    int icon = kIconUnreadable;
    std::wstring description;
};

// Reads recovery files when something of them is to be shown, each file once for all of its scenarios.
class ScenarioLooks {
public:
    explicit ScenarioLooks(IObjectRack* rack) noexcept : rack_(rack) {}

    // `all` are the associations among which others of the same file may be.
    const ScenarioLook& Of(const ScenarioAssociation& shown, const AssociationList& all);
    // The file is read again when it is next needed.
    void Forget(const std::wstring& file) { files_.erase(file); }

private:
    using File = std::unordered_map<std::wstring, ScenarioLook>;
    void Read(const std::wstring& path, const AssociationList& all, File& file) const;

    com::Ptr<IObjectRack> rack_;
    std::unordered_map<std::wstring, File> files_;
};

}  // namespace recoveryui::settings

#include "settings/ScenarioLooks.h"

#include "model/Repository.h"
#include "model/ScenarioReading.h"

namespace recoveryui::settings {

const ScenarioLook& ScenarioLooks::Of(const ScenarioAssociation& shown, const AssociationList& all) {
    static const ScenarioLook kUnreadable;
    // While the host reads the file it may have the list read anew: nothing of it is held meanwhile.
    const std::wstring name(shown.name);
    const auto [known, isNew] = files_.try_emplace(std::wstring(shown.file));
    File& file = known->second;
    if (isNew) Read(known->first, all, file);
    const auto look = file.find(name);
    return look == file.end() ? kUnreadable : look->second;
}

void ScenarioLooks::Read(const std::wstring& path, const AssociationList& all, File& file) const {
    model::Repository repository;
    if (FAILED(model::Repository::Create(rack_.Get(), repository)) || FAILED(repository.Load(path, true)))
        return;
    for (int row = 0; row < all.Size(); ++row) {
        const ScenarioAssociation& item = all.Items()[row];
        if (item.file != path) continue;
        com::Ptr<IUnknown> scenario;
        const std::wstring name(item.name);
        if (file.contains(name) || FAILED(repository.Scenario(name, scenario))) continue;
        const auto kind = model::TriggerKindOf(scenario.Get());
        file[name] = {kind ? static_cast<int>(*kind) : kIconUnreadable, model::DescriptionOf(scenario.Get())};
    }
}

}  // namespace recoveryui::settings

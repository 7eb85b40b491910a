#include "settings/RecoverySettings.h"

#include <memory>
#include <unordered_map>

#include "com/Ptr.h"
#include "model/DefaultsComparison.h"
#include "model/FileLocator.h"

namespace recoveryui::settings {
namespace {

using Store = model::TestOptions::Store;
namespace options = model::options;

// Every change writes all paths anew: the host is asked for each of them once.
model::PathConversion Remembering(IObjectRack* rack,
                                  std::wstring (*convert)(IObjectRack*, const std::wstring&)) {
    auto known = std::make_shared<std::unordered_map<std::wstring, std::wstring>>();
    return [rack = com::Ptr<IObjectRack>(rack), convert, known](const std::wstring& path) {
        const auto found = known->find(path);
        if (found != known->end()) return found->second;
        return known->emplace(path, convert(rack.Get(), path)).first->second;
    };
}

}  // namespace

void RecoverySettings::Load(IObjectRack* rack) {
    toFull_ = Remembering(rack, &model::FullPath);
    toStored_ = Remembering(rack, &model::StoredPath);
    if (!options_) options_ = model::TestOptions::Fetch(rack);
    current_ = options_ ? options_->ReadText(options::kScenarios) : std::nullopt;
    defaults_ = options_ ? options_->ReadText(options::kDefaultScenarios) : std::nullopt;
    const auto enabled = options_ ? options_->ReadInteger(options::kEnabled) : std::nullopt;
    changed_ = false;
    model::Texts texts;
    texts.push_front(current_.value_or(std::wstring()));
    auto records = model::ReadRecords(texts.front(), toFull_, texts);
    list = AssociationList(std::move(records), std::move(texts));
    activation = model::ActivationOnReading(enabled, list.Items());
}

bool RecoverySettings::CanSetAsDefault() const {
    if (!options_) return false;
    // That anything differs from nothing is known without writing all of it.
    if (changed_ && !defaults_) return true;
    return model::CanSetAsDefault(changed_ ? Records() : current_, defaults_);
}

bool RecoverySettings::SetAsDefault() {
    if (!Write(options::kDefaultScenarios, Store::Defaults)) return false;
    current_ = defaults_ = Records();
    changed_ = false;
    return true;
}

std::wstring RecoverySettings::Records() const {
    return model::WriteRecords(list.Items(), model::ActivationToWrite(activation, list.Items()).mode,
                               toStored_);
}

bool RecoverySettings::Write(const wchar_t* name, Store store) const {
    const auto values = model::ActivationToWrite(activation, list.Items());
    return options_ && options_->WriteInteger(options::kEnabled, values.enabled, store) &&
           options_->WriteText(name, Records(), store);
}

}  // namespace recoveryui::settings

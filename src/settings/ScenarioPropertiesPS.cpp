#include "settings/ScenarioPropertiesPS.h"

#include <optional>
#include <utility>
#include <vector>

#include "model/ScenarioReading.h"
#include "resources/ids.h"
#include "settings/ActionsProperties.h"
#include "settings/CrashTriggerProperties.h"
#include "settings/ErrorTriggerProperties.h"
#include "settings/GeneralProperties.h"
#include "settings/ObjectStateTriggerProperties.h"
#include "settings/PopupTriggerProperties.h"
#include "settings/PostRecoveryProperties.h"
#include "ui/Strings.h"

namespace recoveryui::settings {
namespace {

std::optional<std::int32_t> KindOf(IUnknown* object) {
    const auto trigger = com::Query<IRecoveryTrigger>(object);
    long kind = 0;
    if (!trigger || FAILED(trigger->GetTriggerKind(&kind))) return std::nullopt;
    return static_cast<std::int32_t>(kind);
}

// What is no operation is passed over.
HRESULT ReadOperations(IRecoveryScenario& scenario, std::vector<com::Ptr<IRecoveryAction>>& operations) {
    std::vector<com::Ptr<IUnknown>> elements;
    const HRESULT hr = model::ReadOperationElements(scenario, elements);
    for (const auto& element : elements) {
        if (auto operation = com::Query<IRecoveryAction>(element.Get()))
            operations.push_back(std::move(operation));
    }
    return hr;
}

}  // namespace

ScenarioPropertiesPS::ScenarioPropertiesPS(IRecoveryScenario& scenario, IUnknown* trigger,
                                           const std::wstring& file, const std::wstring& name,
                                           IObjectRack* rack)
    : PropertySheet(Kind::Tabbed, ui::LoadText(IDS_PROPERTIES_TITLE)) {
    std::vector<com::Ptr<IRecoveryAction>> operations;
    long option = 0;
    const bool read =
        SUCCEEDED(ReadOperations(scenario, operations)) && SUCCEEDED(scenario.GetPostRecoveryOption(&option));
    for (const SheetPage page : PagesOf(KindOf(trigger), read)) {
        switch (page) {
            case SheetPage::General:
                AddPage(
                    std::make_unique<GeneralProperties>(file, name, model::DescriptionOf(&scenario), rack));
                break;
            case SheetPage::Actions:
                AddPage(std::make_unique<ActionsProperties>(
                    operations, ShowsRestart(static_cast<std::int32_t>(option)), rack));
                break;
            case SheetPage::PostRecovery:
                AddPage(std::make_unique<PostRecoveryProperties>(option, rack));
                break;
            default: AddTriggerPage(page, trigger, rack);
        }
    }
}

void ScenarioPropertiesPS::AddTriggerPage(SheetPage page, IUnknown* trigger, IObjectRack* rack) {
    switch (page) {
        case SheetPage::ObjectState:
            return AddPage(std::make_unique<ObjectStateTriggerProperties>(trigger, rack));
        case SheetPage::Popup: return AddPage(std::make_unique<PopupTriggerProperties>(trigger, rack));
        case SheetPage::Error: return AddPage(std::make_unique<ErrorTriggerProperties>(trigger, rack));
        case SheetPage::Crash: return AddPage(std::make_unique<CrashTriggerProperties>(trigger, rack));
        default: return;
    }
}

}  // namespace recoveryui::settings

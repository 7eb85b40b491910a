#include "settings/ActionsProperties.h"

#include <utility>

#include "model/OperationsList.h"
#include "resources/ids.h"

namespace recoveryui::settings {

ActionsProperties::ActionsProperties(std::vector<com::Ptr<IRecoveryAction>> operations, bool restart,
                                     IObjectRack* rack) noexcept
    : PropertiesPage(IDD_PROPERTIES_ACTIONS, rack), operations_(std::move(operations)), restart_(restart) {}

void ActionsProperties::OnInit() {
    const ui::ListView list(Item(IDC_PROPERTIES_OPERATIONS));
    model::SetUpOperationsList(list);
    model::FillOperationsList(list, operations_, restart_, Rack());
}

}  // namespace recoveryui::settings

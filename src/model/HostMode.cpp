#include "model/HostMode.h"

#include "HostInterfaces.h"
#include "shell/Rack.h"

namespace recoveryui::model {

bool HostModeSaysYes(IObjectRack* rack) {
    com::Ptr<IHostApplication> application;
    VARIANT_BOOL yes = VARIANT_FALSE;
    return SUCCEEDED(shell::FetchAnywhere(rack, L"HostApplication", application)) &&
           SUCCEEDED(application->HostModeQuery(&yes)) && yes != VARIANT_FALSE;
}

}  // namespace recoveryui::model

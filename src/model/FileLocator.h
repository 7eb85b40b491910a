// Paths between the form in which they are stored and the full form, through the host's file locator.
#pragma once

#include <string>

#include "HostInterfaces.h"
#include "RecoveryUI.h"
#include "com/Ptr.h"

namespace recoveryui::model {

// The rack's locator, else the one of its plug-in manager; may be null.
com::Ptr<IFileLocator> FindLocator(IObjectRack* rack);

// Each keeps the path as it stands when there is no locator, or when it gives nothing.
std::wstring FullPath(IObjectRack* rack, const std::wstring& stored);
std::wstring StoredPath(IObjectRack* rack, const std::wstring& full);

}  // namespace recoveryui::model

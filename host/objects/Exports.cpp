#include "com/Module.h"
#include "objects/Classes.h"

STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, void** factory) {
    return recoveryui::com::GetClassObject(tovarin::Classes(), clsid, iid, factory);
}

STDAPI DllCanUnloadNow() {
    return recoveryui::com::Module::CanUnload() ? S_OK : S_FALSE;
}

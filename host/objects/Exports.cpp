#include "com/Module.h"
#include "objects/Classes.h"
#include "objects/Registration.h"

STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, void** factory) {
    return recoveryui::com::GetClassObject(tovarin::Classes(), clsid, iid, factory);
}

STDAPI DllCanUnloadNow() {
    return recoveryui::com::Module::CanUnload() ? S_OK : S_FALSE;
}

STDAPI DllRegisterServer() {
    return tovarin::RegisterClasses(tovarin::Classes());
}

STDAPI DllUnregisterServer() {
    return tovarin::UnregisterClasses(tovarin::Classes());
}

// The module's entry points.
#include <windows.h>

#include "com/ExceptionReserve.h"
#include "com/Module.h"
#include "shell/Classes.h"
#include "shell/Registration.h"

STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, LPVOID* factory) {
    return recoveryui::com::GetClassObject(recoveryui::shell::Classes(), clsid, iid, factory);
}

STDAPI DllCanUnloadNow() {
    return recoveryui::com::Module::CanUnload() ? S_OK : S_FALSE;
}

STDAPI DllRegisterServer() {
    return recoveryui::shell::RegisterServer(recoveryui::shell::Classes());
}

STDAPI DllUnregisterServer() {
    return recoveryui::shell::UnregisterServer(recoveryui::shell::Classes());
}

// When the process itself ends, `ending` is set and the memory goes with it.
extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID ending) {
    if (reason == DLL_PROCESS_DETACH && !ending) recoveryui::com::ReleaseExceptionReserve();
    return TRUE;
}

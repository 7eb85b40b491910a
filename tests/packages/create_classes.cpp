// create_classes PROGID...: what any program on the machine finds: makes an object of each registered class
// and loads the registered type library. Says what is missing; the exit code counts it.
#include <windows.h>

#include <oleauto.h>

#include <cstdio>

#include "RecoveryUI.h"
#include "com/Create.h"

namespace com = recoveryui::com;

int wmain(int count, wchar_t** arguments) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    int missing = 0;
    const auto need = [&](const wchar_t* what, HRESULT hr) {
        if (SUCCEEDED(hr)) return;
        std::printf("%ls: %08lx\n", what, static_cast<unsigned long>(hr));
        ++missing;
    };
    for (int i = 1; i < count; ++i) {
        com::Ptr<IUnknown> object;
        need(arguments[i], com::Create(arguments[i], object));
    }
    com::Ptr<ITypeLib> library;
    need(L"the type library", LoadRegTypeLib(LIBID_RecoveryUILib, 1, 0, 0, library.GetAddressOf()));
    return missing;
}

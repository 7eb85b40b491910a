#include "app/Host.h"

#include <windows.h>

#include <commctrl.h>

#include <optional>

#include "app/HostServices.h"
#include "app/MainWindow.h"
#include "app/Text.h"
#include "app/ids.h"

namespace tovarin {
namespace {

class Apartment {
public:
    Apartment() { com::Check(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)); }
    ~Apartment() { CoUninitialize(); }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
};

void Run(HostServices& services, const HostOptions& options) {
    MainWindow window(services);
    services.FillRacks();
    if (!options.settingsPath.empty()) {
        if (const auto test = services.Find<ITestFile>(L"TestOptions"))
            com::Check(test->SetSettingsRegistryPath(com::Bstr(options.settingsPath).Get()));
    }
    window.Show(options.show);
    window.Test().New(window.Window());
    if (!options.testFile.empty()) window.Test().OpenFile(window.Window(), options.testFile);
    const HRESULT connected = services.ConnectAddIn();
    if (FAILED(connected))
        ShowMessage(window.Window(),
                    FormatText(IDS_ADDIN_FAILED, {HostServices::kAddIn, DescribeResult(connected)}));
    window.Run();
    services.AddIns().DisconnectAll();
    if (!options.journalFile.empty())
        com::Check(services.Journal()->WriteToFile(com::Bstr(options.journalFile).Get()));
}

}  // namespace

int RunHost(const HostOptions& options) {
    try {
        INITCOMMONCONTROLSEX classes{sizeof classes,
                                     ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES | ICC_TAB_CLASSES};
        InitCommonControlsEx(&classes);
        const Apartment apartment;
        std::optional<HostServices> services;
        const HRESULT created = com::Guarded([&] { services.emplace(); });
        if (FAILED(created)) {
            ShowMessage(nullptr, FormatText(IDS_NO_OBJECTS, {DescribeResult(created)}), MB_OK | MB_ICONERROR);
            return 1;
        }
        Run(*services, options);
        return 0;
    } catch (...) {
        ReportException(nullptr);
        return 1;
    }
}

}  // namespace tovarin

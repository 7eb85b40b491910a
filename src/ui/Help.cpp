#include "ui/Help.h"

#include <shellapi.h>

#include <string>

#include "HostInterfaces.h"
#include "com/Bstr.h"
#include "com/Module.h"
#include "resources/ids.h"
#include "shell/Rack.h"
#include "ui/Messages.h"
#include "ui/Strings.h"

namespace recoveryui::ui {
namespace {

bool ShowInHost(HWND window, const wchar_t* topic, IObjectRack* rack) {
    com::Ptr<IHelpViewer> viewer;
    if (FAILED(shell::Fetch(rack, L"HelpViewer", viewer))) return false;
    const auto handle = static_cast<long>(reinterpret_cast<LONG_PTR>(window));
    return SUCCEEDED(viewer->ShowTopic(handle, com::Bstr(topic).Get()));
}

}  // namespace

void ShowHelpTopic(HWND window, const wchar_t* topic, IObjectRack* rack) {
    if (ShowInHost(window, topic, rack)) return;
    const std::wstring module = com::Module::FileName();
    const std::wstring file = module.substr(0, module.rfind(L'\\') + 1) + L"help\\" + topic;
    const auto result = reinterpret_cast<INT_PTR>(
        ShellExecuteW(window, nullptr, file.c_str(), nullptr, nullptr, SW_SHOWNORMAL));
    if (result <= 32) ShowMessage(window, FormatText(IDS_HELP_MISSING, {file}));
}

}  // namespace recoveryui::ui

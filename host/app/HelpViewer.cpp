#include "app/HelpViewer.h"

#include <shellapi.h>

#include "app/Text.h"
#include "app/ids.h"

namespace tovarin {
namespace {

void Show(HWND owner, const std::wstring& topic) {
    const std::wstring program = com::Module::FileName();
    const std::wstring file = program.substr(0, program.rfind(L'\\') + 1) + L"help\\" + topic;
    if (GetFileAttributesW(file.c_str()) == INVALID_FILE_ATTRIBUTES) {
        ShowMessage(owner, FormatText(IDS_HELP_MISSING, {topic}));
        return;
    }
    const auto result = reinterpret_cast<INT_PTR>(
        ShellExecuteW(owner, nullptr, file.c_str(), nullptr, nullptr, SW_SHOWNORMAL));
    if (result <= 32) ShowMessage(owner, FormatText(IDS_HELP_NO_VIEWER, {topic}));
}

}  // namespace

HRESULT HelpViewer::ShowTopic(LONG window, BSTR topic) noexcept {
    return Call(L"ShowTopic", window, topic).Answer([&] {
        const std::wstring name(com::ViewOf(topic));
        if (name.empty() || name.find_first_of(std::wstring_view(L"\\/:\0", 4)) != std::wstring::npos)
            return E_INVALIDARG;
        Show(reinterpret_cast<HWND>(static_cast<LONG_PTR>(window)), name);
        return S_OK;
    });
}

}  // namespace tovarin

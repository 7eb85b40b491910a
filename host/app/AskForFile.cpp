#include "app/AskForFile.h"

#include <shobjidl.h>

#include <vector>

#include "app/Text.h"
#include "com/Guard.h"
#include "com/Ptr.h"

namespace tovarin {
namespace com = recoveryui::com;
namespace {

std::vector<std::wstring> Split(const std::wstring& text) {
    std::vector<std::wstring> parts(1);
    for (const wchar_t character : text) {
        if (character == L'|') {
            parts.emplace_back();
        } else {
            parts.back() += character;
        }
    }
    return parts;
}

com::Ptr<IFileDialog> NewDialog(bool save) {
    com::Ptr<IFileDialog> dialog;
    com::Check(CoCreateInstance(save ? CLSID_FileSaveDialog : CLSID_FileOpenDialog, nullptr,
                                CLSCTX_INPROC_SERVER, __uuidof(IFileDialog),
                                reinterpret_cast<void**>(dialog.GetAddressOf())));
    return dialog;
}

}  // namespace

std::wstring AskForFile(const FileQuestion& question) {
    const com::Ptr<IFileDialog> dialog = NewDialog(question.save);
    const std::vector<std::wstring> words = Split(LoadText(question.filter));
    std::vector<COMDLG_FILTERSPEC> filters;
    for (size_t index = 0; index + 1 < words.size(); index += 2)
        filters.push_back({words[index].c_str(), words[index + 1].c_str()});
    com::Check(dialog->SetFileTypes(static_cast<UINT>(filters.size()), filters.data()));
    com::Check(dialog->SetDefaultExtension(question.extension));
    FILEOPENDIALOGOPTIONS options = 0;
    com::Check(dialog->GetOptions(&options));
    com::Check(dialog->SetOptions(options | FOS_FORCEFILESYSTEM));
    if (!question.suggestion.empty())
        dialog->SetFileName(question.suggestion.substr(question.suggestion.rfind(L'\\') + 1).c_str());

    const HRESULT shown = dialog->Show(question.owner);
    if (shown == HRESULT_FROM_WIN32(ERROR_CANCELLED)) return {};
    com::Check(shown);
    com::Ptr<IShellItem> item;
    com::Check(dialog->GetResult(item.GetAddressOf()));
    LPWSTR path = nullptr;
    com::Check(item->GetDisplayName(SIGDN_FILESYSPATH, &path));
    std::wstring chosen = path;
    CoTaskMemFree(path);
    return chosen;
}

}  // namespace tovarin

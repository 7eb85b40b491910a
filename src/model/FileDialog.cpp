#include "model/FileDialog.h"

#include <windows.h>

#include "com/Automation.h"
#include "com/Create.h"
#include "model/FileNames.h"

namespace recoveryui::model {
namespace {

HRESULT Put(IDispatch* dialog, const wchar_t* name, const std::wstring& value) {
    return value.empty() ? S_OK : com::PutProperty(dialog, name, com::Variant(value));
}

HRESULT Put(IDispatch* dialog, const wchar_t* name, std::optional<bool> value) {
    return value ? com::PutProperty(dialog, name, com::Variant(*value)) : S_OK;
}

HRESULT Prepare(IDispatch* dialog, const FileDialogRequest& request) {
    HRESULT hr = Put(dialog, L"InitialVirtualPath", request.initialPath);
    if (SUCCEEDED(hr)) hr = Put(dialog, L"CreateAttachmnet", request.createAttachment);
    if (SUCCEEDED(hr)) hr = Put(dialog, L"SetCheckAttachmentExistence", request.checkAttachmentExistence);
    if (SUCCEEDED(hr)) hr = Put(dialog, L"FileFilter", request.filter);
    if (SUCCEEDED(hr)) hr = Put(dialog, L"ShowFileSystemButton", request.showFileSystemButton);
    if (SUCCEEDED(hr)) hr = Put(dialog, L"SetDialogCaption", request.caption);
    if (SUCCEEDED(hr)) hr = Put(dialog, L"SetDialogCaption4FileSystem", request.caption);
    if (SUCCEEDED(hr)) hr = Put(dialog, L"InitialTestName", request.initialTestName);
    return hr;
}

}  // namespace

std::optional<std::wstring> AskForFile(const FileDialogRequest& request) {
    com::Ptr<IDispatch> dialog;
    if (FAILED(com::Create(L"Vantrel.TovCommonFileDialog", dialog)) || FAILED(Prepare(dialog.Get(), request)))
        return std::nullopt;
    const com::Variant open(request.open);
    com::Variant path;
    if (FAILED(com::CallMethod(dialog.Get(), L"DoModal", {&open, 1}, &path)) || IsCancelledPath(path.Text()))
        return std::nullopt;
    return std::wstring(path.Text());
}

}  // namespace recoveryui::model

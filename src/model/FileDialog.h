// The host's file dialog.
#pragma once

#include <optional>
#include <string>

namespace recoveryui::model {

struct FileDialogRequest {
    bool open = true;  // false: a file to save to
    std::wstring filter;
    std::wstring caption;
    // What is absent or empty is not given to the dialog, which then keeps its own default.
    std::wstring initialPath = {};
    std::wstring initialTestName = {};
    std::optional<bool> createAttachment = {};
    std::optional<bool> checkAttachmentExistence = {};
    std::optional<bool> showFileSystemButton = {};
};

// The path that the user chose; nothing after Cancel, or when the dialog cannot be shown.
std::optional<std::wstring> AskForFile(const FileDialogRequest& request);

}  // namespace recoveryui::model

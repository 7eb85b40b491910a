#pragma once

#include <string>
#include <string_view>

namespace recoveryui::model {

// Whether what a file dialog gave back means cancel: nothing but white space.
bool IsCancelledPath(std::wstring_view path);

// The path to save under: `extension` is added when the path has no "." anywhere, folders included.
// Repository paths are left as they were chosen.
std::wstring PathToSave(const std::wstring& path, std::wstring_view extension);

// What follows the last folder separator.
std::wstring_view FileNamePart(std::wstring_view path);

// The drive or share of a full path ("C:", "\\server\share"), empty when it has none.
std::wstring_view DrivePart(std::wstring_view path);

// The form of a full path that the platform takes at any length; shorter paths stay as they are.
std::wstring ExtendedLengthPath(const std::wstring& path);

}  // namespace recoveryui::model

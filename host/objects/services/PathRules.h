// How the file locator reads paths: relative, full, or of the test-management repository. Nothing here
// looks at the disk.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tovarin {

enum class PathKind { Relative, Full, Repository };

// Drives, shares and a leading backslash make a path full.
PathKind KindOf(std::wstring_view path);

// Backslashes only, "." and ".." taken out, no backslash at the end. Nothing when ".." leads out of a root
// or of a relative path's start.
std::optional<std::wstring> Normalized(std::wstring_view path);

std::wstring Joined(std::wstring_view folder, std::wstring_view relative);

// How the platform compares names of files.
using NameComparer = bool (*)(std::wstring_view first, std::wstring_view second);

// What remains of a full path below a folder; nothing when it does not lie there.
std::optional<std::wstring> Below(std::wstring_view path, std::wstring_view folder, NameComparer same);

// "[Ondrafel] Subject\a.vbs" is the file "Ondrafel\Subject\a.vbs" below the repository folder, and back.
// Nothing for any other path, and for one that leads out of the folder.
std::optional<std::wstring> RepositoryFile(std::wstring_view path, std::wstring_view repositoryFolder);
std::optional<std::wstring> RepositoryPath(std::wstring_view file, std::wstring_view repositoryFolder,
                                           NameComparer same);

}  // namespace tovarin

// Paths of the two test-management repositories, told from paths of the file system.
#pragma once

#include <string>
#include <string_view>

namespace recoveryui::support {

// Whether the path lies in a test-management repository. Leading white space and the case of the
// prefix do not matter.
bool IsRepositoryPath(std::wstring_view path);

// The path as a person is shown it. Repository paths are written for people already, and a path of the
// file system has no other form.
std::wstring DisplayForm(std::wstring_view path);

}  // namespace recoveryui::support

#include "model/FileNames.h"

#include <algorithm>

#include "support/RepositoryPath.h"
#include "support/Text.h"

namespace recoveryui::model {
namespace {

// CreateDirectoryW already fails from 248 characters on.
constexpr std::size_t kLongestPlainPath = 247;
constexpr std::wstring_view kSeparators = L"\\/";

bool IsSeparator(wchar_t c) {
    return kSeparators.find(c) != std::wstring_view::npos;
}

bool BeginsWithDrive(std::wstring_view path) {
    if (path.size() < 2 || path[1] != L':') return false;
    const wchar_t letter = path[0] | 0x20;
    return letter >= L'a' && letter <= L'z';
}

bool BeginsWithShare(std::wstring_view path) {
    return path.size() > 2 && IsSeparator(path[0]) && IsSeparator(path[1]) && path[2] != L'?' &&
           path[2] != L'.';
}

}  // namespace

bool IsCancelledPath(std::wstring_view path) {
    return support::TrimWhiteSpace(path).empty();
}

std::wstring PathToSave(const std::wstring& path, std::wstring_view extension) {
    if (path.find(L'.') != std::wstring::npos || support::IsRepositoryPath(path)) return path;
    return path + std::wstring(extension);
}

std::wstring_view FileNamePart(std::wstring_view path) {
    const std::size_t separator = path.find_last_of(kSeparators);
    return separator == std::wstring_view::npos ? path : path.substr(separator + 1);
}

std::wstring_view DrivePart(std::wstring_view path) {
    constexpr std::wstring_view extended = L"\\\\?\\";
    if (path.starts_with(extended) && BeginsWithDrive(path.substr(extended.size())))
        path.remove_prefix(extended.size());
    if (BeginsWithDrive(path)) return path.substr(0, 2);
    if (!BeginsWithShare(path)) return {};
    const std::size_t afterServer = path.find_first_of(kSeparators, 2);
    if (afterServer == std::wstring_view::npos) return path;
    return path.substr(0, path.find_first_of(kSeparators, afterServer + 1));
}

std::wstring ExtendedLengthPath(const std::wstring& path) {
    if (path.size() <= kLongestPlainPath) return path;
    std::wstring extended;
    if (BeginsWithShare(path)) {
        extended = L"\\\\?\\UNC\\" + path.substr(2);
    } else if (BeginsWithDrive(path)) {
        extended = L"\\\\?\\" + path;
    } else {
        return path;
    }
    std::replace(extended.begin(), extended.end(), L'/', L'\\');  // not translated behind the prefix
    return extended;
}

}  // namespace recoveryui::model

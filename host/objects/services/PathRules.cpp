#include "objects/services/PathRules.h"

#include <vector>

namespace tovarin {
namespace {

// A prefix in small letters, and the folder that stands for it. Only one needs the blank behind it.
struct Repository {
    std::wstring_view prefix;
    std::wstring_view folder;
};
constexpr Repository kRepositories[] = {{L"[ondrafel]", L"Ondrafel"}, {L"[brevalon] ", L"Brevalon"}};

constexpr bool IsSlash(wchar_t character) {
    return character == L'\\' || character == L'/';
}
constexpr bool IsSpace(wchar_t character) {
    return character == L' ' || (character >= 9 && character <= 13);
}
constexpr wchar_t Small(wchar_t character) {
    return character >= L'A' && character <= L'Z' ? static_cast<wchar_t>(character + 32) : character;
}

std::wstring_view WithoutLeadingSpace(std::wstring_view text) {
    while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
    return text;
}

bool StartsWith(std::wstring_view text, std::wstring_view smallPrefix) {
    if (text.size() < smallPrefix.size()) return false;
    for (size_t index = 0; index < smallPrefix.size(); ++index) {
        if (Small(text[index]) != smallPrefix[index]) return false;
    }
    return true;
}

const Repository* FindRepository(std::wstring_view path) {
    for (const Repository& repository : kRepositories) {
        if (StartsWith(path, repository.prefix)) return &repository;
    }
    return nullptr;
}

// How much of the path names its root: "C:\", "\\server\share", "\". 0 for a relative one.
size_t RootLength(std::wstring_view path) {
    const bool drive =
        path.size() >= 2 && path[1] == L':' && Small(path[0]) >= L'a' && Small(path[0]) <= L'z';
    if (drive) return path.size() >= 3 && IsSlash(path[2]) ? 3 : 2;
    if (path.empty() || !IsSlash(path[0])) return 0;
    if (path.size() < 2 || !IsSlash(path[1])) return 1;
    size_t end = 2;
    for (int name = 0; name < 2; ++name) {
        if (name != 0 && end < path.size()) ++end;
        while (end < path.size() && !IsSlash(path[end])) ++end;
    }
    return end;
}

std::wstring WithBackslashes(std::wstring_view text) {
    std::wstring result(text);
    for (wchar_t& character : result) {
        if (character == L'/') character = L'\\';
    }
    return result;
}

}  // namespace

PathKind KindOf(std::wstring_view path) {
    if (FindRepository(WithoutLeadingSpace(path))) return PathKind::Repository;
    return RootLength(path) != 0 ? PathKind::Full : PathKind::Relative;
}

std::optional<std::wstring> Normalized(std::wstring_view path) {
    const size_t root = RootLength(path);
    std::wstring result = WithBackslashes(path.substr(0, root));
    // ".." is no name of a server or a share
    if ((result + L'\\').find(L"\\..\\") != std::wstring::npos) return std::nullopt;
    std::vector<std::wstring_view> names;
    for (size_t start = root; start < path.size();) {
        size_t end = start;
        while (end < path.size() && !IsSlash(path[end])) ++end;
        const std::wstring_view name = path.substr(start, end - start);
        if (name == L"..") {
            if (names.empty()) return std::nullopt;
            names.pop_back();
        } else if (!name.empty() && name != L".") {
            names.push_back(name);
        }
        start = end + 1;
    }
    for (const std::wstring_view name : names) result = Joined(result, name);
    // "a\..\C:x" was relative
    if (root == 0 && RootLength(result) != 0) return std::nullopt;
    return result;
}

std::wstring Joined(std::wstring_view folder, std::wstring_view relative) {
    std::wstring path(folder);
    // Of what ends in a colon, only a drive takes a name right behind it.
    const bool isDrive = path.size() == 2 && path[1] == L':' && RootLength(path) == 2;
    if (!path.empty() && path.back() != L'\\' && !isDrive) path += L'\\';
    return path.append(relative);
}

std::optional<std::wstring> Below(std::wstring_view path, std::wstring_view folder, NameComparer same) {
    const auto file = Normalized(path), root = Normalized(folder);
    if (!file || !root || root->empty()) return std::nullopt;
    const std::wstring start = Joined(*root, L"");
    if (file->size() <= start.size() || !same(std::wstring_view(*file).substr(0, start.size()), start))
        return std::nullopt;
    return file->substr(start.size());
}

std::optional<std::wstring> RepositoryFile(std::wstring_view path, std::wstring_view repositoryFolder) {
    path = WithoutLeadingSpace(path);
    const Repository* const repository = FindRepository(path);
    if (!repository) return std::nullopt;
    const auto name = Normalized(WithoutLeadingSpace(path.substr(repository->prefix.size())));
    if (!name || name->empty() || RootLength(*name) != 0) return std::nullopt;
    return Joined(Joined(repositoryFolder, repository->folder), *name);
}

std::optional<std::wstring> RepositoryPath(std::wstring_view file, std::wstring_view repositoryFolder,
                                           NameComparer same) {
    if (repositoryFolder.empty()) return std::nullopt;
    for (const Repository& repository : kRepositories) {
        // a blank at the beginning would be read as part of the prefix
        if (const auto name = Below(file, Joined(repositoryFolder, repository.folder), same);
            name && !IsSpace(name->front()))
            return L"[" + std::wstring(repository.folder) + L"] " + *name;
    }
    return std::nullopt;
}

}  // namespace tovarin

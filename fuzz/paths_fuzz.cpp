// Paths as the component, the host's file locator and the file dialog read them.
#include <algorithm>

#include "Fuzz.h"
#include "model/FileNames.h"
#include "objects/services/DialogFilter.h"
#include "objects/services/PathRules.h"
#include "support/RepositoryPath.h"
#include "support/Text.h"

namespace recoveryui::fuzz {
namespace {

bool LeadsOut(std::wstring_view path) {
    return (L"\\" + std::wstring(path) + L"\\").find(L"\\..\\") != std::wstring::npos;
}

void Component(const std::wstring& path) {
    using namespace model;
    const std::wstring saved = PathToSave(path, L".trs");
    Require(saved.starts_with(path) && PathToSave(saved, L".trs") == saved, "an extension is added once");
    Require(path.ends_with(FileNamePart(path)), "the name is the end of the path");
    Require(FileNamePart(path).find_first_of(L"\\/") == std::wstring_view::npos, "a name has no folders");
    Require(path.find(DrivePart(path)) != std::wstring::npos, "the drive is part of the path");
    const std::wstring extended = ExtendedLengthPath(path);
    Require(extended.size() <= path.size() + 6 && ExtendedLengthPath(extended) == extended,
            "a path is extended once");
    Require(!support::IsRepositoryPath(path) || tovarin::KindOf(path) == tovarin::PathKind::Repository,
            "component and host agree on repository paths");
}

void Locator(const std::wstring& path, const std::wstring& folder) {
    using namespace tovarin;
    const NameComparer same = [](std::wstring_view a, std::wstring_view b) { return a == b; };
    if (const auto plain = Normalized(path)) {
        Require(Normalized(*plain) == plain, "a path has one plain form");
        Require(plain->find(L'/') == std::wstring::npos && !LeadsOut(*plain), "which leads straight");
        Require(plain->size() <= path.size() + 1, "and is hardly longer");
    }
    if (const auto file = RepositoryFile(path, folder)) {
        Require(file->starts_with(folder) && !LeadsOut(file->substr(folder.size())),
                "a repository file stays in its folder");
        const auto back = RepositoryPath(*file, folder, same);
        if (back) Require(RepositoryFile(*back, folder) == file, "a repository path names one file");
    }
    if (const auto below = Below(path, folder, same)) {
        Require(!LeadsOut(*below) && !below->empty(), "what lies below a folder stays there");
        Require(Normalized(Joined(*Normalized(folder), *below)) == Normalized(path), "and is found again");
    }
}

}  // namespace

void Fuzz(Input input) {
    const std::wstring path = input.Line(), folder = input.Line(), filter = input.Rest();
    Component(path);
    Component(std::wstring(250, L'a') + path);
    Component(path + std::wstring(250, L'a'));
    Locator(path, folder);
    Locator(folder + L"\\" + path, folder);
    Locator(L"[Ondrafel]" + path, L"C:\\R");

    const std::wstring platform = tovarin::PlatformFilter(filter),
                       extension = tovarin::FirstExtension(filter);
    Require(platform.empty() || platform.ends_with(std::wstring(2, L'\0')), "a filter ends with two NULs");
    Require(platform.size() <= filter.size() + 2, "and is as long as it was");
    Require(extension.empty() || (extension[0] == L'.' && extension.find_first_of(L"*?|;") == extension.npos),
            "an extension can be put behind a name");
}

}  // namespace recoveryui::fuzz

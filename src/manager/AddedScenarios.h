#pragma once

#include <string>
#include <vector>

namespace recoveryui::manager {

// The scenarios that the user asked to add to the current test and to the default test settings. A
// scenario counts once the file that holds it has been saved: a test must not name what was discarded.
class AddedScenarios {
public:
    struct File {
        std::wstring path;
        std::vector<std::wstring> names;

        bool operator==(const File&) const = default;
    };

    // Changes of the open file.
    void Add(const std::wstring& name, bool toCurrent, bool toDefault);
    void Rename(const std::wstring& from, const std::wstring& to);
    void Remove(const std::wstring& name);

    // The open file was saved under the path; and it was left, for another or for good.
    void FileSaved(const std::wstring& path);
    void FileLeft();

    // What is to be added, file by file in the order in which the files were left.
    const std::vector<File>& ForCurrent() const { return forCurrent_; }
    const std::vector<File>& ForDefault() const { return forDefault_; }

private:
    struct Entry {
        std::wstring name;
        bool toCurrent;
        bool toDefault;
    };

    std::vector<Entry> changing_;
    std::vector<Entry> saved_;
    std::wstring savedPath_;
    std::vector<File> forCurrent_;
    std::vector<File> forDefault_;
};

}  // namespace recoveryui::manager

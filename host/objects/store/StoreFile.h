// The file of a repository: taken while it is open for editing, replaced as a whole when it is saved.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace tovarin {

// Failures are structured-storage codes. Nothing changes when an operation fails, but that a save whose file
// another editor takes right afterwards has replaced it.
class StoreFile {
public:
    // Empty for an untitled file.
    const std::wstring& Path() const noexcept { return path_; }

    // Reads a file. For editing the file is taken as well: no other editor can open it until this object
    // lets go; readers can. A file that is already taken by this object may be opened again.
    [[nodiscard]] HRESULT Open(std::wstring_view path, bool readOnly, std::string& bytes);

    // Writes a new file beside the old one and puts it in its place, which then is taken. An empty path
    // means the path opened or last saved to.
    [[nodiscard]] HRESULT Save(std::wstring_view path, std::string_view bytes);

    // Called in the instants of a save in which nobody holds the file: right before the replacement and
    // right after it. Others can take it then, so a test does.
    std::function<void(bool replaced)> whenFree;

private:
    using Handle = std::shared_ptr<void>;
    // What a file looked like when this object last saw it.
    struct Stamp {
        std::uint64_t size = 0;
        std::uint64_t written = 0;
        bool operator==(const Stamp&) const = default;
    };

    static Handle OpenHandle(const std::wstring& path, DWORD access, DWORD share);
    [[nodiscard]] static HRESULT Take(const std::wstring& path, Handle& taken);
    // Puts the new file, `fresh`, in its place. `file`: that one, open; let go when it is there.
    [[nodiscard]] HRESULT Replace(const std::wstring& path, const std::wstring& fresh, Handle& file,
                                  Handle& taken);
    static bool SameFile(const std::wstring& first, const std::wstring& second);
    static Stamp StampOf(const std::wstring& path);

    std::wstring path_;
    bool readOnly_ = false;
    Handle taken_;  // empty: not taken
    Stamp stamp_;
};

// Writes all bytes and has the platform put them on the disk.
[[nodiscard]] HRESULT WriteFlushed(HANDLE file, std::string_view bytes) noexcept;

}  // namespace tovarin

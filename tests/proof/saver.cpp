// Saves one recovery file again and again, until it is killed. It holds nothing but the store, so that
// thousands of it can die in a short time.
//   saver loop|bad-loop FILE         saves the next version for ever; "bad" overwrites the file in place
//   saver die|bad-die FILE CALL      ends itself at the given place of its next save: 1 before the first call
//                                    of the file system, 2 after it, 3 before the second ... 0: counts them
//   saver race|bad-race FILE ROUNDS  opens for editing, saves and lets go; tells which version it replaced;
//                                    "bad" only looks at what it then replaces
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "objects/store/StoreFile.h"
#include "proof/ImportTable.h"
#include "proof/Version.h"

namespace recoveryui::proof {
namespace {

long place = 0, dieAt = 0;
bool isSaving = false;

// Before and after each call.
void Pass() {
    if (!isSaving) return;
    if (++place == dieAt) TerminateProcess(GetCurrentProcess(), 9);
}

void* originals[16];

template <class Function>
struct Hook;
template <class Result, class... Arguments>
struct Hook<Result WINAPI(Arguments...)> {
    template <int slot>
    static Result WINAPI Call(Arguments... arguments) {
        Pass();
        const Result result = reinterpret_cast<Result(WINAPI*)(Arguments...)>(originals[slot])(arguments...);
        const DWORD error = GetLastError();
        Pass();
        SetLastError(error);
        return result;
    }
};

template <int slot, class Function>
void Catch(const char* name, Function*) {
    originals[slot] = PutImport(GetModuleHandleW(nullptr), name,
                                reinterpret_cast<void*>(&Hook<Function>::template Call<slot>));
}

void CatchFileCalls() {
    Catch<0>("CreateFileW", &CreateFileW);
    Catch<1>("WriteFile", &WriteFile);
    Catch<2>("FlushFileBuffers", &FlushFileBuffers);
    Catch<3>("CloseHandle", &CloseHandle);
    Catch<4>("MoveFileExW", &MoveFileExW);
    Catch<5>("DeleteFileW", &DeleteFileW);
    Catch<6>("GetFileAttributesW", &GetFileAttributesW);
    Catch<7>("GetFileAttributesExW", &GetFileAttributesExW);
    Catch<8>("GetFileType", &GetFileType);
    Catch<9>("GetFileInformationByHandle", &GetFileInformationByHandle);
}

bool OverwriteInPlace(const std::wstring& path, const std::string& bytes) {
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    DWORD written = 0;
    for (size_t at = 0; at < bytes.size(); at += written)
        WriteFile(file, bytes.data() + at, static_cast<DWORD>(std::min<size_t>(2048, bytes.size() - at)),
                  &written, nullptr);
    return CloseHandle(file);
}

int Loop(const std::wstring& path, bool bad) {
    tovarin::StoreFile file;
    std::string bytes;
    if (!bad && FAILED(file.Open(path, false, bytes))) return 1;
    for (int version = VersionOf(bytes) + 1;; ++version) {
        const std::string text = TextOfVersion(version);
        if (bad ? !OverwriteInPlace(path, text) : FAILED(file.Save(L"", text))) return 2;
    }
}

int Die(const std::wstring& path, long at, bool bad) {
    CatchFileCalls();
    tovarin::StoreFile file;
    std::string bytes;
    const HRESULT opened = file.Open(path, bad, bytes);
    if (FAILED(opened) && opened != STG_E_FILENOTFOUND) return 1;
    dieAt = at;
    isSaving = true;
    const std::string text = TextOfVersion(VersionOf(bytes) + 1);
    const bool saved = bad ? OverwriteInPlace(path, text) : SUCCEEDED(file.Save(path, text));
    isSaving = false;
    std::printf("places %ld\n", place);
    return saved ? 0 : 2;
}

int Race(const std::wstring& path, long rounds, bool bad) {
    for (long round = 0; round < rounds;) {
        tovarin::StoreFile file;
        std::string bytes;
        if (FAILED(file.Open(path, bad, bytes))) {
            Sleep(0);
            continue;
        }
        const int version = VersionOf(bytes);
        if (version < 0) return 1;
        ++round;
        if (bad) {
            file = {};
            Sleep(20);
        }
        // A save whose file another editor takes right afterwards fails, and has replaced it.
        file.whenFree = [version](bool replaced) {
            if (replaced) std::printf("replaced %d\n", version);
        };
        static_cast<void>(file.Save(path, TextOfVersion(version + 1)));
    }
    return 0;
}

}  // namespace
}  // namespace recoveryui::proof

int wmain(int count, wchar_t** arguments) {
    using namespace recoveryui::proof;
    if (count < 3) return 3;
    const std::wstring way = arguments[1], path = arguments[2];
    if (way == L"loop" || way == L"bad-loop") return Loop(path, way == L"bad-loop");
    if (count < 4) return 3;
    const long number = _wtol(arguments[3]);
    const bool bad = way.starts_with(L"bad-");
    return way.ends_with(L"die") ? Die(path, number, bad) : Race(path, number, bad);
}

#include "tour/Tour.h"

#include "app/Host.h"
#include "com/Bstr.h"
#include "com/Create.h"
#include "harness/User.h"
#include "host/store_samples.h"
#include "host/temp_folder.h"

namespace recoveryui::tour {
namespace {

constexpr unsigned kPatienceSeconds = 120;

// The script's thread is another program as far as recovery files are concerned.
struct Apartment {
    Apartment() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
    ~Apartment() { CoUninitialize(); }
};

}  // namespace

std::wstring Folder() {
    std::wstring folder(32768, L'\0');
    folder.resize(
        GetEnvironmentVariableW(L"RECOVERYUI_SHOTS", folder.data(), static_cast<DWORD>(folder.size())));
    return folder + L"\\";
}

std::wstring FileIn(const wchar_t* name) {
    return Folder() + name;
}

std::wstring MakeFile(const wchar_t* file, const std::string& text) {
    tovarin::TempFolder::Write(FileIn(file), text);
    return FileIn(file);
}

std::wstring MakePopUps(const wchar_t* file, const Rows& names) {
    return MakeFile(file, TextOfStore(tovarin::store::PopUps(names)));
}

void Tour::Play(const wchar_t* journal, const Story& story) {
    const std::wstring journalFile = FileIn(journal);
    test::User user(
        [&](UserScreen& screen) {
            const Apartment apartment;
            const HWND host = screen.WaitForWindow(nullptr, tovarin::kMainWindowClass);
            story(screen, host);
            screen.Close(host);
        },
        kPatienceSeconds);
    tovarin::HostOptions options;
    options.journalFile = journalFile;
    options.settingsPath = L"Software\\Tovarin\\Tour";
    EXPECT_EQ(tovarin::RunHost(options), 0);
}

void Tour::ChooseFromMenuBar(UserScreen& screen, HWND host, wchar_t letter, const std::wstring& item,
                             const wchar_t* picture) {
    PostMessageW(host, WM_SYSCOMMAND, SC_KEYMENU, letter);
    const Rows items = screen.MenuItems();
    if (picture) screen.Picture(host, picture);
    const auto found = std::find(items.begin(), items.end(), item);
    ASSERT_NE(found, items.end()) << "the menu lacks a command";
    // The menu opens with its first command chosen; separators take no step.
    for (auto before = items.begin(); before != found; ++before) {
        if (*before != L"-") PostMessageW(host, WM_KEYDOWN, VK_DOWN, 1);
    }
    PostMessageW(host, WM_KEYDOWN, VK_RETURN, 1);
}

HWND Tour::OpenManager(UserScreen& screen, HWND host, const wchar_t* picture) {
    ChooseFromMenuBar(screen, host, L'r', L"Recovery Scenario &Manager...", picture);
    return screen.WaitForWindow(L"Recovery Scenario Manager");
}

HRESULT Tour::OpenForEditing(const std::wstring& path) {
    com::Ptr<IRecoveryRepository> repository;
    EXPECT_EQ(com::Create(L"Vantrel.RecoveryRepository", repository), S_OK);
    return repository->Load(com::Bstr(path).Get(), VARIANT_FALSE);
}

}  // namespace recoveryui::tour

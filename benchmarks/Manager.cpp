// The Manager opening a file beside the repository's own work: loaded to be viewed, loaded to be edited, and
// its names listed.
#include <windows.h>

#include <shlobj.h>

#include "Compare.h"
#include "Host.h"
#include "Rows.h"
#include "Stage.h"
#include "com/Bstr.h"
#include "resources/ids.h"

namespace recoveryui::bench {
namespace {

void Drop(HWND manager, const std::wstring& path) {
    const size_t bytes = sizeof(DROPFILES) + (path.size() + 2) * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GHND, bytes);
    auto* drop = static_cast<DROPFILES*>(GlobalLock(memory));
    drop->pFiles = sizeof *drop;
    drop->fWide = TRUE;
    path.copy(reinterpret_cast<wchar_t*>(drop + 1), path.size());
    GlobalUnlock(memory);
    SendMessageW(manager, WM_DROPFILES, reinterpret_cast<WPARAM>(memory), 0);
    Settle(manager);
}

size_t List(IRecoveryRepository* repository) {
    com::Ptr<IScenarioEnumerator> enumerator;
    com::Check(repository->GetScenarioEnumerator(enumerator.GetAddressOf()));
    std::vector<std::wstring> names;
    for (com::Bstr name; enumerator->Next(name.Put()) == S_OK;) names.push_back(name.Text());
    return names.size();
}

}  // namespace

void MeasureManager(Host& host) {
    const auto edited = host.New<IRecoveryRepository>(L"Vantrel.RecoveryRepository");
    const auto work = [&](const std::wstring& path) {
        const com::Bstr name(path);
        const auto viewed = host.New<IRecoveryRepository>(L"Vantrel.RecoveryRepository");
        com::Check(viewed->Load(name.Get(), VARIANT_TRUE));
        com::Check(edited->Load(name.Get(), VARIANT_FALSE));
        Use(List(edited.Get()));
    };
    // The Manager holds its file, so each side has one of its own.
    struct Files {
        std::wstring product, floor;
    };
    const auto make = [&](int count) { return Files{host.MakeFile(count), host.MakeFile(count + 1)}; };
    const auto manager = host.New<IRecoveryDlg>(L"Vantrel.RecoveryDlg");
    ShowModal(
        [&] { com::Check(manager->DoModal()); },
        [&](HWND window) {
            const auto open = [window](const std::wstring& path, int count) {
                return Timed([=] {
                    Drop(window, path);
                    const HWND list = GetDlgItem(window, IDC_MANAGER_LIST);
                    Require(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0) == count, "the file is not shown");
                });
            };
            struct Size {
                int count;
                const char* what;
                double goal;
                int pairs;
            };
            for (const Size& size : {Size{10, "Manager: open a file of 10 scenarios", 0, 41},
                                     Size{1'000, "Manager: open a file of 1,000 scenarios", 0, 21},
                                     Size{10'000, "Manager: open a file of 10,000 scenarios", 0, 11},
                                     Size{100'000, "Manager: open a file of 100,000 scenarios", 1.15, 3}}) {
                const Files files = make(size.count);
                Compare({{size.what, size.goal}}, size.pairs, open(files.product, size.count),
                        Timed([&] { work(files.floor); }));
            }
            constexpr int kMany = 100'020;  // files of their own
            Compare({{"Manager: 100,000 scenarios against 10,000", 11}}, 3, open(host.MakeFile(kMany), kMany),
                    open(host.MakeFile(kMany / 10), kMany / 10));
        });
    com::Check(edited->Load(com::Bstr(L"").Get(), VARIANT_FALSE));
}

}  // namespace recoveryui::bench

// Each dialog opened and closed, the module loaded and unloaded, a thousand times: nothing grows.
#include <windows.h>

#include <cstdio>
#include <iterator>
#include <stdexcept>

#include "harness/Children.h"
#include "harness/ProcessWindows.h"
#include "proof/Counts.h"
#include "proof/Openings.h"
#include "proof/Options.h"

namespace recoveryui::proof {
namespace {

constexpr DWORD kPatience = 15'000;
constexpr long kWarmUp = 5;

// What must be found, and what must be said of it. The last one is in loading and unloading.
constexpr struct {
    void (*leak)();
    const wchar_t* where;
    const char* sign;
} kPlanted[] = {
    {[] { CreateCompatibleDC(nullptr); }, L"5", "contexts +"},
    {[] { SysAllocString(L"lost"); }, L"5", "task memory blocks +"},
    {[] { CreateMenu(); }, L"5", "menus +"},
    {[] { New<IRecoveryDlg>(L"Vantrel.RecoveryDlg").Detach(); }, L"5", "live component"},
    {[] { New<IUnknown>(L"Tovarin.RecordMgr").Detach(); }, L"5", "live stand-ins"},
    {[] { HeapAlloc(GetProcessHeap(), 0, 1000); }, L"-1", "bytes of each loading"},
};

void OpenAndClose(Openings& openings, size_t dialog, long rounds, long plant) {
    for (long round = 0; round < rounds; ++round) {
        test::RestartWatchdog();
        Actor actor(kPatience, [] {});
        openings.Open(dialog, actor, [](Player& player, HWND window) { player.Leave(window, IDCANCEL); });
        if (!actor.GaveUp().empty()) throw std::runtime_error(actor.GaveUp());
        if (plant) kPlanted[plant - 1].leak();
    }
    test::RunPendingMessages();
}

// Gives what there is more at the end; "" for nothing. What the platform keeps, it keeps once, or for a while
// on a busy machine: a growth counts when as many rounds again make it grow each time.
std::string Growth(size_t dialog, long rounds, long plant) {
    Openings openings;
    OpenAndClose(openings, dialog, kWarmUp, plant);
    std::string growth;
    for (int again = 0; again < 4; ++again) {
        Counts before = Counts::Take();
        OpenAndClose(openings, dialog, rounds, plant);
        Counts after = Counts::Take();
        // The platform draws with a few objects of its own, made now and then.
        for (auto& [kind, count] : after.gdi)
            if (count - before.gdi[kind] < 4 + rounds / 10) count = before.gdi[kind];
        growth = after.Against(before);
        if (growth.empty()) break;
    }
    return growth;
}

size_t HeapBytes() {
    size_t bytes = 0;
    HANDLE heaps[64];
    const DWORD count = GetProcessHeaps(64, heaps);
    for (DWORD i = 0; i < count; ++i) {
        PROCESS_HEAP_ENTRY entry{};
        while (HeapWalk(heaps[i], &entry))
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData;
    }
    return bytes;
}

// Gives the bytes that stayed of each round.
double LoadAndUnload(long rounds, long plant) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    size_t before = 0;
    for (long round = -kWarmUp; round < rounds; ++round) {
        if (round == 0) before = HeapBytes();
        {
            com::Ptr<IRecoveryWizard> wizard;
            com::Check(com::Create(L"Vantrel.RecoveryWizard", wizard));
        }
        if (plant) kPlanted[plant - 1].leak();
        CoFreeUnusedLibrariesEx(0, 0);
        if (GetModuleHandleW(L"RecoveryUI.dll")) throw std::runtime_error("the module stays loaded");
    }
    return (static_cast<double>(HeapBytes()) - static_cast<double>(before)) / static_cast<double>(rounds);
}

}  // namespace

// A process of its own for each dialog.
int OpenOften(const Options& options) {
    test::ReportCrashes();
    test::StartWatchdog(60);
    const long dialog = options.Number(L"--dialog", 0), rounds = options.Number(L"--rounds", 1000),
               plant = options.Number(L"--plant", 0);
    if (dialog < 0) {
        const double bytes = LoadAndUnload(rounds, plant);
        std::printf("%s%.1f bytes of each loading\n", bytes < 8 ? "flat: " : "", bytes);
    } else {
        LoadModules();
        std::string left = Growth(static_cast<size_t>(dialog), rounds, plant);
        // Whether objects live is known, not how many: nothing may, with nobody left to hold them.
        const Counts end = Counts::Take();
        for (const char* objects : {"live component", "live stand-ins"})
            if (end.others.at(objects)) left += objects;
        std::printf("%s\n", left.empty() ? "flat: nothing" : left.c_str());
    }
    TerminateProcess(GetCurrentProcess(), 0);
    return 0;
}

int LongUse(const Options& options) {
    SetEnvironmentVariableW(L"OANOCACHE", L"1");  // every BSTR is allocated and freed
    const std::wstring rounds = std::to_wstring(options.Number(L"--rounds", 1000));
    int problems = 0;
    const auto isFlat = [](const std::wstring& arguments, std::string& said) {
        said.clear();
        const DWORD code =
            test::RunChild(L"open " + arguments, [&](const std::string& line) { said += line + " "; });
        return code == 0 && said.rfind("flat", 0) == 0;
    };
    std::string said;
    const auto dialogs = Openings::Dialogs();
    for (int dialog = -1; dialog < static_cast<int>(dialogs.size()); ++dialog) {
        const bool flat = isFlat(L"--dialog " + std::to_wstring(dialog) + L" --rounds " + rounds, said);
        std::printf("%s long use, %s, %s rounds: %s\n", flat ? "PROOF" : "  PROBLEM",
                    dialog < 0 ? "loading and unloading" : dialogs[static_cast<size_t>(dialog)].name,
                    test::Utf8(rounds).c_str(), said.c_str());
        problems += !flat;
    }
    size_t found = 0;
    for (size_t plant = 1; plant <= std::size(kPlanted); ++plant) {
        const bool flat = isFlat(std::wstring(L"--dialog ") + kPlanted[plant - 1].where +
                                     L" --rounds 10 --plant " + std::to_wstring(plant),
                                 said);
        const bool told = !flat && said.find(kPlanted[plant - 1].sign) != said.npos;
        if (!told) std::printf("  PROBLEM not found: %s, but %s\n", kPlanted[plant - 1].sign, said.c_str());
        found += told;
    }
    std::printf("PROOF long use, planted: %zu leaks, %zu found\n", std::size(kPlanted), found);
    return problems == 0 && found == std::size(kPlanted) ? 0 : 1;
}

}  // namespace recoveryui::proof

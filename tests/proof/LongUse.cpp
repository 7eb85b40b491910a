// Each dialog opened and closed, the module loaded and unloaded, a thousand times: nothing grows.
#include <windows.h>

#include <cstdio>
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

void OpenAndClose(Openings& openings, size_t dialog, long rounds, bool plantLeak) {
    for (long round = 0; round < rounds; ++round) {
        test::RestartWatchdog();
        Actor actor(kPatience, [] {});
        openings.Open(dialog, actor, [](Player& player, HWND window) { player.Leave(window, IDCANCEL); });
        if (!actor.GaveUp().empty()) throw std::runtime_error(actor.GaveUp());
        if (plantLeak) CreateCompatibleDC(nullptr);
    }
    test::RunPendingMessages();
}

// Gives what there is more at the end; "" for nothing. What the platform keeps, it keeps once, or for a while
// on a busy machine: a growth counts when as many rounds again make it grow each time.
std::string Growth(size_t dialog, long rounds, bool plantLeak) {
    Openings openings;
    OpenAndClose(openings, dialog, kWarmUp, plantLeak);
    std::string growth;
    for (int again = 0; again < 4; ++again) {
        Counts before = Counts::Take();
        OpenAndClose(openings, dialog, rounds, plantLeak);
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
double LoadAndUnload(long rounds) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    size_t before = 0;
    for (long round = -kWarmUp; round < rounds; ++round) {
        if (round == 0) before = HeapBytes();
        {
            com::Ptr<IRecoveryWizard> wizard;
            com::Check(com::Create(L"Vantrel.RecoveryWizard", wizard));
        }
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
    const long dialog = options.Number(L"--dialog", 0), rounds = options.Number(L"--rounds", 1000);
    if (dialog < 0) {
        const double bytes = LoadAndUnload(rounds);
        std::printf("%s%.1f bytes of each loading\n", bytes < 8 ? "flat: " : "", bytes);
    } else {
        LoadModules();
        const std::string left =
            Growth(static_cast<size_t>(dialog), rounds, options.Number(L"--plant", 0) != 0);
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
    const bool missed = isFlat(L"--dialog 5 --plant 1 --rounds 10", said);
    std::printf("%s long use, planted leak %s\n", missed ? "  PROBLEM" : "PROOF",
                missed ? "not found" : "found");
    return problems + missed == 0 ? 0 : 1;
}

}  // namespace recoveryui::proof

// A store that is killed: before and after each call of its writing side, and at random.
#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <thread>
#include <vector>

#include "harness/Children.h"
#include "objects/store/StoreFile.h"
#include "proof/Options.h"
#include "proof/Version.h"

namespace recoveryui::proof {
namespace {

namespace fs = std::filesystem;
constexpr wchar_t kSaver[] = L"saver.exe";
constexpr size_t kAtOnce = 4;  // savers with a file each: one is killed while the others start
constexpr int kLongestLife = 12;
constexpr long kMostTold = 3;

struct Count {
    long kills = 0, changed = 0, problems = 0;
};

void End(const PROCESS_INFORMATION& process) {
    TerminateProcess(process.hProcess, 1);
    WaitForSingleObject(process.hProcess, INFINITE);
    CloseHandle(process.hProcess);
}

class KillRun {
public:
    KillRun() : folder_(fs::temp_directory_path() / (L"kills " + std::to_wstring(GetCurrentProcessId()))) {
        fs::create_directories(folder_);
    }
    ~KillRun() {
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }

    // A save over a file, and the first save of one.
    Count AtEveryPlace(const wchar_t* way) {
        Count count;
        for (const bool exists : {true, false}) {
            long places = 0;
            Prepare(L"place.trs", exists);
            test::RunChild(
                Die(way, 0),
                [&](const std::string& line) { places = std::stol(line.substr(line.find(' '))); }, kSaver);
            for (long place = 1; place <= places; ++place) {
                Prepare(L"place.trs", exists);
                const DWORD code = test::RunChild(
                    Die(way, place), [](const std::string&) {}, kSaver);
                const int version = VersionIn(L"place.trs");
                const bool isOld = exists ? version == 1 : !fs::exists(folder_ / L"place.trs");
                ++count.kills;
                // A first save has no version before it.
                count.changed += !isOld;
                if (code == 9 && (isOld || version == (exists ? 2 : 0)) && CanBeSavedAgain(L"place.trs"))
                    continue;
                if (++count.problems > kMostTold) continue;
                std::printf("  killed at place %ld of %ld of a save over %s: version %d, code %lu\n", place,
                            places, exists ? "a file" : "nothing", version, code);
            }
            // Killed before the change and after it, or it was not the file system that was watched.
            if (count.changed == 0 || count.changed == count.kills) ++count.problems;
        }
        return count;
    }

    Count AtRandom(long rounds, unsigned seed, const wchar_t* way) {
        Count count;
        std::mt19937 random(seed);
        std::array<PROCESS_INFORMATION, kAtOnce> savers{};
        std::array<int, kAtOnce> versions{};
        for (size_t i = 0; i < kAtOnce; ++i) {
            Prepare(NameOf(i), true);
            versions[i] = 1;
            savers[i] = test::StartChild(Loop(way, i), nullptr, kSaver);
        }
        for (long round = 0; round < rounds; ++round) {
            const size_t i = static_cast<size_t>(round) % kAtOnce;
            const std::wstring name = NameOf(i);
            // It is at work when it has saved once; then comes chance.
            for (int tries = 0; tries < 2000 && VersionIn(name) == versions[i]; ++tries) Sleep(1);
            Sleep(random() % kLongestLife);
            End(savers[i]);
            const int version = VersionIn(name);
            ++count.kills;
            count.changed += version != versions[i];
            if (version < versions[i]) {
                ++count.problems;
                if (count.problems <= kMostTold)
                    std::printf("  round %ld: version %d after %d\n", round, version, versions[i]);
                Prepare(name, true);
            }
            versions[i] = std::max(version, 1);
            savers[i] = test::StartChild(Loop(way, i), nullptr, kSaver);
        }
        for (const PROCESS_INFORMATION& saver : savers) End(saver);
        return count;
    }

    // Two editors that take the file from each other: every version is replaced by one of them, once.
    Count Race(long rounds, const wchar_t* way) {
        Count count;
        Prepare(L"race.trs", true);
        const std::wstring arguments = way + Quoted(L"race.trs") + L" " + std::to_wstring(rounds);
        std::array<std::vector<int>, 2> replaced;
        std::array<DWORD, 2> codes{};
        const auto edit = [&](size_t editor) {
            const auto hear = [&](const std::string& line) {
                replaced[editor].push_back(std::stoi(line.substr(line.find(' '))));
            };
            codes[editor] = test::RunChild(arguments, hear, kSaver);
        };
        std::thread rival(edit, 1);
        edit(0);
        rival.join();
        auto& all = replaced[0];
        all.insert(all.end(), replaced[1].begin(), replaced[1].end());
        std::sort(all.begin(), all.end());
        for (size_t i = 0; i < all.size(); ++i) count.problems += all[i] != static_cast<int>(i) + 1;
        count.kills = static_cast<long>(all.size());
        count.changed = VersionIn(L"race.trs") - 1;
        count.problems += count.changed != count.kills || codes[0] || codes[1] || count.changed == 0;
        return count;
    }

private:
    static std::wstring NameOf(size_t saver) { return L"random " + std::to_wstring(saver) + L".trs"; }
    std::wstring Quoted(const std::wstring& name) const { return L"\"" + (folder_ / name).wstring() + L"\""; }
    std::wstring Die(const wchar_t* way, long place) const {
        return way + Quoted(L"place.trs") + L" " + std::to_wstring(place);
    }
    std::wstring Loop(const std::wstring& way, size_t saver) const {
        return way + L" " + Quoted(NameOf(saver));
    }

    void Prepare(const std::wstring& name, bool exists) const {
        fs::remove(folder_ / name);
        if (exists) std::ofstream(folder_ / name, std::ios::binary) << TextOfVersion(1);
    }
    // As anybody else would read it.
    int VersionIn(const std::wstring& name) const {
        tovarin::StoreFile file;
        std::string bytes;
        return SUCCEEDED(file.Open((folder_ / name).wstring(), true, bytes)) ? VersionOf(bytes) : -1;
    }
    bool CanBeSavedAgain(const std::wstring& name) const {
        tovarin::StoreFile file;
        return SUCCEEDED(file.Save((folder_ / name).wstring(), TextOfVersion(3))) && VersionIn(name) == 3 &&
               std::distance(fs::directory_iterator(folder_), fs::directory_iterator()) == 1;
    }

    fs::path folder_;
};

}  // namespace

int Kills(const Options& options) {
    const long rounds = options.Number(L"--rounds", 10'000);
    const auto seed = static_cast<unsigned>(options.Number(L"--seed", 1));
    const ULONGLONG begun = GetTickCount64();
    KillRun run;
    const Count places = run.AtEveryPlace(L"die ");
    const Count torn = run.AtEveryPlace(L"bad-die ");
    const Count random = run.AtRandom(rounds, seed, L"loop");
    const Count race = run.Race(std::max(rounds / 10, 20L), L"race ");
    // A store that writes into the file itself must be found out, and editors that do not hold their file.
    const Count planted = run.AtRandom(std::min(rounds, 100L), seed, L"bad-loop");
    const Count rude = run.Race(20, L"bad-race ");
    std::printf(
        "PROOF kills: at every place %ld kills, %ld after the change, %ld problems; at random %ld kills, %ld "
        "with a new version, %ld problems; two editors %ld versions, %ld problems; planted bad store found "
        "at %ld places and %ld times at random, planted overwriting %ld times; seed %u, %llu s\n",
        places.kills, places.changed, places.problems, random.kills, random.changed, random.problems,
        race.changed, race.problems, torn.problems, planted.problems, rude.problems, seed,
        (GetTickCount64() - begun) / 1000);
    const bool isLively = random.changed > rounds / 2;
    if (!isLively) std::printf("  PROBLEM the savers hardly ever got to save\n");
    const bool found = torn.problems > 0 && planted.problems > 0 && rude.problems > 0;
    if (!found) std::printf("  PROBLEM a planted fault was not found\n");
    return places.problems + random.problems + race.problems == 0 && isLively && found ? 0 : 1;
}

}  // namespace recoveryui::proof

// Every outward call of every journey fails once, and from there on.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <map>
#include <numeric>
#include <random>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "harness/Children.h"
#include "harness/ProcessWindows.h"
#include "proof/Openings.h"
#include "proof/Options.h"
#include "proof/Playing.h"

namespace recoveryui::proof {
namespace {

constexpr unsigned kWatchdogSeconds = 120;  // a patient user alone takes a minute
constexpr size_t kBlock = 300;              // playings of one process
constexpr Outside kKinds[] = {Outside::Memory, Outside::Platform, Outside::Host};

using Words = std::vector<std::string>;

const char* NameOf(Outside outside) {
    return kOutsideNames[static_cast<int>(outside)];
}
std::wstring Wide(const std::string& text) {
    return {text.begin(), text.end()};
}

Words Split(const std::string& list) {
    Words words;
    std::stringstream stream(list);
    for (std::string word; std::getline(stream, word, ',');) words.push_back(word);
    return words;
}
std::string Join(const Words& words, size_t first, size_t most) {
    std::string list;
    for (size_t i = first; i < words.size() && i < first + most; ++i)
        list += (i > first ? "," : "") + words[i];
    return list;
}

// A fault in one word: the kind's first letter, "*" when it lasts, the number of the call ("m*12").
std::string Word(const Fault& fault) {
    return std::string(1, NameOf(fault.outside)[0]) + (fault.lasting ? "*" : "") + std::to_string(fault.nth);
}
Fault Parse(const std::string& word) {
    for (const Outside outside : kKinds) {
        if (word.size() < 2 || NameOf(outside)[0] != word[0]) continue;
        const bool lasting = word[1] == '*';
        return {outside, std::stol(word.substr(lasting ? 2 : 1)), lasting};
    }
    throw std::runtime_error("not a fault: " + word);
}

// Every call and the one behind the last, or some by the seed; each once and for ever.
Words Chosen(const Rehearsal& rehearsal, long most, unsigned seed) {
    Words words;
    for (const Outside outside : kKinds) {
        std::vector<long> numbers(static_cast<size_t>(rehearsal.Calls(outside) + (most <= 0)));
        std::iota(numbers.begin(), numbers.end(), 1L);
        if (most > 0) {
            std::shuffle(numbers.begin(), numbers.end(), std::mt19937(seed));
            numbers.resize(std::min(numbers.size(), static_cast<size_t>(most)));
            std::sort(numbers.begin(), numbers.end());
        }
        for (const bool lasting : {false, true})
            for (const long nth : numbers) words.push_back(Word({outside, nth, lasting}));
    }
    return words;
}

// The one of that name; without a name all but the planted ones.
std::vector<Journey> JourneysNamed(const std::wstring& name) {
    std::vector<Journey> found;
    for (const auto* part :
         {&wizardJourneys, &managerJourneys, &settingsJourneys, &shellJourneys, &plantedJourneys})
        for (const Journey& journey : *part)
            if (name.empty() ? !journey.sign : test::Utf8(name) == journey.name) found.push_back(journey);
    if (found.empty()) throw std::runtime_error("no such journey: " + test::Utf8(name));
    return found;
}

struct Totals {
    long calls = 0, playings = 0, failed = 0, done = 0, problems = 0;
    long once = 0;  // left behind, and not again in three more playings in another process
};

// All playings of one journey, in as many processes as it takes.
class Season {
public:
    explicit Season(const Journey& journey) : journey_(journey.name) {}

    // Without faults the first process chooses them, and says so.
    void Play(Words faults, const std::wstring& choice) {
        size_t next = 0;
        do {
            const size_t end = faults.empty() ? kBlock : std::min(faults.size(), next + kBlock);
            const std::wstring what =
                faults.empty() ? choice : L" --calls " + Wide(Join(faults, next, kBlock));
            size_t ended = 0;
            const DWORD code = Run(what, [&](const std::string& line) {
                if (line.rfind("all ", 0) == 0) faults = Split(line.substr(4));
                ended += Hear(line);
            });
            if (faults.empty()) throw std::runtime_error(journey_ + " cannot be played:" + said_);
            if (code != 0) {
                // It died of one; the next process goes on behind it.
                said_ += "\n    the process ended with " + std::to_string(code);
                if (current_.empty())
                    current_ = faults[std::min(next + ended, std::min(end, faults.size()) - 1)];
                Problem(false);
                ++ended;
            }
            next += ended;
        } while (next < faults.size());
    }
    const Totals& Of(Outside outside) { return totals_[NameOf(outside)[0]]; }
    // All that was wrong.
    const std::string& Told() const { return told_; }

private:
    DWORD Run(const std::wstring& what, const std::function<void(const std::string&)>& onLine) const {
        return test::RunChild(L"play --journey " + Wide(journey_) + what, onLine);
    }
    // True at the end of a playing: "over <failed> <done> <problems>".
    bool Hear(const std::string& line) {
        std::stringstream stream(line);
        std::string word;
        stream >> word;
        if (word == "calls") {
            stream >> word;
            stream >> totals_[word[0]].calls;
        } else if (word == "play") {
            stream >> current_;
            said_.clear();
            traces_ = 0;
        } else if (word != "over" && word != "all") {
            traces_ += line.rfind("left behind: ", 0) == 0;
            if (!line.empty()) said_ += "\n    " + line;
        }
        if (word != "over") return false;
        int failed = 0, done = 0, problems = 0;
        stream >> failed >> done >> problems;
        Totals& totals = totals_[current_[0]];
        ++totals.playings;
        totals.failed += failed;
        totals.done += done && failed;
        if (problems) Problem(problems == traces_);
        current_.clear();
        return true;
    }
    void Problem(bool isTrace) {
        const bool again = !isTrace || ShowsAgain(current_);
        ++(again ? totals_[current_[0]].problems : totals_[current_[0]].once);
        std::printf("  %s %s under %s:%s\n    again: prove faults --journey %s --calls %s\n",
                    again ? "PROBLEM" : "SEEN ONCE", journey_.c_str(), current_.c_str(), said_.c_str(),
                    journey_.c_str(), current_.c_str());
        told_ += std::exchange(said_, {});
    }
    // What the platform keeps of its own drawing, and when, is no fault of the call.
    bool ShowsAgain(const std::string& fault) const {
        bool isClean = true;
        const DWORD code =
            Run(L" --calls " + Wide(Join(Words(3, fault), 0, 3)), [&](const std::string& line) {
                if (line.rfind("over ", 0) == 0) isClean &= line.ends_with(" 0");
            });
        return code != 0 || !isClean;
    }

    std::string journey_, current_, said_, told_;
    int traces_ = 0;  // what was only left behind
    std::map<char, Totals> totals_;
};

// Each planted journey must be found out, and for what it does.
int PlantedFaults() {
    int missed = 0;
    for (const Journey& journey : plantedJourneys) {
        Season season(journey);
        season.Play({"m1"}, {});
        if (season.Told().find(journey.sign) != std::string::npos) continue;
        std::printf("  PROBLEM %s was not found\n", journey.name);
        ++missed;
    }
    std::printf("PROOF faults, planted: %zu journeys that break a promise, %d not found\n",
                plantedJourneys.size(), missed);
    return missed ? 1 : 0;
}

}  // namespace

// A process that plays.
int PlayFaults(const Options& options) {
    test::ReportCrashes();
    test::StartWatchdog(kWatchdogSeconds);
    LoadModules();
    const Journey journey = JourneysNamed(options.Text(L"--journey")).front();
    Rehearsal rehearsal(journey);
    Words words = Split(test::Utf8(options.Text(L"--calls")));
    if (words.empty()) {
        words = Chosen(rehearsal, options.Number(L"--most", 0),
                       static_cast<unsigned>(options.Number(L"--seed", 1)));
        for (const Outside outside : kKinds)
            std::printf("calls %s %ld\n", NameOf(outside), rehearsal.Calls(outside));
        std::printf("all %s\n", Join(words, 0, words.size()).c_str());
        words.resize(std::min(words.size(), kBlock));
    }
    for (const std::string& word : words) {
        std::printf("play %s\n", word.c_str());
        const Playing playing = rehearsal.Play(Parse(word));
        if (!playing.problems.empty()) std::printf("%s failed\n", playing.failed.c_str());
        for (const std::string& problem : playing.problems) std::printf("%s\n", problem.c_str());
        std::printf("over %d %d %zu\n", playing.hasFailed, playing.isDone, playing.problems.size());
        // What is still there would be seen again; the next process goes on behind it.
        if (!playing.left.empty()) break;
    }
    // Whatever the modules' ends would do is another test's matter.
    TerminateProcess(GetCurrentProcess(), 0);
    return 0;
}

int Faults(const Options& options) {
    SetEnvironmentVariableW(L"OANOCACHE", L"1");  // every BSTR is allocated and freed
    const std::wstring wanted = options.Text(L"--journey"), seed = options.Text(L"--seed", L"1");
    if (wanted == L"planted") return PlantedFaults();
    Totals all;
    for (const Journey& journey : JourneysNamed(wanted)) {
        const ULONGLONG begun = GetTickCount64();
        Season season(journey);
        season.Play(Split(test::Utf8(options.Text(L"--calls"))),
                    L" --most " + options.Text(L"--most", L"0") + L" --seed " + seed);
        std::printf("PROOF faults, %s:", journey.name);
        for (const Outside outside : kKinds) {
            const Totals& totals = season.Of(outside);
            std::printf(
                " %s %ld calls, %ld played, %ld failed, %ld came to their end, %ld problems, %ld seen once;",
                NameOf(outside), totals.calls, totals.playings, totals.failed, totals.done, totals.problems,
                totals.once);
            all.playings += totals.playings;
            all.problems += totals.problems;
        }
        std::printf(" seed %s, %llu s\n", test::Utf8(seed).c_str(), (GetTickCount64() - begun) / 1000);
    }
    return all.playings > 0 && all.problems == 0 ? 0 : 1;
}

}  // namespace recoveryui::proof

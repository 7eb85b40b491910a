// Every outward call of every journey fails once, and from there on.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <map>
#include <random>
#include <set>
#include <sstream>
#include <stdexcept>

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

const char* NameOf(Outside outside) {
    return kOutsideNames[static_cast<int>(outside)];
}
std::wstring Wide(const std::string& text) {
    return {text.begin(), text.end()};
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
std::vector<std::string> Words(const std::string& list) {
    std::vector<std::string> words;
    std::stringstream stream(list);
    for (std::string word; std::getline(stream, word, ',');) words.push_back(word);
    return words;
}

std::vector<Journey> Journeys() {
    std::vector<Journey> all;
    for (const auto part : {WizardJourneys(), ManagerJourneys(), SettingsJourneys(), ShellJourneys()})
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

Journey JourneyNamed(const std::wstring& name) {
    std::vector<Journey> all = Journeys();
    all.insert(all.end(), PlantedJourneys().begin(), PlantedJourneys().end());
    for (const Journey& journey : all)
        if (test::Utf8(name) == journey.name) return journey;
    throw std::runtime_error("no such journey: " + test::Utf8(name));
}

// A process that plays.
struct Theatre {
    Theatre() {
        test::ReportCrashes();
        test::StartWatchdog(kWatchdogSeconds);
        LoadModules();
    }
    // Whatever the modules' ends would do is another test's matter.
    ~Theatre() {
        std::fflush(stdout);
        TerminateProcess(GetCurrentProcess(), std::uncaught_exceptions() ? 1 : 0);
    }
};

struct Totals {
    long playings = 0, failed = 0, done = 0, problems = 0;
    long once = 0;  // left behind, and not again in three more playings in another process
};

// All playings of one journey, in as many processes as it takes.
class Season {
public:
    explicit Season(const Journey& journey) : journey_(journey.name) {}

    void Play(const std::vector<std::string>& faults) {
        for (size_t next = 0; next < faults.size();) {
            const size_t end = std::min(faults.size(), next + kBlock);
            std::string list;
            for (size_t i = next; i < end; ++i) list += (i > next ? "," : "") + faults[i];
            size_t ended = 0;
            const DWORD code = test::RunChild(L"play --journey " + Wide(journey_) + L" --calls " + Wide(list),
                                              [&](const std::string& line) { ended += Hear(line); });
            if (code != 0) {
                // It died of one; the next process goes on behind it.
                said_ += "\n    the process ended with " + std::to_string(code);
                if (current_.empty()) current_ = faults[std::min(next + ended, end - 1)];
                Problem(false);
                ++ended;
            }
            next += ended;
        }
    }
    const Totals& Of(Outside outside) { return totals_[NameOf(outside)[0]]; }

private:
    // True at the end of a playing: "over <failed> <done> <problems>".
    bool Hear(const std::string& line) {
        if (line.rfind("play ", 0) == 0) {
            current_ = line.substr(5);
            said_.clear();
            traces_ = 0;
            return false;
        }
        if (line.rfind("over ", 0) != 0) {
            traces_ += line.rfind("left behind: ", 0) == 0;
            if (!line.empty()) said_ += "\n    " + line;
            return false;
        }
        std::stringstream stream(line.substr(5));
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
        said_.clear();
    }
    // What the platform keeps of its own drawing, and when, is no fault of the call.
    bool ShowsAgain(const std::string& fault) const {
        bool isClean = true;
        const DWORD code = test::RunChild(
            L"play --journey " + Wide(journey_) + L" --calls " + Wide(fault + "," + fault + "," + fault),
            [&](const std::string& line) {
                if (line.rfind("over ", 0) == 0) isClean &= line.ends_with(" 0");
            });
        return code != 0 || !isClean;
    }

    std::string journey_, current_, said_;
    int traces_ = 0;  // what was only left behind
    std::map<char, Totals> totals_;
};

struct Survey {
    long calls = 0;
    std::vector<long> places;  // the first call of each caller
};

// "calls memory 135" and "place memory 7".
std::map<std::string, Survey> SurveyOf(const Journey& journey) {
    std::map<std::string, Survey> surveys;
    const DWORD code =
        test::RunChild(L"survey --journey " + Wide(journey.name), [&](const std::string& line) {
            std::stringstream stream(line);
            std::string what, kind;
            long number = 0;
            if (stream >> what >> kind >> number && what == "calls") {
                surveys[kind].calls = number;
            } else if (what == "place") {
                surveys[kind].places.push_back(number);
            } else {
                std::printf("%s\n", line.c_str());
            }
        });
    if (code != 0) throw std::runtime_error(std::string(journey.name) + " cannot be surveyed");
    return surveys;
}

// Every call and the one behind the last, or a choice of callers by the seed.
std::vector<long> Chosen(const Survey& survey, long most, unsigned seed) {
    std::vector<long> numbers;
    if (most <= 0) {
        for (long n = 1; n <= survey.calls + 1; ++n) numbers.push_back(n);
        return numbers;
    }
    numbers = survey.places;
    std::shuffle(numbers.begin(), numbers.end(), std::mt19937(seed));
    if (static_cast<long>(numbers.size()) > most) numbers.resize(static_cast<size_t>(most));
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

}  // namespace

int PlayFaults(const Options& options) {
    const Theatre theatre;
    const Journey journey = JourneyNamed(options.Text(L"--journey"));
    Rehearsal rehearsal(journey);
    for (const std::string& word : Words(test::Utf8(options.Text(L"--calls")))) {
        std::printf("play %s\n", word.c_str());
        const Playing playing = rehearsal.Play(Parse(word));
        if (!playing.problems.empty()) std::printf("%s failed\n", playing.failed.c_str());
        for (const std::string& problem : playing.problems) std::printf("%s\n", problem.c_str());
        std::printf("over %d %d %zu\n", playing.hasFailed, playing.isDone, playing.problems.size());
    }
    return 0;
}

int SurveyFaults(const Options& options) {
    const Theatre theatre;
    const Journey journey = JourneyNamed(options.Text(L"--journey"));
    Rehearsal rehearsal(journey);
    for (const Outside outside : kKinds) {
        const auto callers = rehearsal.Survey(outside);
        std::printf("calls %s %zu\n", NameOf(outside), callers.size());
        std::set<std::uint64_t> known;
        for (size_t i = 0; i < callers.size(); ++i)
            if (known.insert(callers[i]).second) std::printf("place %s %zu\n", NameOf(outside), i + 1);
    }
    return 0;
}

// Each planted journey must be found out.
int PlantedFaults() {
    int missed = 0;
    for (const Journey& journey : PlantedJourneys()) {
        Season season(journey);
        season.Play({"m1"});
        if (season.Of(Outside::Memory).problems > 0) continue;
        std::printf("  PROBLEM %s was not found\n", journey.name);
        ++missed;
    }
    std::printf("PROOF faults, planted: %zu journeys that break a promise, %d not found\n",
                PlantedJourneys().size(), missed);
    return missed ? 1 : 0;
}

int Faults(const Options& options) {
    SetEnvironmentVariableW(L"OANOCACHE", L"1");  // every BSTR is allocated and freed
    if (options.Text(L"--journey") == L"planted") return PlantedFaults();
    const std::string wanted = test::Utf8(options.Text(L"--journey"));
    const auto seed = static_cast<unsigned>(options.Number(L"--seed", 1));
    std::vector<std::string> faults = Words(test::Utf8(options.Text(L"--calls")));
    Totals all;
    for (const Journey& journey : Journeys()) {
        if (!wanted.empty() && journey.name != wanted) continue;
        const ULONGLONG begun = GetTickCount64();
        std::map<std::string, Survey> surveys;
        if (options.Text(L"--calls").empty()) {
            surveys = SurveyOf(journey);
            faults.clear();
            for (const Outside outside : kKinds)
                for (const bool lasting : {false, true})
                    for (const long nth :
                         Chosen(surveys[NameOf(outside)], options.Number(L"--most", 0), seed))
                        faults.push_back(Word({outside, nth, lasting}));
        }
        Season season(journey);
        season.Play(faults);
        std::printf("PROOF faults, %s:", journey.name);
        for (const Outside outside : kKinds) {
            const Totals& totals = season.Of(outside);
            const Survey& survey = surveys[NameOf(outside)];
            std::printf(
                " %s %ld calls from %zu places, %ld played, %ld failed, %ld came to their end, %ld problems, "
                "%ld seen once;",
                NameOf(outside), survey.calls, survey.places.size(), totals.playings, totals.failed,
                totals.done, totals.problems, totals.once);
            all.playings += totals.playings;
            all.problems += totals.problems;
        }
        std::printf(" seed %u, %llu s\n", seed, (GetTickCount64() - begun) / 1000);
    }
    return all.playings > 0 && all.problems == 0 ? 0 : 1;
}

}  // namespace recoveryui::proof

// What the product promises, tried until it breaks.
//   prove faults [--journey name] [--most n] [--seed n] [--calls m3,p*7,h12]
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdio>
#include <exception>
#include <iterator>
#include <string>

#include "proof/Journey.h"
#include "proof/Options.h"

namespace recoveryui::proof {

std::vector<Journey> Journeys() {
    std::vector<Journey> all;
    for (const auto part : {WizardJourneys()}) all.insert(all.end(), part.begin(), part.end());
    return all;
}

}  // namespace recoveryui::proof

int wmain(int count, wchar_t** arguments) {
    using namespace recoveryui::proof;
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    const struct {
        const wchar_t* name;
        int (*run)(const Options&);
    } parts[] = {{L"faults", Faults}, {L"play", PlayFaults}, {L"survey", SurveyFaults}};
    try {
        for (const auto& part : parts)
            if (count > 1 && part.name == std::wstring(arguments[1])) return part.run(Options(count, arguments));
    } catch (const std::exception& problem) {
        std::printf("%s\n", problem.what());
        return 1;
    }
    std::puts("usage: prove faults [--name value]...");
    return 2;
}

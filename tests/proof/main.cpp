// What the product promises, tried until it breaks.
//   prove faults  [--journey name] [--most n] [--seed n] [--calls m3,p*7,h12]
//   prove kills   [--rounds n] [--seed n]
//   prove monkeys [--raw 1] [--inputs n] [--seed n]
//   prove long    [--rounds n]
// The other words are for the processes that these start, and for doing again what one of them did.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdio>
#include <exception>
#include <string>

#include "proof/Options.h"

int wmain(int count, wchar_t** arguments) {
    using namespace recoveryui::proof;
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    const struct {
        const wchar_t* name;
        int (*run)(const Options&);
    } parts[] = {{L"faults", Faults},  {L"play", PlayFaults}, {L"kills", Kills},      {L"long", LongUse},
                 {L"open", OpenOften}, {L"monkeys", Monkeys}, {L"monkey", PlayMonkey}};
    try {
        for (const auto& part : parts)
            if (count > 1 && part.name == std::wstring(arguments[1]))
                return part.run(Options(count, arguments));
    } catch (const std::exception& problem) {
        std::printf("%s\n", problem.what());
        return 1;
    }
    std::puts("usage: prove faults|kills|monkeys|long [--name value]...");
    return 2;
}

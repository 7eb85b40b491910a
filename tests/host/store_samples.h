// Scenarios that hold one of everything, for the tests of recovery files.
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "objects/store/StoreFormat.h"

namespace tovarin::store {

inline std::vector<NamedScenario> OneOfEverything() {
    ObjectStateTrigger objectState{
        7,
        {{L"Edit \"Name\"",
          {{L"text", {ValueType::Text, 0, 0, L"a.*b"}, 1, 1}, {L"x", {ValueType::Int32, -5}, 0, 0}}},
         {L"Window", {}}}};
    return {
        {L"Pop-up",
         {2,
          PopUpTrigger{{L"Error.*", 1}, {L"first\nsecond", 0}, 0},
          {PressKeys{{0x0100000d, 0xffffffff}},
           AccessObject{1, L"Click", {{ValueType::Text, 0, 0, L"OK"}, {ValueType::Double, 0, -HUGE_VAL}}}},
          L"d\r\ne"}},
        {L"State",
         {8, objectState, {CloseProcesses{{L"a.exe", L""}}, CallFunction{L"F", L"C:\\l.vbs", 2}}, L""}},
        {L"Error", {5, ErrorTrigger{-7}, {}, L""}},
        {L"Crash", {6, CrashTrigger{1, {L"x.exe"}}, {}, L""}},
        {L"Unfinished", {0, {}, {std::monostate{}}, L""}},
    };
}

// Pop-ups, each answered by ENTER, and described as "About <name>."; the run goes on with the next step.
inline std::vector<NamedScenario> PopUps(const std::vector<std::wstring>& names) {
    std::vector<NamedScenario> scenarios;
    for (const std::wstring& name : names)
        scenarios.push_back(
            {name,
             {2, PopUpTrigger{{name, 0}, {}, 0}, {PressKeys{{0x1000D, 0x3000D}}}, L"About " + name + L"."}});
    return scenarios;
}

inline std::string TextOfStore(const std::vector<NamedScenario>& scenarios) {
    StoreWriter writer;
    for (const NamedScenario& named : scenarios) writer.Add(named.name, named.scenario);
    return writer.Finish();
}

}  // namespace tovarin::store

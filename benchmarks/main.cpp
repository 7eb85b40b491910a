// ./bench: what the product takes, beside what the bare platform takes for the same work in the same run.
#include <windows.h>

#include <commctrl.h>

#include <cstdio>
#include <cstring>
#include <exception>

#include "Compare.h"
#include "Host.h"
#include "Rows.h"

int main(int count, char** arguments) {
    using namespace recoveryui::bench;
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    InitCommonControls();
    int result = 0;
    try {
        Host host;
        const auto wanted = [&](const char* name) {
            for (int i = 1; i < count; ++i)
                if (std::strcmp(arguments[i], name) == 0) return true;
            return count == 1;
        };
        PrintHead();
        if (wanted("wizard")) MeasureWizard(host);
        if (wanted("manager")) MeasureManager(host);
        if (wanted("list")) MeasureScenarioList();
        if (wanted("tab")) MeasureRecoveryTab(host);
        if (wanted("records")) MeasureRecords();
        if (wanted("store")) MeasureStore();
        if (wanted("script")) MeasureScript();
        if (wanted("creation")) MeasureCreation();
        if (wanted("size")) MeasureSize();
        if (wanted("idle")) MeasureIdle(host);
    } catch (const std::exception& error) {
        std::printf("cannot measure: %s\n", error.what());
        result = 1;
    }
    CoUninitialize();
    return result;
}
